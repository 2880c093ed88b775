package com.vantrel.pick;

import java.awt.Window;
import java.lang.reflect.Field;

import com.vantrel.hooks.DesktopModule;

/** Whether a modal dialog keeps a window from getting events. The toolkit has no public method that tells. */
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
            return null; // then a component below a modal dialog can be selected in the tree, but not picked
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
