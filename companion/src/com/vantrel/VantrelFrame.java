package com.vantrel;

import java.awt.Component;
import java.awt.Dialog;
import java.awt.Window;
import java.awt.event.ActionEvent;
import java.awt.event.ActionListener;
import java.util.Arrays;
import java.util.List;

import javax.swing.JFrame;
import javax.swing.JLabel;
import javax.swing.Timer;
import javax.swing.WindowConstants;

import com.vantrel.model.Ours;
import com.vantrel.model.Selection;

/**
 * The inspector's window. A window that exists, shown or not, keeps the event thread and with it the VM alive, so this
 * one exists only while it is shown, and goes when nothing else is left of the program. It stays usable while a modal
 * dialog of the program is open.
 */
public final class VantrelFrame extends JFrame implements Ours {
    private static final long serialVersionUID = 1L;

    /** What is left of the main thread when it has ended, and the AWT's wait for its own end. */
    private static final List<String> OF_THE_VM = Arrays.asList("DestroyJavaVM", "AWT-Shutdown");

    private static final int MILLIS_BETWEEN_LOOKS = 250;

    private static VantrelFrame instance;

    private final transient Selection selection = new Selection();
    private final JLabel selected = new JLabel("No component is selected.", JLabel.CENTER);

    private final Timer looks = new Timer(MILLIS_BETWEEN_LOOKS, new ActionListener() {
        @Override
        public void actionPerformed(ActionEvent event) {
            if (!programHasWindow() && !programHasThread()) {
                dispose();
            }
        }
    });

    private VantrelFrame() {
        super("Vantrel");
        setName("vantrel");
        setDefaultCloseOperation(WindowConstants.DISPOSE_ON_CLOSE);
        setModalExclusionType(Dialog.ModalExclusionType.TOOLKIT_EXCLUDE);
        add(selected);
        selection.onChange(() -> selected.setText(
                selection.component() == null ? "No component is selected." : selection.component().toString()));
        setSize(480, 320);
    }

    /** The window, made when it is first asked for. */
    public static synchronized VantrelFrame getInstance() {
        if (instance == null) {
            instance = new VantrelFrame();
        }
        return instance;
    }

    @Override
    public void setVisible(boolean visible) {
        if (visible) {
            super.setVisible(true);
            looks.start();
        } else {
            dispose();
        }
    }

    @Override
    public void dispose() {
        looks.stop();
        selection.clear();
        super.dispose();
    }

    private boolean programHasWindow() {
        for (Window window : getWindows()) {
            if (window.isDisplayable() && window != this && window.getOwner() != this) {
                return true;
            }
        }
        return false;
    }

    /** Whether a thread keeps the VM alive beside those that only this window keeps alive. */
    private static boolean programHasThread() {
        ThreadGroup all = Thread.currentThread().getThreadGroup();
        while (all.getParent() != null) {
            all = all.getParent();
        }
        // Leaves room for threads that start meanwhile; one that is overlooked is seen the next time.
        Thread[] threads = new Thread[all.activeCount() + 16];
        int count = all.enumerate(threads);
        for (Thread thread : Arrays.asList(threads).subList(0, count)) {
            if (!thread.isDaemon() && thread != Thread.currentThread() && !OF_THE_VM.contains(thread.getName())) {
                return true;
            }
        }
        return count == threads.length;
    }

    /** What is selected in the inspector. */
    Selection selection() {
        return selection;
    }

    /** Asks for a window that is translucent, in percent. The agent does nothing with it. */
    public native void setOpacity(int opacity);
}
