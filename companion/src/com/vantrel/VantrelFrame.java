package com.vantrel;

import java.awt.Component;

import javax.swing.JFrame;
import javax.swing.JLabel;

/** The inspector's window. */
public final class VantrelFrame extends JFrame {
    private static final long serialVersionUID = 1L;

    private static VantrelFrame instance;

    private final JLabel selection = new JLabel("No component is selected.", JLabel.CENTER);

    private VantrelFrame() {
        super("Vantrel");
        add(selection);
        setSize(480, 320);
    }

    /** The window, made when it is first asked for. */
    public static synchronized VantrelFrame getInstance() {
        if (instance == null) {
            instance = new VantrelFrame();
        }
        return instance;
    }

    void select(Component component) {
        selection.setText(component == null ? "No component is selected." : component.toString());
    }

    /** Asks for a window that is translucent, in percent. The agent does nothing with it. */
    public native void setOpacity(int opacity);
}
