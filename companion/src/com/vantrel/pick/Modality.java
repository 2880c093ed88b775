package com.vantrel.pick;

import java.awt.Window;
import java.lang.reflect.Field;

import com.vantrel.hooks.DesktopModule;

/** Whether a modal dialog keeps a window from getting events, which the toolkit has no public method to tell. */
final class Modality {
    private static final Field BLOCKER = find();

    private Modality() {
    }

    private static Field find() {
        try {
            DesktopModule.open("java.awt");
            Field field = Window.class.getDeclaredField("modalBlocker");
            field.setAccessible(true);
            return field;
        } catch (NoSuchFieldException | RuntimeException e) {
            return null; // picking behind modal dialogs is then for the tree to do
        }
    }

    static boolean isBlocked(Window window) {
        try {
            return BLOCKER != null && BLOCKER.get(window) != null;
        } catch (IllegalAccessException e) {
            return false;
        }
    }
}
