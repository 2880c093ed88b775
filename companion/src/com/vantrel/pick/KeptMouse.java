package com.vantrel.pick;

import java.awt.Component;
import java.awt.MouseInfo;
import java.awt.PointerInfo;
import java.awt.Window;
import java.awt.event.MouseEvent;
import java.lang.ref.WeakReference;

/**
 * Which mouse events are kept from the program. A press, its drag, its release and its click are kept together or not
 * at all. At the end, if the pointer has meanwhile left a window unseen by the program, the program is told so.
 */
final class KeptMouse {
    /** The buttons that are down, a bit for each: those pressed for us, and those pressed for the program. */
    private int ours;
    private int programs;
    private int clickToKeep;
    /**
     * The window in which the program believes the pointer to be, and the event of its leaving that was kept, if any.
     */
    private WeakReference<Window> inside = new WeakReference<>(null);
    private MouseEvent keptExit;
    /** The window that the pointer has entered without the program's knowledge. */
    private WeakReference<Component> entered = new WeakReference<>(null);
    private boolean settling;

    private static int bit(MouseEvent event) {
        return 1 << event.getButton();
    }

    /**
     * Whether to keep a press. Even if the picker wants it, it is the program's while another button is down for the
     * program.
     */
    boolean press(MouseEvent event, boolean wanted) {
        clickToKeep = 0;
        if (wanted && programs == 0) {
            ours |= bit(event);
            return true;
        }
        programs |= bit(event);
        return false;
    }

    boolean release(MouseEvent event) {
        if ((ours & bit(event)) != 0) {
            ours &= ~bit(event);
            clickToKeep = event.getButton();
            return true;
        }
        programs &= ~bit(event);
        return false;
    }

    boolean click(MouseEvent event) {
        return clickToKeep == event.getButton();
    }

    boolean isProgramsDrag() {
        return programs != 0;
    }

    boolean isOurDrag() {
        return ours != 0;
    }

    /**
     * Whether to keep a movement or the wheel. Beside what the picker wants, that is the pointer leaving a window that
     * the program has not seen it enter.
     */
    boolean move(Component source, MouseEvent event, boolean wanted) {
        boolean exit = event.getID() == MouseEvent.MOUSE_EXITED;
        boolean keep = wanted || exit && source == entered.get();
        if (!keep) {
            inside = new WeakReference<>(exit ? null : Places.windowOf(source));
            keptExit = null;
            entered.clear();
        } else if (exit) {
            entered.clear();
            keptExit = source == inside.get() ? event : keptExit;
        } else {
            entered = new WeakReference<>(source == inside.get() ? null : source);
            keptExit = source == inside.get() ? null : keptExit;
        }
        return keep;
    }

    /**
     * Tells the program that the pointer has left its window, if that event was kept and still holds: from now on, it
     * gets its events again.
     */
    void settle() {
        MouseEvent exit = keptExit;
        keptExit = null;
        if (exit == null || !exit.getComponent().isShowing()) {
            return;
        }
        PointerInfo pointer = MouseInfo.getPointerInfo();
        if (pointer == null || WindowAt.program(pointer.getLocation()) != exit.getComponent()) {
            settling = true;
            try {
                exit.getComponent().dispatchEvent(exit);
            } finally {
                settling = false;
            }
        }
    }

    /** Whether a kept event is just being passed to the program, and must not be kept again. */
    boolean isSettling() {
        return settling;
    }
}
