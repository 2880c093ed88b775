package com.vantrel.pick;

import java.awt.AWTEvent;
import java.awt.Component;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.util.Locale;

import com.vantrel.hooks.EventFilter;

/**
 * The hot key as an event of the program's. The agent gets the key from the window system, which gives it to the
 * program instead while that has the keyboard to itself, as with an open popup menu. A press that comes both ways
 * counts once, and the program sees neither press nor release.
 */
public final class HotKey implements EventFilter {
    /** How far apart the two tellings of one press may be. Nobody presses a key that often. */
    private static final long SAME_PRESS_MILLIS = 50;
    /** Longer than any keyboard waits before a held key repeats; every repetition counts anew. */
    private static final long REPEAT_MILLIS = 2_000;
    private static final int MODIFIERS = InputEvent.SHIFT_DOWN_MASK | InputEvent.CTRL_DOWN_MASK
            | InputEvent.ALT_DOWN_MASK | InputEvent.META_DOWN_MASK;

    private final Runnable toggle;
    private final String named;
    private boolean parsed;
    private int keyCode = KeyEvent.VK_UNDEFINED;
    private int modifiers;
    private boolean isDown;
    private long lastPress;
    /** When the last press was, of those that came as an event and through the agent; as events tell the time. */
    private volatile long seenAt;
    private volatile long calledAt;

    /**
     * @param toggle run for every press
     * @param named  the key, as the variable VANTREL_HOT_KEY names it; null for the usual one
     */
    public HotKey(Runnable toggle, String named) {
        this.toggle = toggle;
        this.named = named;
    }

    /** Takes note of a press that came through the agent; whether it is one that has not been seen here. */
    public boolean isNewCall() {
        calledAt = System.currentTimeMillis();
        return Math.abs(calledAt - seenAt) >= SAME_PRESS_MILLIS;
    }

    @Override
    public boolean keep(Component source, AWTEvent event) {
        int id = event.getID();
        if (id != KeyEvent.KEY_PRESSED && id != KeyEvent.KEY_RELEASED) {
            return false;
        }
        KeyEvent key = (KeyEvent) event;
        if (!parsed) {
            parsed = true;
            parse(named == null || named.isEmpty() ? defaultName() : named);
        }
        if (keyCode == KeyEvent.VK_UNDEFINED || key.getKeyCode() != keyCode) {
            return false;
        }
        if (id == KeyEvent.KEY_RELEASED) {
            boolean kept = isDown;
            isDown = false;
            return kept;
        }
        if ((key.getModifiersEx() & MODIFIERS) != modifiers) {
            return false;
        }
        boolean repeats = isDown && key.getWhen() - lastPress < REPEAT_MILLIS;
        isDown = true;
        lastPress = key.getWhen();
        if (!repeats && Math.abs(key.getWhen() - calledAt) >= SAME_PRESS_MILLIS) {
            seenAt = key.getWhen();
            toggle.run();
        }
        return true;
    }

    private static String defaultName() {
        return System.getProperty("os.name", "").startsWith("Mac") ? "Meta+F12" : "Control+F12";
    }

    /** Leaves the key undefined where the AWT has no name for it, and is not told of its modifiers. */
    private void parse(String text) {
        String[] words = text.split("\\+");
        for (int i = 0; i < words.length - 1; i++) {
            switch (words[i].toLowerCase(Locale.ROOT)) {
                case "shift":
                    modifiers |= InputEvent.SHIFT_DOWN_MASK;
                    break;
                case "control":
                case "ctrl":
                    modifiers |= InputEvent.CTRL_DOWN_MASK;
                    break;
                case "alt":
                    modifiers |= InputEvent.ALT_DOWN_MASK;
                    break;
                case "meta":
                    modifiers |= InputEvent.META_DOWN_MASK;
                    break;
                default:
                    return;
            }
        }
        try {
            String name = words[words.length - 1].toUpperCase(Locale.ROOT);
            keyCode = KeyEvent.class.getField("VK_" + name).getInt(null);
        } catch (ReflectiveOperationException e) {
            keyCode = KeyEvent.VK_UNDEFINED;
        }
    }
}
