package com.vantrel.pick;

import java.awt.Color;
import java.awt.Dimension;
import java.awt.Font;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Rectangle;
import java.awt.Toolkit;
import java.awt.Window;
import java.util.Map;

/** The label beside the highlight's box: class, name and size of what is in the box. */
final class Label extends Mark {
    private static final long serialVersionUID = 1L;
    private static final Color BACK = new Color(0x26282B);
    private static final Color CLASS = new Color(0xFFB066);
    private static final Color NAME = new Color(0xF2F2F2);
    private static final Color SIZE = new Color(0xB4B8BD);
    private static final Font FONT = new Font(Font.SANS_SERIF, Font.PLAIN, 12);
    private static final int PADDING = 6;
    private static final int GAP = 8;

    private String type = "";
    private String name = "";
    private String size = "";

    Label(Window owner) {
        super(owner, "vantrel.highlight.label", BACK);
        setFont(FONT);
    }

    /**
     * Shows a text beside a box: above it where there is room, else below it, else at its lower edge inside.
     *
     * @param name   empty for none
     * @param box    on the screen
     * @param screen the part of the screen that the label may lie in
     */
    void show(String newType, String newName, String newSize, Rectangle box, Rectangle screen) {
        boolean changed = !newType.equals(type) || !newName.equals(name) || !newSize.equals(size);
        type = newType;
        name = newName;
        size = newSize;
        Dimension own = textSize();
        int x = Math.max(screen.x, Math.min(box.x, screen.x + screen.width - own.width));
        int y = box.y - own.height;
        if (y < screen.y) {
            y = box.y + box.height;
        }
        if (y + own.height > screen.y + screen.height) {
            y = Math.min(box.y + box.height, screen.y + screen.height) - own.height;
        }
        place(x, y, own.width, own.height);
        if (changed) {
            repaint();
        }
    }

    private Dimension textSize() {
        FontMetrics normal = getFontMetrics(FONT);
        FontMetrics bold = getFontMetrics(FONT.deriveFont(Font.BOLD));
        int width = 2 * PADDING + bold.stringWidth(type) + GAP + normal.stringWidth(size);
        if (!name.isEmpty()) {
            width += GAP + normal.stringWidth(name);
        }
        return new Dimension(width, normal.getHeight() + PADDING);
    }

    @Override
    public void paint(Graphics graphics) {
        Graphics2D g = (Graphics2D) graphics.create();
        Object hints = Toolkit.getDefaultToolkit().getDesktopProperty("awt.font.desktophints");
        if (hints instanceof Map) {
            g.addRenderingHints((Map<?, ?>) hints);
        }
        g.setColor(BACK);
        g.fillRect(0, 0, getWidth(), getHeight());
        int x = draw(g, FONT.deriveFont(Font.BOLD), CLASS, type, PADDING);
        if (!name.isEmpty()) {
            x = draw(g, FONT, NAME, name, x + GAP);
        }
        draw(g, FONT, SIZE, size, x + GAP);
        g.dispose();
    }

    private int draw(Graphics2D g, Font font, Color color, String text, int x) {
        g.setFont(font);
        g.setColor(color);
        FontMetrics metrics = g.getFontMetrics();
        g.drawString(text, x, (getHeight() - metrics.getHeight()) / 2 + metrics.getAscent());
        return x + metrics.stringWidth(text);
    }
}
