package com.vantrel.pick;

import java.awt.Component;
import java.awt.MouseInfo;
import java.awt.PointerInfo;
import java.awt.Window;
import java.awt.event.MouseEvent;
import java.lang.ref.WeakReference;

/**
 * Which mouse events are kept from the program. What belongs together is kept together: a press, its drag, its release
 * and its click. And the program is told at the end that the pointer has left, if it has left unseen.
 */
final class KeptMouse {
    /** Bits of buttons that are down: pressed for us, pressed for the program. */
    private int ours;
    private int programs;
    private int clickToKeep;
    /** The window in which the program believes the pointer to be, and how it left that. */
    private WeakReference<Window> inside = new WeakReference<>(null);
    private MouseEvent keptExit;
    /** The window that the pointer has entered without the program's knowledge. */
    private WeakReference<Component> entered = new WeakReference<>(null);
    private boolean settling;

    private static int bit(MouseEvent event) {
        return 1 << event.getButton();
    }

    /** Whether to keep a press, if the picker would have it. */
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
     * Whether to keep a movement, or the wheel, if the picker would or would not have it: the program is not told that
     * the pointer has left where it has not seen it.
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

    /** Lets the program know where the pointer is, now that its events reach it again. */
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

    /** Whether an event that was kept is just being given to the program. */
    boolean isSettling() {
        return settling;
    }
}
