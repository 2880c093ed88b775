package com.vantrel.model;

import java.awt.Dialog;
import java.awt.Window;
import java.lang.reflect.Field;

/** Which modal dialog keeps a window from getting events: the toolkit has no public method to tell. */
public final class Modality {
    private static final Field BLOCKER = Members.field(Window.class, "modalBlocker");

    private Modality() {
    }

    /** The dialog; null for none, or where the toolkit's module is closed to us. */
    public static Dialog blocker(Window window) {
        try {
            return BLOCKER == null ? null : (Dialog) BLOCKER.get(window);
        } catch (IllegalAccessException e) {
            return null;
        }
    }
}
