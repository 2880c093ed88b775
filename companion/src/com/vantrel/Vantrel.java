package com.vantrel;

import java.awt.Component;
import java.awt.Graphics2D;
import java.awt.GraphicsEnvironment;

import javax.swing.SwingUtilities;

import com.vantrel.hooks.Hooks;
import com.vantrel.pick.HotKey;
import com.vantrel.record.Recording;

/** The inspector. The agent takes hold of it while the VM starts: making it opens nothing and starts no toolkit. */
public final class Vantrel {
    private static final Vantrel INSTANCE = new Vantrel();

    private static final HotKey HOT_KEY = new HotKey(new Runnable() {
        @Override
        public void run() {
            toggle(null);
        }
    }, System.getenv("VANTREL_HOT_KEY"));

    static {
        Hooks.add(HOT_KEY);
        Recording.start();
    }

    private Vantrel() {
    }

    public static Vantrel getInstance() {
        return INSTANCE;
    }

    /**
     * Shows the inspector's window, or hides it if it is shown; brings it back if it is minimised. May be called from
     * any thread. Where there can be no window, it only says so on stderr.
     *
     * @param component the component to select; null for none
     */
    public static void showVantrel(Component component) {
        // The hot key's call has no component. The same press may have come among the program's events already.
        if (component != null || HOT_KEY.isNewCall()) {
            toggle(component);
        }
    }

    private static void toggle(final Component component) {
        if (GraphicsEnvironment.isHeadless()) {
            System.err.println("Vantrel has no window here: this Java VM is headless (java.awt.headless).");
            return;
        }
        SwingUtilities.invokeLater(new Runnable() {
            @Override
            public void run() {
                VantrelFrame frame = VantrelFrame.getInstance();
                frame.toggle();
                if (frame.isVisible() && component != null) {
                    INSTANCE.selectOnComponentTree(component);
                }
            }
        });
    }

    /** Selects a component in the inspector. */
    public void selectOnComponentTree(Component component) {
        VantrelFrame.getInstance().select(component);
    }

    /** The component that is selected in the inspector, for debuggers and consoles; null for none. */
    public static Component getSelectedComponent() {
        return VantrelFrame.selected();
    }

    /** Paints the highlight over a component. */
    public native void highlight(Component component, Graphics2D graphics);

    public static native void beep();

    /** The version of the operating system; -1 where it is not known. */
    public static native int getOSVersion();

    /** Whether the key that asks for highlights is held down. */
    public static native boolean canHighlight();
}
