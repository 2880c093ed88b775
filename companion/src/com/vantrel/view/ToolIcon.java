package com.vantrel.view;

import java.awt.BasicStroke;
import java.awt.Color;
import java.awt.Component;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.geom.Arc2D;
import java.awt.geom.Ellipse2D;
import java.awt.geom.Line2D;
import java.awt.geom.Path2D;

import javax.swing.Icon;

/** Line drawings for the inspector's buttons, sharp at any scale, in the colour of the button's text. */
enum ToolIcon implements Icon {
    PICK,
    SEARCH,
    CLEAR,
    MACHINERY,
    BACK,
    FORWARD,
    UNDO,
    REDO,
    PREVIOUS,
    NEXT;

    private static final int SIZE = 16;

    @Override
    public int getIconWidth() {
        return SIZE;
    }

    @Override
    public int getIconHeight() {
        return SIZE;
    }

    @Override
    public void paintIcon(Component component, Graphics graphics, int x, int y) {
        Graphics2D g = Look.smooth(graphics);
        g.translate(x, y);
        Color color = component.getForeground();
        g.setColor(component.isEnabled() ? color : Look.mix(color, Look.background(), 0.65));
        g.setStroke(new BasicStroke(1.4f, BasicStroke.CAP_ROUND, BasicStroke.JOIN_ROUND));
        draw(g);
        g.dispose();
    }

    /** Draws it at the origin, in the colour and stroke that are set. */
    void draw(Graphics2D g) {
        switch (this) {
            case PICK:
                path(g, 6.5, 13.5, 3.5, 13.5, 2, 12, 2, 3.5, 3.5, 2, 12, 2, 13.5, 3.5, 13.5, 6);
                Path2D arrow = new Path2D.Double();
                arrow.moveTo(7, 7);
                arrow.lineTo(14.5, 9.8);
                arrow.lineTo(11.2, 11.2);
                arrow.lineTo(9.8, 14.5);
                arrow.closePath();
                g.fill(arrow);
                g.draw(arrow);
                break;
            case SEARCH:
                g.draw(new Ellipse2D.Double(2, 2, 8.5, 8.5));
                path(g, 9.6, 9.6, 13.5, 13.5);
                break;
            case CLEAR:
                path(g, 4.5, 4.5, 11.5, 11.5);
                path(g, 4.5, 11.5, 11.5, 4.5);
                break;
            case MACHINERY:
                for (int tooth = 0; tooth < 8; tooth++) {
                    double angle = Math.PI * tooth / 4;
                    g.draw(new Line2D.Double(8 + 4.6 * Math.cos(angle), 8 + 4.6 * Math.sin(angle),
                            8 + 6.4 * Math.cos(angle), 8 + 6.4 * Math.sin(angle)));
                }
                g.draw(new Ellipse2D.Double(3.6, 3.6, 8.8, 8.8));
                g.draw(new Ellipse2D.Double(6.3, 6.3, 3.4, 3.4));
                break;
            case BACK:
                path(g, 13, 8, 3, 8);
                path(g, 7, 4, 3, 8, 7, 12);
                break;
            case FORWARD:
                path(g, 3, 8, 13, 8);
                path(g, 9, 4, 13, 8, 9, 12);
                break;
            case UNDO:
                g.draw(new Arc2D.Double(3.5, 4.5, 9, 8, 170, -250, Arc2D.OPEN));
                path(g, 2.6, 3.6, 3.4, 7.6, 7.2, 6.6);
                break;
            case REDO:
                g.draw(new Arc2D.Double(3.5, 4.5, 9, 8, 10, 250, Arc2D.OPEN));
                path(g, 13.4, 3.6, 12.6, 7.6, 8.8, 6.6);
                break;
            case PREVIOUS:
                path(g, 4, 10, 8, 6, 12, 10);
                break;
            default:
                path(g, 4, 6, 8, 10, 12, 6);
                break;
        }
    }

    private static void path(Graphics2D g, double... points) {
        Path2D path = new Path2D.Double();
        path.moveTo(points[0], points[1]);
        for (int i = 2; i < points.length; i += 2) {
            path.lineTo(points[i], points[i + 1]);
        }
        g.draw(path);
    }
}
