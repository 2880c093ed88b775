package com.vantrel.pick;

import java.awt.Component;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Rectangle;
import java.awt.Window;
import java.lang.ref.WeakReference;
import java.util.function.BiConsumer;

import javax.swing.Timer;

/**
 * The colour over a highlighted component. It is painted on the component's own graphics, and removed by having the
 * program repaint that place. When the component repaints by itself the tint is lost, and not painted again: the box is
 * enough.
 */
final class Tint {
    /** Gives the program time for repaints that it already has to do, which would paint over the tint. */
    private static final int MILLIS_TO_SETTLE = 40;

    private final BiConsumer<Component, Graphics2D> painter;
    private final Timer later = new Timer(MILLIS_TO_SETTLE, event -> paint());
    private WeakReference<Component> component = new WeakReference<>(null);
    private Rectangle cell;
    private WeakReference<Window> window = new WeakReference<>(null);
    private Rectangle inWindow;
    private boolean painted;

    /** @param painter paints over the whole of a component */
    Tint(BiConsumer<Component, Graphics2D> painter) {
        this.painter = painter;
        later.setRepeats(false);
    }

    /**
     * Puts the tint over a component or a part of it, and removes it from the last one.
     *
     * @param part  in the component; null for all of it
     * @param place its visible part, in its window
     */
    void put(Component target, Rectangle part, Window targetsWindow, Rectangle place) {
        remove();
        component = new WeakReference<>(target);
        cell = part;
        window = new WeakReference<>(targetsWindow);
        inWindow = place;
        later.restart();
    }

    void remove() {
        later.stop();
        Window last = window.get();
        if (painted && last != null && last.isShowing()) {
            Repaint.now(last, inWindow);
        }
        painted = false;
        component.clear();
    }

    private void paint() {
        Component target = component.get();
        Graphics graphics = target == null || !target.isShowing() ? null : target.getGraphics();
        if (graphics instanceof Graphics2D) {
            painted = true;
            if (cell != null) {
                graphics.clipRect(cell.x, cell.y, cell.width, cell.height);
            }
            painter.accept(target, (Graphics2D) graphics);
            graphics.dispose();
        }
    }
}
