package com.vantrel.model;

import java.awt.Component;
import java.awt.Window;
import java.util.Collections;
import java.util.Set;
import java.util.WeakHashMap;

/**
 * Which windows are the inspector's own. They are left out of trees, picks, logs and counts. May be called from any
 * thread.
 */
public final class Ours {
    private static final Set<Window> WINDOWS = Collections.synchronizedSet(
            Collections.newSetFromMap(new WeakHashMap<>()));

    private Ours() {
    }

    /** Marks a window, and with it every window that it owns, now and later. */
    public static void mark(Window window) {
        WINDOWS.add(window);
    }

    /** Whether a component is one of our windows or lies in one. */
    public static boolean isOurs(Component component) {
        // A window's parent is its owner, so that this goes from dialogs and popups to our frame, too.
        for (Component at = component; at != null; at = at.getParent()) {
            if (at instanceof Window && WINDOWS.contains(at)) {
                return true;
            }
        }
        return false;
    }
}
