package com.vantrel.pick;

import java.awt.Dialog;
import java.awt.Frame;
import java.awt.KeyboardFocusManager;
import java.awt.Point;
import java.awt.Window;

import com.vantrel.model.Facts;
import com.vantrel.model.Ours;

/**
 * Guesses which window is at a place of the screen. The toolkit does not tell which of several is in front, so popups
 * are taken to be in front of all, then the active window, then other dialogs.
 */
final class WindowAt {
    private WindowAt() {
    }

    /** The program's window at a place; null for none. */
    static Window program(Point onScreen) {
        Window best = foremost(onScreen);
        return best == null || Ours.isOurs(best) ? null : best;
    }

    private static Window foremost(Point onScreen) {
        Window best = null;
        int bestRank = -1;
        for (Window window : Window.getWindows()) {
            if (window instanceof Mark || !window.isShowing() || !Facts.bounds(window).contains(onScreen)) {
                continue;
            }
            int rank = rank(window);
            if (rank >= bestRank) {
                best = window;
                bestRank = rank;
            }
        }
        return best;
    }

    /** Whether the window at a place is one of the inspector's own. */
    static boolean isOurs(Point onScreen) {
        Window best = foremost(onScreen);
        return best != null && Ours.isOurs(best);
    }

    private static int rank(Window window) {
        if (!(window instanceof Frame) && !(window instanceof Dialog)) {
            return 3;
        }
        Window active = KeyboardFocusManager.getCurrentKeyboardFocusManager().getActiveWindow();
        return window == active ? 2 : window instanceof Dialog ? 1 : 0;
    }
}
