package com.vantrel.view;

import java.awt.Component;
import java.awt.Cursor;
import java.awt.Dimension;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.event.MouseEvent;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Consumer;

import javax.accessibility.AccessibleContext;
import javax.accessibility.AccessibleRole;
import javax.swing.JComponent;
import javax.swing.event.MouseInputAdapter;

import com.vantrel.model.Code;
import com.vantrel.model.Description;

/**
 * The components that the selected one is in, from its window on, in one line; a click selects one. If there is no room
 * for all, some after the first are left out.
 */
final class Breadcrumb extends JComponent {
    private static final long serialVersionUID = 1L;
    private static final String SEPARATOR = " \u203a ";
    private static final String LEFT_OUT = "\u2026";

    private final transient List<Crumb> crumbs = new ArrayList<>();
    private String message = "";
    private boolean isFault;
    private transient Crumb hovered;

    private static final class Crumb {
        final WeakReference<Component> component;
        final String text;
        int from;
        int to;

        Crumb(Component component) {
            this.component = new WeakReference<>(component);
            text = Code.describe(component);
        }
    }

    Breadcrumb(Consumer<Component> select) {
        MouseInputAdapter mouse = new MouseInputAdapter() {
            @Override
            public void mouseMoved(MouseEvent event) {
                hover(crumbAt(event.getX()));
            }

            @Override
            public void mouseExited(MouseEvent event) {
                hover(null);
            }

            @Override
            public void mousePressed(MouseEvent event) {
                Crumb crumb = crumbAt(event.getX());
                Component component = crumb == null ? null : crumb.component.get();
                if (component != null) {
                    select.accept(component);
                }
            }
        };
        addMouseListener(mouse);
        addMouseMotionListener(mouse);
    }

    private void hover(Crumb crumb) {
        if (hovered != crumb) {
            hovered = crumb;
            setCursor(Cursor.getPredefinedCursor(crumb == null ? Cursor.DEFAULT_CURSOR : Cursor.HAND_CURSOR));
            repaint();
        }
    }

    private Crumb crumbAt(int x) {
        for (Crumb crumb : crumbs) {
            if (x >= crumb.from && x < crumb.to) {
                return crumb;
            }
        }
        return null;
    }

    /** Shows the way to a component, or a message where there is none. */
    void show(Component component, String instead, boolean fault) {
        crumbs.clear();
        hovered = null;
        message = instead;
        isFault = fault;
        if (component != null) {
            for (Component each : Description.path(component)) {
                crumbs.add(new Crumb(each));
            }
        }
        repaint();
    }

    /** For screen readers: the whole text, even where there is no room to paint all of it. */
    @Override
    public AccessibleContext getAccessibleContext() {
        if (accessibleContext == null) {
            accessibleContext = new AccessibleJComponent() {
                private static final long serialVersionUID = 1L;

                @Override
                public String getAccessibleName() {
                    StringBuilder text = new StringBuilder(message);
                    for (Crumb crumb : crumbs) {
                        text.append(text.length() == 0 ? "" : SEPARATOR).append(crumb.text);
                    }
                    return text.toString();
                }

                @Override
                public AccessibleRole getAccessibleRole() {
                    return AccessibleRole.LABEL;
                }
            };
        }
        return accessibleContext;
    }

    @Override
    public Dimension getPreferredSize() {
        return new Dimension(200, getFontMetrics(Look.font()).getHeight() + 4);
    }

    @Override
    public Dimension getMinimumSize() {
        return new Dimension(50, getPreferredSize().height);
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        Graphics2D g = Look.smooth(graphics);
        g.setFont(Look.font());
        FontMetrics metrics = g.getFontMetrics();
        int baseline = (getHeight() - metrics.getHeight()) / 2 + metrics.getAscent();
        int x = 0;
        if (!message.isEmpty()) {
            g.setColor(isFault ? Look.error() : Look.dim());
            g.drawString(message, x, baseline);
            x += metrics.stringWidth(message) + 2 * Look.GAP;
        }
        int left = leftOut(metrics, getWidth() - x);
        for (int i = 0; i < crumbs.size(); i++) {
            Crumb crumb = crumbs.get(i);
            crumb.from = crumb.to = 0;
            boolean omitted = i > 0 && i <= left;
            if (omitted && i > 1) {
                continue;
            }
            String text = omitted ? LEFT_OUT : crumb.text;
            if (i > 0) {
                g.setColor(Look.dim());
                g.drawString(SEPARATOR, x, baseline);
                x += metrics.stringWidth(SEPARATOR);
            }
            boolean last = i == crumbs.size() - 1;
            g.setColor(crumb == hovered ? Look.own() : last ? Look.foreground() : Look.dim());
            g.drawString(text, x, baseline);
            crumb.from = x;
            x += metrics.stringWidth(text);
            crumb.to = x;
        }
        g.dispose();
    }

    /** How many crumbs after the first one must be left out for the rest to have room. */
    private int leftOut(FontMetrics metrics, int room) {
        int separator = metrics.stringWidth(SEPARATOR);
        int width = 0;
        for (Crumb crumb : crumbs) {
            width += metrics.stringWidth(crumb.text) + separator;
        }
        width -= separator;
        int left = 0;
        while (width > room && left < crumbs.size() - 2) {
            left++;
            width -= metrics.stringWidth(crumbs.get(left).text) + separator;
            width += left == 1 ? metrics.stringWidth(LEFT_OUT) + separator : 0;
        }
        return left;
    }
}
