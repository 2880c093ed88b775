package com.vantrel.view;

import java.awt.Toolkit;
import java.awt.event.InputEvent;

/** Texts for tooltips and labels, and the key that goes with shortcuts. */
final class Tips {
    private static final int MOST_CHARACTERS = 1200;

    private Tips() {
    }

    /** A text for a tooltip, of several lines if it is long, shown as it stands whatever it holds. */
    static String of(String text) {
        String shown = text.length() > MOST_CHARACTERS ? text.substring(0, MOST_CHARACTERS) + "\u2026" : text;
        boolean wide = shown.length() > 80;
        return "<html>" + (wide ? "<body width='400'>" : "") + escaped(shown).replace("\n", "<br>");
    }

    static String escaped(String text) {
        return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;");
    }

    /** The modifier of the platform's shortcuts, as masks of today have it. */
    @SuppressWarnings("deprecation") // its successor is newer than the Java that this is written for
    static int shortcutMask() {
        boolean meta = Toolkit.getDefaultToolkit().getMenuShortcutKeyMask() == java.awt.Event.META_MASK;
        return meta ? InputEvent.META_DOWN_MASK : InputEvent.CTRL_DOWN_MASK;
    }
}
