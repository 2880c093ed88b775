package tour;

import java.awt.AWTException;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.Robot;
import java.awt.Toolkit;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.awt.image.BufferedImage;

/** Uses the display's keyboard and mouse as a person does: programs get its input from the window system. */
final class Hand {
    private static final int MILLIS_BETWEEN = 30;
    private static final int STEPS = 12;

    private final Robot robot;
    private Point at = new Point();

    Hand() throws AWTException {
        robot = new Robot();
        robot.setAutoDelay(MILLIS_BETWEEN);
    }

    void down(int key) {
        robot.keyPress(key);
    }

    void up(int key) {
        robot.keyRelease(key);
    }

    /** Presses keys in turn, and releases them in the opposite order. */
    void press(int... keys) {
        for (int key : keys) {
            down(key);
        }
        for (int at = keys.length - 1; at >= 0; at--) {
            up(keys[at]);
        }
    }

    /** Types letters, digits and spaces. */
    void type(String text) {
        for (char c : text.toCharArray()) {
            int key = KeyEvent.getExtendedKeyCodeForChar(c);
            if (Character.isUpperCase(c)) {
                press(KeyEvent.VK_SHIFT, key);
            } else {
                press(key);
            }
        }
    }

    /** Moves the pointer to the middle of a place on the screen, in steps, as a hand does. */
    void pointAt(Rectangle place) {
        Point from = at;
        at = new Point((int) place.getCenterX(), (int) place.getCenterY());
        for (int step = 1; step <= STEPS; step++) {
            robot.mouseMove(from.x + (at.x - from.x) * step / STEPS, from.y + (at.y - from.y) * step / STEPS);
        }
    }

    void click() {
        robot.mousePress(InputEvent.BUTTON1_DOWN_MASK);
        robot.mouseRelease(InputEvent.BUTTON1_DOWN_MASK);
    }

    void click(Rectangle place) {
        pointAt(place);
        click();
    }

    /** What is on the screen. */
    BufferedImage picture() {
        return robot.createScreenCapture(new Rectangle(Toolkit.getDefaultToolkit().getScreenSize()));
    }
}
