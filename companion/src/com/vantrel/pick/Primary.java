package com.vantrel.pick;

import java.awt.Toolkit;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;

/** The modifier that the platform's menu shortcuts use: Control, or Command on a Mac. */
final class Primary {
    private final boolean isMeta;

    Primary() {
        @SuppressWarnings("deprecation") // its successor is newer than Java 8
        int mask = Toolkit.getDefaultToolkit().getMenuShortcutKeyMask();
        isMeta = mask == InputEvent.META_MASK;
    }

    /** Whether a key is this modifier's. */
    boolean is(int keyCode) {
        return keyCode == (isMeta ? KeyEvent.VK_META : KeyEvent.VK_CONTROL);
    }

    /** Whether it was held alone when an event occurred, and not together with Alt. */
    boolean isDown(InputEvent event) {
        return (isMeta ? event.isMetaDown() : event.isControlDown()) && !event.isAltDown() && !event.isAltGraphDown();
    }
}
