package com.vantrel.model;

import java.awt.Component;
import java.awt.Window;
import java.util.ArrayList;
import java.util.List;

/** Which windows the program has. For the event thread. */
public final class ProgramWindows {
    private static final Component[] NONE = new Component[0];

    private ProgramWindows() {
    }

    /** The windows that no other window owns, in the order in which they were made. */
    public static Component[] withoutOwner() {
        List<Component> found = new ArrayList<>();
        for (Window window : Window.getWindows()) {
            // Whom a window belongs to is told by its parent, too, and that can be read whatever the program overrides.
            if (Facts.parent(window) == null && counts(window)) {
                found.add(window);
            }
        }
        return found.toArray(NONE);
    }

    /** Whether a window is one to show: the program's, and there, which a disposed one and a used-up popup are not. */
    static boolean counts(Window window) {
        if (window instanceof Ours || !window.isDisplayable()) {
            return false;
        }
        boolean keptForLater = window.getClass().getName().startsWith("javax.swing.Popup$") && !window.isVisible();
        return !keptForLater;
    }
}
