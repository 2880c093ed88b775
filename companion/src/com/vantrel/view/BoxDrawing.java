package com.vantrel.view;

import java.awt.BasicStroke;
import java.awt.Color;
import java.awt.Dimension;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Insets;
import java.awt.Rectangle;

import javax.swing.JComponent;

import com.vantrel.model.Boxes;

/**
 * A component's boxes, one in the other, with their numbers, as browsers draw them: not to scale, so that a border of
 * one pixel can be read beside a width of a thousand. Belongs to the event thread.
 */
final class BoxDrawing extends JComponent {
    private static final long serialVersionUID = 1L;

    private static final Color BOUNDS = new Color(0xF6B26B);
    private static final Color BORDER = new Color(0xFFE08A);
    private static final Color PADDING = new Color(0xB7D7A8);
    private static final Color CONTENT = new Color(0x9FC5E8);
    private static final Color TEXT = new Color(0x202020);
    private static final float[] DASHES = {4, 3};

    private transient Boxes boxes;

    BoxDrawing() {
        setToolTipText("Where it is in its parent, what its border and other insets take, and where its baseline is");
    }

    void show(Boxes now) {
        boxes = now;
        repaint();
    }

    @Override
    public Dimension getPreferredSize() {
        int line = getFontMetrics(Look.font()).getHeight() + 4;
        return new Dimension(24 * line / 2, 7 * line + line / 2);
    }

    @Override
    public Dimension getMinimumSize() {
        return getPreferredSize();
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        if (boxes == null) {
            return;
        }
        Graphics2D g = Look.smooth(graphics);
        g.setFont(Look.font());
        FontMetrics metrics = g.getFontMetrics();
        int step = metrics.getHeight() + 4;
        int side = Math.max(step, metrics.stringWidth("0000") + 4);
        Rectangle at = new Rectangle(0, 0, getWidth() - 1, getHeight() - 1);
        Rectangle bounds = boxes.bounds();

        ring(g, at, BOUNDS, "bounds");
        text(g, "x " + bounds.x + "  y " + bounds.y, at, at.y + step / 2, true);
        text(g, bounds.width + " \u00d7 " + bounds.height, at, at.y + at.height - step / 2, true);
        at = inner(at, side, step);
        Insets border = boxes.border();
        Insets insets = boxes.insets();
        if (border != null) {
            ring(g, at, BORDER, "border");
            numbers(g, at, border, side, step);
            at = inner(at, side, step);
        }
        Insets rest = border == null ? insets
                                     : new Insets(insets.top - border.top, insets.left - border.left,
                                             insets.bottom - border.bottom, insets.right - border.right);
        if (rest.top != 0 || rest.left != 0 || rest.bottom != 0 || rest.right != 0) {
            ring(g, at, PADDING, "insets");
            numbers(g, at, rest, side, step);
            at = inner(at, side, step);
        }
        ring(g, at, CONTENT, "");
        int width = bounds.width - insets.left - insets.right;
        int height = bounds.height - insets.top - insets.bottom;
        text(g, width + " \u00d7 " + height, at, at.y + at.height / 2, true);
        paintBaseline(g, at, height);
        g.dispose();
    }

    private void paintBaseline(Graphics2D g, Rectangle content, int height) {
        int below = boxes.baseline() - boxes.insets().top;
        if (boxes.baseline() < 0 || height <= 0 || below < 0 || below > height) {
            return;
        }
        int y = content.y + content.height * below / height;
        g.setColor(new Color(0xB3261E));
        g.setStroke(new BasicStroke(1, BasicStroke.CAP_BUTT, BasicStroke.JOIN_MITER, 1, DASHES, 0));
        g.drawLine(content.x, y, content.x + content.width, y);
        String label = "baseline " + boxes.baseline();
        FontMetrics metrics = g.getFontMetrics();
        int x = content.x + content.width - metrics.stringWidth(label) - 4;
        // The label is above or below the line, on the side where it does not meet the size.
        int base = y > content.y + content.height / 2
                ? Math.min(y + metrics.getAscent() + 1, content.y + content.height - 2)
                : y - 3;
        if (y > content.y + content.height / 2 && y + metrics.getHeight() > content.y + content.height) {
            base = content.y + content.height - 3;
        }
        g.drawString(label, Math.max(content.x + 2, x), base);
    }

    private static Rectangle inner(Rectangle at, int side, int step) {
        return new Rectangle(
                at.x + side, at.y + step, Math.max(1, at.width - 2 * side), Math.max(1, at.height - 2 * step));
    }

    private static void ring(Graphics2D g, Rectangle at, Color color, String label) {
        g.setColor(color);
        g.fill(at);
        g.setColor(Look.mix(color, Color.BLACK, 0.35));
        g.draw(at);
        g.setColor(Look.mix(TEXT, color, 0.25));
        g.drawString(label, at.x + 4, at.y + g.getFontMetrics().getAscent() + 1);
    }

    private static void numbers(Graphics2D g, Rectangle at, Insets insets, int side, int step) {
        text(g, "" + insets.top, at, at.y + step / 2, true);
        text(g, "" + insets.bottom, at, at.y + at.height - step / 2, true);
        int middle = at.y + at.height / 2;
        text(g, "" + insets.left, new Rectangle(at.x, at.y, side, at.height), middle, true);
        text(g, "" + insets.right, new Rectangle(at.x + at.width - side, at.y, side, at.height), middle, true);
    }

    private static void text(Graphics2D g, String text, Rectangle in, int middle, boolean centred) {
        FontMetrics metrics = g.getFontMetrics();
        int x = centred ? in.x + (in.width - metrics.stringWidth(text)) / 2 : in.x;
        g.setColor(TEXT);
        g.drawString(text, x, middle + (metrics.getAscent() - metrics.getDescent()) / 2);
    }
}
