package com.vantrel.view;

import java.awt.Toolkit;
import java.awt.event.InputEvent;

/** Texts for tooltips and labels, and the modifier of shortcuts. */
final class Tips {
    private static final int MOST_CHARACTERS = 1200;

    private Tips() {
    }

    /** A text for a tooltip, in several lines if it is long. HTML in it is escaped. */
    static String of(String text) {
        String shown = text.length() > MOST_CHARACTERS ? text.substring(0, MOST_CHARACTERS) + "\u2026" : text;
        boolean wide = shown.length() > 80;
        return "<html>" + (wide ? "<body width='400'>" : "") + escaped(shown).replace("\n", "<br>");
    }

    static String escaped(String text) {
        return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;");
    }

    /** The modifier of the platform's shortcuts, as one of the …_DOWN_MASK constants. */
    @SuppressWarnings("deprecation") // its successor is newer than the Java that this is written for
    static int shortcutMask() {
        boolean meta = Toolkit.getDefaultToolkit().getMenuShortcutKeyMask() == java.awt.Event.META_MASK;
        return meta ? InputEvent.META_DOWN_MASK : InputEvent.CTRL_DOWN_MASK;
    }
}
