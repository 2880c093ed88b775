package com.vantrel.pick;

import java.awt.Component;
import java.awt.Container;
import java.awt.EventQueue;
import java.awt.Graphics;
import java.awt.Rectangle;
import java.awt.Toolkit;
import java.awt.Window;
import java.awt.event.PaintEvent;

import javax.swing.JRootPane;
import javax.swing.RepaintManager;
import javax.swing.RootPaneContainer;

import com.vantrel.model.Facts;

/** Repaints what the highlight's tint was painted over. For the event thread. */
final class Repaint {
    private Repaint() {
    }

    /** Repaints a part of a window: Swing's components at once, those of the window system soon. */
    static void now(Window window, Rectangle inWindow) {
        JRootPane root = window instanceof RootPaneContainer ? ((RootPaneContainer) window).getRootPane() : null;
        if (root == null) {
            window.repaint(inWindow.x, inWindow.y, inWindow.width, inWindow.height);
        } else {
            root.repaint(inWindow.x - root.getX(), inWindow.y - root.getY(), inWindow.width, inWindow.height);
            RepaintManager.currentManager(root).paintDirtyRegions();
        }
        paintHeavy(window, inWindow);
    }

    /**
     * Heavy components are not painted together with their parents, and repaint() leaves out what the toolkit itself
     * paints of them.
     */
    private static void paintHeavy(Component parent, Rectangle area) {
        for (Component child : parent instanceof Container ? Facts.children(parent) : new Component[0]) {
            Rectangle bounds = Facts.bounds(child);
            Rectangle part = area.intersection(bounds);
            if (part.isEmpty() || child instanceof Window || !child.isShowing()) {
                continue;
            }
            part.translate(-bounds.x, -bounds.y);
            if (!child.isLightweight()) {
                clear(child, part);
                EventQueue queue = Toolkit.getDefaultToolkit().getSystemEventQueue();
                queue.postEvent(new PaintEvent(child, PaintEvent.PAINT, part));
            }
            paintHeavy(child, part);
        }
    }

    /**
     * Gives a part of a heavy component its background, as the window system does before it asks for paint: where a
     * panel or a canvas paints nothing, nobody else would.
     */
    private static void clear(Component heavy, Rectangle part) {
        Graphics graphics = heavy.getGraphics();
        if (graphics != null) {
            graphics.clearRect(part.x, part.y, part.width, part.height);
            graphics.dispose();
        }
    }
}
