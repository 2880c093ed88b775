package com.vantrel.view;

import java.awt.Dimension;
import java.awt.Frame;
import java.awt.GraphicsConfiguration;
import java.awt.GraphicsDevice;
import java.awt.GraphicsEnvironment;
import java.awt.Insets;
import java.awt.Rectangle;
import java.awt.Toolkit;
import java.awt.Window;

import com.vantrel.model.Ours;
import com.vantrel.model.Settings;

/** Where the inspector's window appears on the screen: where it was last, or else beside the program. */
public final class Placement {
    private static final String BOUNDS = "window.bounds";
    private static final Dimension SIZE = new Dimension(1000, 650);
    /** How much of a window must be on a screen so that the user can drag it. */
    private static final Dimension GRIP = new Dimension(120, 40);

    private Placement() {
    }

    /** Places a window where it was last, if there is still a screen, or beside the program's. */
    public static void place(Frame frame) {
        Rectangle last = parse(Settings.get(BOUNDS, ""));
        for (GraphicsDevice device : GraphicsEnvironment.getLocalGraphicsEnvironment().getScreenDevices()) {
            Rectangle seen = usable(device.getDefaultConfiguration()).intersection(last);
            if (seen.width >= GRIP.width && seen.height >= GRIP.height) {
                frame.setBounds(last);
                return;
            }
        }
        frame.setBounds(beside(programWindow()));
    }

    private static Rectangle parse(String text) {
        Rectangle bounds = new Rectangle();
        String[] parts = text.split(" ");
        if (parts.length == 4) {
            try {
                bounds.setBounds(Integer.parseInt(parts[0]), Integer.parseInt(parts[1]), Integer.parseInt(parts[2]),
                        Integer.parseInt(parts[3]));
            } catch (NumberFormatException e) {
                bounds.setBounds(0, 0, 0, 0); // somebody has edited the file
            }
        }
        return bounds;
    }

    /** Remembers where a window is, unless it is minimised or maximised. */
    public static void remember(Frame frame) {
        if (frame.getExtendedState() == Frame.NORMAL) {
            Rectangle now = frame.getBounds();
            Settings.set(BOUNDS, now.x + " " + now.y + " " + now.width + " " + now.height);
        }
    }

    private static Window programWindow() {
        Window best = null;
        for (Window window : Window.getWindows()) {
            if (!Ours.isOurs(window) && window.isShowing() && (best == null || window.isActive())) {
                best = window;
            }
        }
        return best;
    }

    /** Right of a window where there is room, else left of it, else in the corner of its screen. */
    private static Rectangle beside(Window window) {
        GraphicsConfiguration screen = window == null
                ? GraphicsEnvironment.getLocalGraphicsEnvironment().getDefaultScreenDevice().getDefaultConfiguration()
                : window.getGraphicsConfiguration();
        Rectangle room = usable(screen);
        int width = Math.min(SIZE.width, room.width);
        int height = Math.min(SIZE.height, room.height);
        Rectangle program = window == null ? new Rectangle() : window.getBounds();
        int right = room.x + room.width - width;
        int x = right;
        if (program.x + program.width <= right) {
            x = program.x + program.width;
        } else if (program.x - width >= room.x) {
            x = program.x - width;
        }
        int y = Math.max(room.y, Math.min(program.y, room.y + room.height - height));
        return new Rectangle(x, x == right ? room.y + room.height - height : y, width, height);
    }

    /** A screen without its panels and docks. */
    private static Rectangle usable(GraphicsConfiguration screen) {
        Rectangle bounds = screen.getBounds();
        Insets insets = Toolkit.getDefaultToolkit().getScreenInsets(screen);
        return new Rectangle(bounds.x + insets.left, bounds.y + insets.top, bounds.width - insets.left - insets.right,
                bounds.height - insets.top - insets.bottom);
    }
}
