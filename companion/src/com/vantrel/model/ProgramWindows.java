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
            // A window's parent is its owner. Unlike getOwner(), it can be read whatever the program overrides.
            if (Facts.parent(window) == null && counts(window)) {
                found.add(window);
            }
        }
        return found.toArray(NONE);
    }

    /** Whether a window is the program's and in use: neither disposed of nor a popup that is kept to be used again. */
    static boolean counts(Window window) {
        if (window instanceof Ours || !window.isDisplayable()) {
            return false;
        }
        boolean keptForLater = window.getClass().getName().startsWith("javax.swing.Popup$") && !window.isVisible();
        return !keptForLater;
    }
}
