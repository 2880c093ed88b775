package com.vantrel;

import java.awt.Component;
import java.awt.Dialog;
import java.awt.Dimension;
import java.awt.Window;
import java.lang.ref.WeakReference;
import java.util.Arrays;
import java.util.List;

import javax.swing.JFrame;
import javax.swing.JPanel;
import javax.swing.Timer;
import javax.swing.WindowConstants;

import com.vantrel.model.Edits;
import com.vantrel.model.Ours;
import com.vantrel.model.Selection;
import com.vantrel.record.ChangeRecorder;
import com.vantrel.view.InspectorPane;
import com.vantrel.view.Placement;
import com.vantrel.view.WindowIcon;

/**
 * The inspector's window. A displayable window, shown or not, keeps the event thread alive, and with it the VM. So this
 * one is displayable only while it is shown, and is disposed of when no other window and no thread of the program is
 * left. What is in it is made when it is shown, in the look and feel of that moment, and dropped when it is closed. It
 * stays usable while a modal dialog of the program is open.
 */
public final class VantrelFrame extends JFrame implements Ours {
    private static final long serialVersionUID = 1L;

    /**
     * Threads that are not the program's: what the main thread becomes when {@code main} returns, and the thread that
     * waits for the end of the AWT.
     */
    private static final List<String> OF_THE_VM = Arrays.asList("DestroyJavaVM", "AWT-Shutdown");

    private static final int MILLIS_BETWEEN_LOOKS = 250;
    private static final Dimension SMALLEST = new Dimension(560, 320);

    private static VantrelFrame instance;

    private transient volatile Selection selection;
    /** Records, while the window is shown, who sets which property. */
    private final transient ChangeRecorder recorder = new ChangeRecorder(component -> true);
    private transient PickSight sight;
    private InspectorPane pane;
    /** The component to select when the window is shown next. */
    private transient WeakReference<Component> toSelect = new WeakReference<>(null);

    private final Timer looks = new Timer(MILLIS_BETWEEN_LOOKS, event -> {
        if (!programHasWindow() && !programHasThread()) {
            dispose();
        }
    });

    private VantrelFrame() {
        super("Vantrel");
        setName("vantrel");
        setDefaultCloseOperation(WindowConstants.DISPOSE_ON_CLOSE);
        setModalExclusionType(Dialog.ModalExclusionType.TOOLKIT_EXCLUDE);
        setMinimumSize(SMALLEST);
    }

    /** The window, made when it is first asked for. */
    public static synchronized VantrelFrame getInstance() {
        if (instance == null) {
            instance = new VantrelFrame();
        }
        return instance;
    }

    /** What is selected in the inspector; null for nothing. May be called from any thread. */
    static synchronized Component selected() {
        Selection selection = instance == null ? null : instance.selection;
        return selection == null ? null : selection.component();
    }

    @Override
    public void setVisible(boolean visible) {
        if (!visible) {
            dispose();
        } else if (pane == null) {
            fill();
            sight.start();
            recorder.start();
            super.setVisible(true);
            pane.first().requestFocusInWindow();
            pane.start();
            looks.start();
        }
    }

    /** Shows the window, or brings it to the front if it is minimised or covered. Otherwise hides it. */
    void toggle() {
        if (isVisible() && (getExtendedState() & ICONIFIED) != 0) {
            setExtendedState(getExtendedState() & ~ICONIFIED);
            toFront();
        } else if (isVisible() && Cover.liesOver(this)) {
            toFront();
        } else {
            setVisible(!isVisible());
        }
    }

    private void fill() {
        selection = new Selection();
        sight = new PickSight(this, selection);
        Edits edits = new Edits(Agent::run, task -> Agent.run(this, task));
        pane = new InspectorPane(selection, edits, sight, this::dispose);
        setRootPane(createRootPane()); // one of the look and feel that the program has now
        setContentPane(pane);
        setJMenuBar(pane.menus());
        setIconImages(WindowIcon.images());
        Placement.place(this);
        selection.select(toSelect.get());
        toSelect.clear();
    }

    /** Selects a component; while the window is not shown, as soon as it is. */
    void select(Component component) {
        if (selection == null) {
            toSelect = new WeakReference<>(component);
        } else {
            selection.select(component);
        }
    }

    @Override
    public void dispose() {
        looks.stop();
        if (pane != null) {
            Placement.remember(this);
            pane.remember();
            pane.clear();
            sight.stop();
            recorder.stop();
            sight = null;
            pane = null;
            selection = null;
        }
        super.dispose();
        setJMenuBar(null);
        setContentPane(new JPanel());
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
        return count == threads.length; // the array was too short after all: some may be missing
    }

    /** Asks the agent for a translucent window, in percent. The agent ignores it. */
    public native void setOpacity(int opacity);
}
