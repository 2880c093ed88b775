package com.vantrel.view;

import java.awt.Toolkit;
import java.awt.datatransfer.StringSelection;

/** The clipboard. */
final class Clip {
    private Clip() {
    }

    /** Puts a text on the clipboard. Returns whether that worked: another program may hold it. */
    static boolean copy(String text) {
        try {
            Toolkit.getDefaultToolkit().getSystemClipboard().setContents(new StringSelection(text), null);
            return true;
        } catch (IllegalStateException | SecurityException e) {
            return false;
        }
    }
}
