package com.vantrel.command;

import java.awt.Component;
import java.awt.Container;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Insets;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.Window;
import java.awt.geom.AffineTransform;
import java.awt.image.BufferedImage;
import java.io.ByteArrayOutputStream;
import java.io.IOException;

import javax.imageio.ImageIO;
import javax.imageio.stream.MemoryCacheImageOutputStream;
import javax.swing.SwingUtilities;

import com.vantrel.model.Facts;
import com.vantrel.model.ProgramWindows;

/**
 * Pictures of components as they are on the screen, in its pixels: painted once more by the program and not taken from
 * the screen, so that what lies in front of a window does not matter.
 */
final class Pictures {
    private static final Component[] NONE = new Component[0];

    private Pictures() {
    }

    /** @param path empty for the active window, or else the first one that shows */
    static Answer answer(String path) throws Refusal {
        Component component = path.isEmpty() ? window() : Selected.component(path);
        BufferedImage image = EventThread.ask(() -> image(component));
        ByteArrayOutputStream bytes = new ByteArrayOutputStream();
        // Not into a stream that the library makes itself: it would make a temporary file.
        try (MemoryCacheImageOutputStream stream = new MemoryCacheImageOutputStream(bytes)) {
            ImageIO.write(image, "png", stream);
        } catch (IOException e) {
            throw EventThread.failure(e);
        }
        return Answer.of(bytes.toByteArray());
    }

    private static Component window() throws Refusal {
        Component found = !About.hasWindows() ? null : EventThread.ask(() -> {
            Component first = null;
            for (Component window : ProgramWindows.withoutOwner()) {
                first = first == null && window.isShowing() ? window : first;
                for (Component each : Facts.children(window)) {
                    if (each instanceof Window && each.isShowing() && ((Window) each).isActive()) {
                        return each;
                    }
                }
                if (((Window) window).isActive()) {
                    return window;
                }
            }
            return first;
        });
        if (found == null) {
            throw new Refusal(Answer.NOTHING, "the program shows no window");
        }
        return found;
    }

    private static BufferedImage image(Component component) throws Refusal {
        Window window = component.isShowing() ? SwingUtilities.getWindowAncestor(component) : null;
        if (component instanceof Window) {
            window = (Window) component;
        }
        // What is not opaque shows what is below it.
        Component painter = window == null ? component : window;
        Rectangle area = area(component, painter);
        if (area.isEmpty()) {
            throw new Refusal(Answer.NOTHING, "there is nothing to be seen of that component: it has no size");
        }
        AffineTransform toPixels = painter.getGraphicsConfiguration() == null
                ? new AffineTransform()
                : painter.getGraphicsConfiguration().getDefaultTransform();
        int width = (int) Math.ceil(area.width * toPixels.getScaleX());
        int height = (int) Math.ceil(area.height * toPixels.getScaleY());
        // Without transparency, as the screen is: text is smoothed in another way where it may be transparent.
        BufferedImage image = new BufferedImage(width, height, BufferedImage.TYPE_INT_RGB);
        Graphics2D graphics = image.createGraphics();
        try {
            graphics.scale(toPixels.getScaleX(), toPixels.getScaleY());
            graphics.translate(-area.x, -area.y);
            graphics.clipRect(area.x, area.y, area.width, area.height);
            graphics.setColor(painter.getBackground());
            graphics.fillRect(area.x, area.y, area.width, area.height);
            graphics.setColor(painter.getForeground());
            graphics.setFont(painter.getFont());
            painter.paint(graphics);
            paintPeers(painter, graphics);
        } finally {
            graphics.dispose();
        }
        return image;
    }

    /** A component's rectangle in what paints it; a window's without the frame that the window manager paints. */
    private static Rectangle area(Component component, Component painter) {
        if (component instanceof Window) {
            Insets frame = ((Window) component).getInsets();
            return new Rectangle(frame.left, frame.top, component.getWidth() - frame.left - frame.right,
                    component.getHeight() - frame.top - frame.bottom);
        }
        Point corner = SwingUtilities.convertPoint(component, 0, 0, painter);
        return new Rectangle(corner.x, corner.y, component.getWidth(), component.getHeight());
    }

    /** The AWT's widgets, which are painted by nobody but themselves. */
    private static void paintPeers(Component component, Graphics graphics) {
        Component[] children = component instanceof Container ? ((Container) component).getComponents() : NONE;
        for (int i = children.length - 1; i >= 0; i--) {
            Component child = children[i];
            if (child.isVisible()) {
                Graphics inChild = graphics.create(child.getX(), child.getY(), child.getWidth(), child.getHeight());
                if (child.isLightweight()) {
                    paintPeers(child, inChild);
                } else {
                    child.printAll(inChild);
                }
                inChild.dispose();
            }
        }
    }
}
