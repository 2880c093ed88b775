package com.vantrel.view;

import java.awt.BasicStroke;
import java.awt.Color;
import java.awt.Component;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.geom.Ellipse2D;
import java.awt.geom.Line2D;
import java.awt.geom.Path2D;
import java.awt.geom.Rectangle2D;
import java.awt.geom.RoundRectangle2D;
import java.util.EnumMap;
import java.util.Map;

import javax.swing.Icon;

import com.vantrel.model.Kind;

/** A small line drawing for each kind of component, sharp at any scale, in the colour of the text beside it. */
final class KindIcon implements Icon {
    static final int SIZE = 14;

    private static final Map<Kind, KindIcon> ALL = new EnumMap<>(Kind.class);

    private final Kind kind;

    private KindIcon(Kind kind) {
        this.kind = kind;
    }

    static KindIcon of(Kind kind) {
        return ALL.computeIfAbsent(kind, KindIcon::new);
    }

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
        paint(graphics, component.getForeground(), x, y);
    }

    void paint(Graphics graphics, Color color, int x, int y) {
        Graphics2D g = Look.smooth(graphics);
        g.translate(x, y);
        g.setColor(color);
        g.setStroke(new BasicStroke(1f));
        draw(g);
        g.dispose();
    }

    private void draw(Graphics2D g) {
        switch (kind) {
            case FRAME:
                box(g, 1.5, 2.5, 11, 9);
                g.fill(new Rectangle2D.Double(1.5, 2.5, 11, 3));
                break;
            case DIALOG:
                box(g, 0.5, 1.5, 11, 8);
                line(g, 0.5, 4.5, 11.5, 4.5);
                g.fill(new Rectangle2D.Double(6, 7, 8, 6));
                break;
            case WINDOW:
                box(g, 2.5, 2.5, 9, 9);
                break;
            case CHECK:
                box(g, 2.5, 2.5, 9, 9);
                lines(g, 4.5, 7, 6.5, 9.2, 9.8, 4.8);
                break;
            case RADIO:
                g.draw(new Ellipse2D.Double(2.5, 2.5, 9, 9));
                g.fill(new Ellipse2D.Double(5, 5, 4, 4));
                break;
            case MENU:
                each(g, 3.5, 3, 3);
                break;
            case BUTTON:
                g.draw(new RoundRectangle2D.Double(0.5, 3.5, 13, 7, 5, 5));
                line(g, 4, 7, 10, 7);
                break;
            case LABEL:
                line(g, 3, 3.5, 11, 3.5);
                line(g, 7, 3.5, 7, 11);
                break;
            case AREA:
                box(g, 1.5, 1.5, 11, 11);
                each(g, 4.5, 2.5, 3);
                break;
            case FIELD:
                box(g, 0.5, 3.5, 13, 7);
                line(g, 3.5, 5, 3.5, 9);
                break;
            case COMBO:
                box(g, 0.5, 3.5, 13, 7);
                triangle(g, 7.5, 6, 11.5, 6, 9.5, 8.5);
                break;
            case SPINNER:
                box(g, 0.5, 3.5, 13, 7);
                triangle(g, 7.5, 6.4, 11.5, 6.4, 9.5, 4.6);
                triangle(g, 7.5, 7.6, 11.5, 7.6, 9.5, 9.4);
                break;
            case SLIDER:
                line(g, 1, 7, 13, 7);
                g.fill(new Rectangle2D.Double(4, 4, 3, 6));
                break;
            case LIST:
                for (double row = 3.5; row < 12; row += 3.5) {
                    g.fill(new Rectangle2D.Double(1.5, row - 0.5, 1.5, 1.5));
                    line(g, 5, row, 12.5, row);
                }
                break;
            case TABLE:
                box(g, 1.5, 1.5, 11, 11);
                line(g, 1.5, 5.5, 12.5, 5.5);
                line(g, 1.5, 9, 12.5, 9);
                line(g, 6.5, 1.5, 6.5, 12.5);
                break;
            case TREE:
                lines(g, 3.5, 2, 3.5, 10.5, 8, 10.5);
                line(g, 3.5, 5.5, 8, 5.5);
                g.fill(new Rectangle2D.Double(8.5, 4, 4, 3));
                g.fill(new Rectangle2D.Double(8.5, 9, 4, 3));
                g.fill(new Rectangle2D.Double(1.5, 1, 4, 2.5));
                break;
            case TABS:
                box(g, 1.5, 5.5, 11, 7);
                lines(g, 1.5, 5.5, 1.5, 2.5, 6.5, 2.5, 6.5, 5.5);
                line(g, 6.5, 3.5, 10.5, 3.5);
                line(g, 10.5, 3.5, 10.5, 5.5);
                break;
            case SPLIT:
                box(g, 1.5, 1.5, 11, 11);
                g.fill(new Rectangle2D.Double(6, 1.5, 2, 11));
                break;
            case SCROLL:
                box(g, 1.5, 1.5, 11, 11);
                g.fill(new Rectangle2D.Double(9.5, 3.5, 2, 4));
                break;
            case TOOL_BAR:
                box(g, 0.5, 3.5, 13, 7);
                g.fill(new Rectangle2D.Double(2.5, 5.5, 3, 3));
                g.draw(new Rectangle2D.Double(7.5, 5.5, 3, 3));
                break;
            case SPACE:
                line(g, 1.5, 4, 1.5, 10);
                line(g, 12.5, 4, 12.5, 10);
                line(g, 3, 7, 11, 7);
                break;
            case PANEL:
                g.setStroke(new BasicStroke(
                        1f, BasicStroke.CAP_BUTT, BasicStroke.JOIN_MITER, 10f, new float[] {2f, 1.5f}, 0f));
                box(g, 1.5, 2.5, 11, 9);
                break;
            default:
                triangle(g, 7, 1, 13, 7, 7, 13);
                triangle(g, 7, 1, 1, 7, 7, 13);
                break;
        }
    }

    private static void box(Graphics2D g, double x, double y, double width, double height) {
        g.draw(new Rectangle2D.Double(x, y, width, height));
    }

    private static void line(Graphics2D g, double x1, double y1, double x2, double y2) {
        g.draw(new Line2D.Double(x1, y1, x2, y2));
    }

    /** Three lines of text, or of a menu. */
    private static void each(Graphics2D g, double top, double distance, int inset) {
        for (int row = 0; row < 3; row++) {
            line(g, inset, top + row * distance, KindIcon.SIZE - inset, top + row * distance);
        }
    }

    private static void lines(Graphics2D g, double... points) {
        Path2D path = new Path2D.Double();
        path.moveTo(points[0], points[1]);
        for (int i = 2; i < points.length; i += 2) {
            path.lineTo(points[i], points[i + 1]);
        }
        g.draw(path);
    }

    private static void triangle(Graphics2D g, double x1, double y1, double x2, double y2, double x3, double y3) {
        Path2D path = new Path2D.Double();
        path.moveTo(x1, y1);
        path.lineTo(x2, y2);
        path.lineTo(x3, y3);
        path.closePath();
        g.fill(path);
    }
}
