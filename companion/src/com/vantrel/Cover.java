package com.vantrel;

import java.awt.KeyboardFocusManager;
import java.awt.Rectangle;
import java.awt.Window;

import javax.swing.Timer;

import com.vantrel.model.Ours;

/**
 * Guesses whether a window of the program covers the inspector's. The toolkit does not tell which window lies over
 * which. But when the active window is the program's and the whole inspector lies within its bounds, as with a window
 * in full screen, the inspector is taken to be below it. For the event thread.
 */
final class Cover {
    /**
     * How long the window manager takes to bring a clicked window to the front: usually, and when the machine is busy.
     */
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
     * To be called when the user has picked a component by clicking a window of the program. If that click brings the
     * window to the front, over ours, brings ours back.
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
