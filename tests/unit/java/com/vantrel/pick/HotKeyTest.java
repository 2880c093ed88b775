package com.vantrel.pick;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;

import javax.swing.JLabel;

import org.junit.Test;

public class HotKeyTest {
    private static final int CONTROL = InputEvent.CTRL_DOWN_MASK;
    private static final int SHIFT = InputEvent.SHIFT_DOWN_MASK;

    private final JLabel label = new JLabel();
    private int toggles;
    /** When events occur. */
    private long now = System.currentTimeMillis() - 100_000;

    private boolean press(HotKey key, int code, int modifiers) {
        return key.keep(label, new KeyEvent(label, KeyEvent.KEY_PRESSED, now, modifiers, code, (char) 0));
    }

    private boolean release(HotKey key, int code, int modifiers) {
        return key.keep(label, new KeyEvent(label, KeyEvent.KEY_RELEASED, now, modifiers, code, (char) 0));
    }

    private HotKey named(String name) {
        toggles = 0;
        return new HotKey(() -> toggles++, name);
    }

    @Test
    public void isTheKeyThatIsNamedAndNoOther() {
        Object[][] cases = {
                {null, KeyEvent.VK_F12, CONTROL, true},
                {"", KeyEvent.VK_F12, CONTROL, true},
                {null, KeyEvent.VK_F12, 0, false},
                {null, KeyEvent.VK_F12, CONTROL | SHIFT, false},
                {null, KeyEvent.VK_F11, CONTROL, false},
                {"Control+Shift+F11", KeyEvent.VK_F11, CONTROL | SHIFT, true},
                {"ctrl+shift+F11", KeyEvent.VK_F11, CONTROL | SHIFT, true},
                {"Control+Shift+F11", KeyEvent.VK_F12, CONTROL, false},
                {"Alt+i", KeyEvent.VK_I, InputEvent.ALT_DOWN_MASK, true},
                {"Pause", KeyEvent.VK_PAUSE, 0, true},
                {"Super+F12", KeyEvent.VK_F12, 0, false},
                {"no such key", KeyEvent.VK_F12, CONTROL, false},
        };
        for (Object[] c : cases) {
            HotKey key = named((String) c[0]);
            String what = c[0] + ": " + c[1] + " " + c[2];
            assertEquals(what, c[3], press(key, (Integer) c[1], (Integer) c[2]));
            assertEquals(what, c[3], release(key, (Integer) c[1], (Integer) c[2]));
            assertEquals(what, (Boolean) c[3] ? 1 : 0, toggles);
        }
    }

    @Test
    public void aPressCountsOnceHoweverLongItIsHeldAndHoweverItIsSeen() {
        HotKey key = named(null);
        for (int repetition = 0; repetition < 50; repetition++) {
            assertTrue(press(key, KeyEvent.VK_F12, CONTROL));
            now += 660;
        }
        assertTrue("Control may be gone by then", release(key, KeyEvent.VK_F12, 0));
        assertFalse("the program's own press", release(key, KeyEvent.VK_F12, 0));
        assertEquals(1, toggles);
        press(key, KeyEvent.VK_F12, CONTROL);
        release(key, KeyEvent.VK_F12, CONTROL);
        assertEquals(2, toggles);

        assertTrue(key.isNewCall());
        now = System.currentTimeMillis();
        assertTrue(press(key, KeyEvent.VK_F12, CONTROL));
        release(key, KeyEvent.VK_F12, CONTROL);
        assertEquals("the agent told of it first", 2, toggles);
        now += 1_000;
        press(key, KeyEvent.VK_F12, CONTROL);
        release(key, KeyEvent.VK_F12, CONTROL);
        assertEquals(3, toggles);

        HotKey other = named(null);
        now = System.currentTimeMillis();
        press(other, KeyEvent.VK_F12, CONTROL);
        assertFalse("the event came first", other.isNewCall());
    }
}
