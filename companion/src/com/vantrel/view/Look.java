package com.vantrel.view;

import java.awt.Color;
import java.awt.Font;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.RenderingHints;
import java.awt.Toolkit;
import java.util.Map;

import javax.swing.BorderFactory;
import javax.swing.UIManager;
import javax.swing.border.Border;

/**
 * The inspector's colours, fonts and distances, in one place so that all its parts look like one tool. The look and
 * feel is the program's: its colours are used where it has them, and each has a fallback. No colour is kept, because
 * the program may change its look and feel at any time. Belongs to the event thread.
 */
public final class Look {
    /**
     * The distance between things that belong together, in user space. Other things are two or three times as far
     * apart.
     */
    public static final int GAP = 6;

    private static final int DEFAULT_FONT_SIZE = 12;

    private Look() {
    }

    public static Color background() {
        return color("Panel.background", new Color(0xF2F2F2));
    }

    public static Color foreground() {
        return color("Label.foreground", new Color(0x1F1F1F));
    }

    /** The background of lists and tables. */
    public static Color paper() {
        return color("List.background", color("Tree.background", isDark() ? background().darker() : Color.WHITE));
    }

    /** For text on paper. */
    public static Color ink() {
        Color ink = color("List.foreground", foreground());
        return canBeRead(ink, paper()) ? ink : isDark(paper()) ? new Color(0xE3E3E3) : new Color(0x1F1F1F);
    }

    public static Color selectionBackground() {
        return color("List.selectionBackground", new Color(0x2F6FBF));
    }

    public static Color selectionForeground() {
        Color text = color("List.selectionForeground", Color.WHITE);
        Color back = selectionBackground();
        return canBeRead(text, back) ? text : isDark(back) ? Color.WHITE : Color.BLACK;
    }

    /** For what is there but matters less: units, hints, rows of components that do not show. */
    public static Color dim() {
        return mix(foreground(), background(), 0.4);
    }

    /** For thin lines between parts. */
    public static Color line() {
        return mix(foreground(), background(), 0.82);
    }

    /** For the program's own classes and lines, and for what is the component's own. */
    public static Color own() {
        return isDark() ? new Color(0x7FB4FF) : new Color(0x0B57A4);
    }

    /** For what went wrong. */
    public static Color error() {
        return isDark() ? new Color(0xFF8A80) : new Color(0xB3261E);
    }

    /** The colour of the highlight in the program, for whatever in the inspector's window stands for it. */
    public static Color highlight() {
        return new Color(0xFC7E00);
    }

    /** The background that flashes when a value has just changed. */
    public static Color changed() {
        return mix(highlight(), paper(), 0.55);
    }

    /** The background of a button under the pointer. */
    public static Color hover() {
        return mix(foreground(), background(), 0.9);
    }

    public static Color pressed() {
        return mix(foreground(), background(), 0.8);
    }

    public static boolean isDark() {
        return isDark(background());
    }

    private static boolean isDark(Color color) {
        return brightness(color) < 128;
    }

    private static boolean canBeRead(Color text, Color back) {
        return Math.abs(brightness(text) - brightness(back)) > 70;
    }

    /** From 0 to 255, as people see it. */
    private static double brightness(Color color) {
        return 0.299 * color.getRed() + 0.587 * color.getGreen() + 0.114 * color.getBlue();
    }

    /**
     * A copy of a graphics object that paints lines and text smooth, as the desktop does. The caller disposes of it.
     */
    public static Graphics2D smooth(Graphics graphics) {
        Graphics2D g = (Graphics2D) graphics.create();
        Object hints = Toolkit.getDefaultToolkit().getDesktopProperty("awt.font.desktophints");
        if (hints instanceof Map) {
            g.addRenderingHints((Map<?, ?>) hints);
        } else {
            g.setRenderingHint(RenderingHints.KEY_TEXT_ANTIALIASING, RenderingHints.VALUE_TEXT_ANTIALIAS_ON);
        }
        g.setRenderingHint(RenderingHints.KEY_ANTIALIASING, RenderingHints.VALUE_ANTIALIAS_ON);
        g.setRenderingHint(RenderingHints.KEY_STROKE_CONTROL, RenderingHints.VALUE_STROKE_PURE);
        return g;
    }

    /** The plain font of the look and feel's labels. */
    public static Font font() {
        Font font = UIManager.getFont("Label.font");
        return font == null ? new Font(Font.DIALOG, Font.PLAIN, DEFAULT_FONT_SIZE) : font.deriveFont(Font.PLAIN);
    }

    public static Font bold() {
        return font().deriveFont(Font.BOLD);
    }

    /** For source lines and code. */
    public static Font code() {
        return new Font(Font.MONOSPACED, Font.PLAIN, font().getSize());
    }

    public static Border padding() {
        return BorderFactory.createEmptyBorder(GAP, GAP, GAP, GAP);
    }

    /** A text, or as much of its beginning as has room, with an ellipsis. */
    static String fitting(String text, FontMetrics metrics, int room) {
        if (metrics.stringWidth(text) <= room) {
            return text;
        }
        // No letter is narrower than a pixel, so the part of a long text that cannot fit need not be measured.
        int end = Math.min(text.length(), Math.max(0, room));
        while (end > 0 && metrics.stringWidth(text.substring(0, end) + "\u2026") > room) {
            end--;
        }
        return end == 0 ? "" : text.substring(0, end) + "\u2026";
    }

    /** A colour between two: the first one at 0, the second one at 1. */
    public static Color mix(Color first, Color second, double share) {
        return new Color(between(first.getRed(), second.getRed(), share),
                between(first.getGreen(), second.getGreen(), share), between(first.getBlue(), second.getBlue(), share));
    }

    private static int between(int first, int second, double share) {
        return (int) Math.round(first + (second - first) * share);
    }

    private static Color color(String key, Color fallback) {
        Color color = UIManager.getColor(key);
        // A copy, because the look and feel replaces its own colour objects wherever it finds them on a component, and
        // some looks and feels have colour objects that fail outside of their own painters.
        return color == null ? fallback : new Color(color.getRGB());
    }
}
