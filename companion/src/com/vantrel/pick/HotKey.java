package com.vantrel.pick;

import java.awt.AWTEvent;
import java.awt.Component;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.util.Locale;

import com.vantrel.hooks.EventFilter;

/**
 * The hot key among the program's own events. Usually the window system gives the key to the agent; but while the
 * program has the keyboard to itself, as with an open popup menu, the program gets it instead. This filter takes it out
 * of the program's events then, so that the program sees neither press nor release. A press that comes both ways counts
 * once.
 */
public final class HotKey implements EventFilter {
    /** How far apart the two reports of one press may be. Nobody presses a key that fast twice. */
    private static final long SAME_PRESS_MILLIS = 50;
    /**
     * A held key repeats sooner than this. What comes later is another press, even if no release was seen in between.
     */
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
    /**
     * When the last press came as an event, and when one came through the agent; in milliseconds, as events have it.
     */
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

    /**
     * Notes a press that came through the agent. Returns whether it is a new one, which has not come as an event
     * already.
     */
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

    /** Leaves the key undefined where the AWT does not know it or one of its modifiers. */
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
