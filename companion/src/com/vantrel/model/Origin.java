package com.vantrel.model;

import java.awt.Color;
import java.awt.Component;
import java.awt.Cursor;
import java.awt.Font;
import java.awt.Insets;
import java.util.HashMap;
import java.util.Locale;
import java.util.Map;

import javax.swing.Icon;
import javax.swing.JComponent;
import javax.swing.UIDefaults;
import javax.swing.UIManager;
import javax.swing.border.Border;
import javax.swing.plaf.UIResource;

/**
 * Where a property's value comes from: the component itself, its parent, or the look and feel, and then which of its
 * defaults. Says nothing where that cannot be known. For the event thread.
 */
final class Origin {
    static final String OWN = "own";
    static final String LOOK_AND_FEEL = "look and feel";

    /** The properties whose default has another name, and that name. */
    private static final Map<String, String> CALLED = new HashMap<>();

    static {
        CALLED.put("caretColor", "caretForeground");
        CALLED.put("selectedTextColor", "selectionForeground");
        CALLED.put("selectionColor", "selectionBackground");
        CALLED.put("disabledTextColor", "inactiveForeground");
    }

    private Origin() {
    }

    /**
     * Where a component has a value from.
     *
     * @param property the name of a property whose getter is the toolkit's
     * @return a few words; empty where nothing is known
     */
    static String of(Component component, String property, Object value) {
        Boolean set = isSet(component, property);
        if (set != null && !set) {
            return inheritedFrom(component, property);
        }
        if (value instanceof UIResource) {
            String key = component instanceof JComponent ? key((JComponent) component, property, value) : null;
            return key == null ? LOOK_AND_FEEL : key;
        }
        return value != null && (set != null || isLook(value)) ? OWN : "";
    }

    /**
     * Whether a component has a value of its own for a property that it otherwise inherits from its parent; null for
     * all other properties.
     */
    static Boolean isSet(Component component, String property) {
        switch (property) {
            case "background":
                return component.isBackgroundSet();
            case "foreground":
                return component.isForegroundSet();
            case "font":
                return component.isFontSet();
            case "cursor":
                return component.isCursorSet();
            default:
                return null;
        }
    }

    private static boolean isLook(Object value) {
        return value instanceof Color || value instanceof Font || value instanceof Border || value instanceof Icon
                || value instanceof Insets || value instanceof Cursor;
    }

    private static String inheritedFrom(Component component, String property) {
        for (Component at = component.getParent(); at != null; at = at.getParent()) {
            if (Boolean.TRUE.equals(isSet(at, property))) {
                return "from " + Code.describe(at);
            }
        }
        return "default";
    }

    /** The key of the look and feel's defaults that a value comes from; null if none has it. */
    private static String key(JComponent component, String property, Object value) {
        if (Code.overrider(component.getClass(), "getUIClassID") != null) {
            return null;
        }
        String prefix = component.getUIClassID().replaceAll("UI$", "") + ".";
        String called = prefix + CALLED.getOrDefault(property, property);
        UIDefaults defaults = UIManager.getDefaults();
        if (value.equals(defaults.get(called))) {
            return called;
        }
        // A background may come from "inactiveBackground": looks for a key that ends alike and has this very object.
        String end = property.toLowerCase(Locale.ROOT);
        for (Object key : defaults.keySet()) {
            if (key instanceof String && ((String) key).startsWith(prefix)
                    && ((String) key).toLowerCase(Locale.ROOT).endsWith(end) && defaults.get(key) == value) {
                return (String) key;
            }
        }
        return null;
    }
}
