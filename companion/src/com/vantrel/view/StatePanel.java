package com.vantrel.view;

import java.awt.BasicStroke;
import java.awt.Color;
import java.awt.Dimension;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.util.function.Supplier;

import javax.swing.JComponent;

/** What a part of the window shows while it is empty: a headline, and what to do about it. */
final class StatePanel extends JComponent {
    private static final long serialVersionUID = 1L;
    private static final int PICTURE = 44;

    private final transient Supplier<Color> background;

    private String headline = "";
    private String[] lines = {};
    private ToolIcon icon = ToolIcon.PICK;

    /** @param background what it is painted on */
    StatePanel(Supplier<Color> background) {
        this.background = background;
    }

    /** @param lines below the headline; one that has a tab in it is a key and what it does */
    void show(ToolIcon picture, String title, String... text) {
        icon = picture;
        headline = title;
        lines = text;
        repaint();
    }

    /** What it says, for scripts. */
    @Override
    public String toString() {
        return headline + "\n" + String.join("\n", lines);
    }

    @Override
    public Dimension getMinimumSize() {
        return new Dimension(100, 100);
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        Graphics2D g = Look.smooth(graphics);
        g.setColor(background.get());
        g.fillRect(0, 0, getWidth(), getHeight());
        FontMetrics bold = g.getFontMetrics(Look.bold());
        FontMetrics plain = g.getFontMetrics(Look.font());
        int step = plain.getHeight() + Look.GAP / 2;
        int height = PICTURE + 3 * Look.GAP + bold.getHeight() + Look.GAP + lines.length * step;
        int y = Math.max(Look.GAP, (getHeight() - height) / 2);
        int middle = getWidth() / 2;

        g.setColor(Look.mix(Look.foreground(), Look.background(), 0.75));
        g.setStroke(new BasicStroke(1.5f));
        g.drawOval(middle - PICTURE / 2, y, PICTURE, PICTURE);
        setForeground(Look.dim());
        icon.paintIcon(this, g, middle - icon.getIconWidth() / 2, y + (PICTURE - icon.getIconHeight()) / 2);
        y += PICTURE + 3 * Look.GAP + bold.getAscent();
        g.setColor(Look.foreground());
        g.setFont(Look.bold());
        g.drawString(headline, middle - bold.stringWidth(headline) / 2, y);
        y += Look.GAP;
        g.setFont(Look.font());
        int keys = widest(plain, true);
        int left = middle - (keys + 2 * Look.GAP + widest(plain, false)) / 2;
        for (String line : lines) {
            y += step;
            int tab = line.indexOf('\t');
            g.setColor(Look.dim());
            if (tab < 0) {
                g.drawString(line, middle - plain.stringWidth(line) / 2, y);
            } else {
                g.drawString(line.substring(tab + 1), left + keys + 2 * Look.GAP, y);
                g.setColor(Look.foreground());
                g.drawString(line.substring(0, tab), left + keys - plain.stringWidth(line.substring(0, tab)), y);
            }
        }
        g.dispose();
    }

    private int widest(FontMetrics metrics, boolean key) {
        int widest = 0;
        for (String line : lines) {
            int tab = line.indexOf('\t');
            if (tab >= 0) {
                String part = key ? line.substring(0, tab) : line.substring(tab + 1);
                widest = Math.max(widest, metrics.stringWidth(part));
            }
        }
        return widest;
    }
}
