package com.vantrel.model;

import java.awt.Color;
import java.awt.Component;
import java.awt.Cursor;
import java.awt.Dimension;
import java.awt.Font;
import java.awt.Insets;
import java.awt.Rectangle;
import java.io.File;
import java.lang.reflect.Array;
import java.net.URI;
import java.net.URL;
import java.util.Arrays;
import java.util.Collection;
import java.util.Date;
import java.util.HashSet;
import java.util.Locale;
import java.util.Map;
import java.util.Set;

import javax.swing.Icon;
import javax.swing.ImageIcon;
import javax.swing.KeyStroke;
import javax.swing.border.Border;

/**
 * Values of any kind as one line of text. Calls no method that a program may have written, for even a {@code toString}
 * may do anything: of an object of the program's, only the class is told. For the event thread.
 */
public final class Values {
    /** Longer texts are cut: nobody reads them in a cell, and measuring them takes time with every paint. */
    static final int LONGEST = 1000;

    private static final int MOST_ELEMENTS = 16;

    /** Classes of the JDK whose {@code toString} tells what people want to know, and calls no other class. */
    private static final Set<Class<?>> SELF_TOLD = new HashSet<>(Arrays.<Class<?>>asList(Boolean.class, Byte.class,
            Short.class, Integer.class, Long.class, Float.class, Double.class, Character.class, Locale.class,
            File.class, URI.class, URL.class, Date.class, StringBuilder.class));

    private Values() {
    }

    static String text(Object value) {
        if (value == null) {
            return "null";
        }
        Class<?> type = value.getClass();
        if (value instanceof String) {
            return cut((String) value);
        }
        if (value instanceof Component) {
            return Code.describe((Component) value);
        }
        if (value instanceof Enum) {
            return ((Enum<?>) value).name();
        }
        if (value instanceof Class) {
            return ((Class<?>) value).getName();
        }
        if (!Code.isToolkit(type)) {
            return object(value);
        }
        return ofToolkit(value, type);
    }

    private static String ofToolkit(Object value, Class<?> type) {
        if (value instanceof Color) {
            return Formats.write((Color) value);
        }
        if (value instanceof Font) {
            return Formats.write((Font) value);
        }
        if (value instanceof Insets) {
            return Formats.write((Insets) value);
        }
        if (value instanceof Dimension) {
            return Formats.write((Dimension) value);
        }
        if (type == Rectangle.class) { // a subclass may be something else, as a caret is
            return Formats.write((Rectangle) value);
        }
        if (value instanceof Border) {
            return Borders.write((Border) value);
        }
        if (value instanceof KeyStroke) {
            return Keys.text((KeyStroke) value);
        }
        if (value instanceof Icon) {
            return icon((Icon) value);
        }
        if (type.isArray()) {
            return array(value);
        }
        if (type.getName().startsWith("java.util.") && (value instanceof Collection || value instanceof Map)) {
            int size = value instanceof Map ? ((Map<?, ?>) value).size() : ((Collection<?>) value).size();
            return Code.shortName(type) + ", " + count(size, "element");
        }
        if (value instanceof Cursor) {
            return Formats.of(Cursor.class).write(value);
        }
        Format format = Formats.of(type);
        if (format != null) {
            return format.write(value);
        }
        return SELF_TOLD.contains(type) ? cut(value.toString()) : Code.shortName(type);
    }

    /** A number and what it counts. */
    static String count(int number, String what) {
        return number + " " + what + (number == 1 ? "" : "s");
    }

    private static String icon(Icon icon) {
        String name = Code.shortName(icon.getClass());
        // An animated or compound icon may ask icons of the program's for its size.
        return icon instanceof ImageIcon ? name + " " + Formats.size(icon.getIconWidth(), icon.getIconHeight()) : name;
    }

    private static String array(Object array) {
        int length = Array.getLength(array);
        Class<?> element = array.getClass().getComponentType();
        StringBuilder text = new StringBuilder(Code.shortName(element)).append('[').append(length).append(']');
        for (int i = 0; i < length && i < MOST_ELEMENTS; i++) {
            text.append(i == 0 ? "  " : ", ").append(text(Array.get(array, i)));
        }
        return cut(text + (length > MOST_ELEMENTS ? ", \u2026" : ""));
    }

    /** An object's class, and a number to tell it from others of its class. */
    static String object(Object value) {
        return Code.shortName(value.getClass()) + "@" + Integer.toHexString(System.identityHashCode(value));
    }

    static String cut(String text) {
        return text.length() <= LONGEST ? text : text.substring(0, LONGEST) + "\u2026";
    }

    /** What was thrown, in one line; asks an exception of the program's for nothing but its class. */
    public static String error(Throwable thrown) {
        String name = Code.shortName(thrown.getClass());
        if (Code.overrider(thrown.getClass(), "getMessage") != null) {
            return name;
        }
        String message = thrown.getMessage();
        return message == null || message.isEmpty() ? name : name + ": " + cut(message).replace('\n', ' ');
    }
}
