package com.vantrel.model;

import java.awt.Component;

/**
 * Marks the inspector's own windows. They, and what they own, are left out of trees, picks, logs and counts. It is a
 * type, and not a set of windows, because a set would call methods of the program's windows that it may have
 * overridden.
 */
public interface Ours {
    /** Whether a component is one of our windows or lies in one. May be called from any thread. */
    static boolean isOurs(Component component) {
        // A window's parent is its owner, so that this leads from our dialogs and popups to our frame.
        for (Component at = component; at != null; at = Facts.parent(at)) {
            if (at instanceof Ours) {
                return true;
            }
        }
        return false;
    }
}
