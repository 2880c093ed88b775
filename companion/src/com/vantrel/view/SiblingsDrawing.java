package com.vantrel.view;

import java.awt.Component;
import java.awt.Dimension;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;
import java.awt.geom.Rectangle2D;
import java.util.Collections;
import java.util.List;
import java.util.function.Consumer;

import javax.swing.JComponent;

import com.vantrel.model.Boxes;
import com.vantrel.model.Code;

/**
 * A drawing to scale of the selected component and its siblings in their parent; a click on one selects it. Belongs to
 * the event thread.
 */
final class SiblingsDrawing extends JComponent {
    private static final long serialVersionUID = 1L;

    private final transient Consumer<Component> select;
    private transient Boxes boxes;

    SiblingsDrawing(Consumer<Component> select) {
        this.select = select;
        setToolTipText("");
        addMouseListener(new MouseAdapter() {
            @Override
            public void mousePressed(MouseEvent event) {
                Component at = componentAt(event.getPoint());
                if (at != null) {
                    SiblingsDrawing.this.select.accept(at);
                }
            }
        });
    }

    void show(Boxes now) {
        boxes = now;
        repaint();
    }

    @Override
    public Dimension getPreferredSize() {
        int line = getFontMetrics(Look.font()).getHeight();
        return new Dimension(12 * line, 8 * line);
    }

    /** How many pixels of the drawing one pixel of the parent takes. */
    private double scale() {
        Dimension parent = boxes.parent();
        double wide = (getWidth() - 1.0) / Math.max(1, parent.width);
        double high = (getHeight() - 1.0) / Math.max(1, parent.height);
        return Math.min(1, Math.min(wide, high));
    }

    private Rectangle2D place(Rectangle bounds) {
        double scale = scale();
        double left = (getWidth() - 1 - boxes.parent().width * scale) / 2;
        double top = (getHeight() - 1 - boxes.parent().height * scale) / 2;
        return new Rectangle2D.Double(
                left + bounds.x * scale, top + bounds.y * scale, bounds.width * scale, bounds.height * scale);
    }

    private boolean isThere() {
        return boxes != null && boxes.parent() != null;
    }

    private Component componentAt(Point point) {
        Component found = null;
        double least = Double.MAX_VALUE;
        for (Boxes.Box box : isThere() ? boxes.siblings() : Collections.<Boxes.Box>emptyList()) {
            Rectangle2D at = place(box.bounds());
            // The smallest one, because in a layered pane children lie over each other.
            if (box.isVisible() && at.contains(point) && at.getWidth() * at.getHeight() <= least) {
                found = box.component();
                least = at.getWidth() * at.getHeight();
            }
        }
        return found;
    }

    @Override
    public String getToolTipText(MouseEvent event) {
        Component at = componentAt(event.getPoint());
        return at == null ? "The siblings, to scale" : Tips.of(Code.describe(at) + ": click to select it");
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        if (!isThere()) {
            return;
        }
        Graphics2D g = Look.smooth(graphics);
        Rectangle2D parent = place(new Rectangle(boxes.parent()));
        g.setColor(Look.paper());
        g.fill(parent);
        g.setColor(Look.mix(Look.ink(), Look.paper(), 0.5));
        g.draw(parent);
        List<Boxes.Box> siblings = boxes.siblings();
        g.clip(new Rectangle2D.Double(parent.getX(), parent.getY(), parent.getWidth() + 1, parent.getHeight() + 1));
        for (Boxes.Box box : siblings) {
            if (box.isVisible()) {
                g.setColor(Look.mix(Look.ink(), Look.paper(), 0.9));
                g.fill(place(box.bounds()));
                g.setColor(Look.mix(Look.ink(), Look.paper(), 0.6));
                g.draw(place(box.bounds()));
            }
        }
        g.setColor(Look.mix(Look.highlight(), Look.paper(), 0.35));
        g.fill(place(boxes.bounds()));
        g.setColor(Look.highlight());
        g.draw(place(boxes.bounds()));
        g.dispose();
    }
}
