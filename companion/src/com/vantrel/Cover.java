package com.vantrel;

import java.awt.KeyboardFocusManager;
import java.awt.Rectangle;
import java.awt.Window;

import javax.swing.Timer;

import com.vantrel.model.Ours;

/**
 * Whether the inspector's window can be seen, as far as that is known here: the toolkit tells nobody which window lies
 * over which. Where the user works with a window of the program that has room for all of the inspector, as one in full
 * screen has, the inspector is taken to be below it. For the event thread.
 */
final class Cover {
    /** Until the window manager has brought to the front what was clicked: as a rule, and where the machine is busy. */
    private static final int MILLIS_TO_RAISE = 150;
    private static final int MILLIS_AT_MOST = 1000;

    private final Window ours;
    private final Timer looks = new Timer(MILLIS_TO_RAISE, event -> look());
    private long until;

    Cover(Window ours) {
        this.ours = ours;
    }

    /** Whether the window that the user works with covers one of ours. */
    static boolean liesOver(Window ours) {
        Window active = KeyboardFocusManager.getCurrentKeyboardFocusManager().getActiveWindow();
        if (active == null || Ours.isOurs(active)) {
            return false;
        }
        Rectangle seen = ours.getBounds().intersection(ours.getGraphicsConfiguration().getBounds());
        return active.getBounds().contains(seen);
    }

    /**
     * The program's window has been clicked for our sake: brings ours back to the front where that click has put the
     * other one over it.
     */
    void takeOff() {
        until = System.currentTimeMillis() + MILLIS_AT_MOST;
        looks.start();
    }

    void stop() {
        looks.stop();
    }

    private void look() {
        if (liesOver(ours)) {
            stop();
            ours.toFront();
        } else if (System.currentTimeMillis() > until) {
            stop();
        }
    }
}
