package com.vantrel.model;

import java.awt.Color;
import java.awt.Insets;
import java.util.Locale;

import javax.swing.BorderFactory;
import javax.swing.border.BevelBorder;
import javax.swing.border.Border;
import javax.swing.border.CompoundBorder;
import javax.swing.border.EmptyBorder;
import javax.swing.border.EtchedBorder;
import javax.swing.border.LineBorder;
import javax.swing.border.MatteBorder;
import javax.swing.border.TitledBorder;
import javax.swing.plaf.UIResource;

/** The toolkit's simple borders as texts that can be typed. Stateless, for the event thread. */
final class Borders {
    static final Format FORMAT = Format.typed(
            "a border: type none, empty 4, line #ff0000 2, titled TEXT, etched, raised, lowered or matte 1,0,0,0 #ff0000",
            value -> write((Border) value), (text, old) -> parse(text));

    private Borders() {
    }

    /**
     * A border as text. Of a border that is not the toolkit's only the class is told, so that no code of the program is
     * called.
     */
    static String write(Border border) {
        Class<?> type = border.getClass();
        // Borders of the look and feel extend the simple ones, but paint something else.
        if (border instanceof UIResource || !Code.isToolkit(type)) {
            return Code.shortName(type);
        }
        if (border instanceof CompoundBorder) {
            CompoundBorder both = (CompoundBorder) border;
            return part(both.getOutsideBorder()) + " around " + part(both.getInsideBorder());
        }
        if (border instanceof TitledBorder) {
            return "titled " + ((TitledBorder) border).getTitle();
        }
        if (border instanceof MatteBorder) {
            Color color = ((MatteBorder) border).getMatteColor();
            return "matte " + insets(((MatteBorder) border).getBorderInsets())
                    + (color == null ? " with an icon" : " " + Formats.write(color));
        }
        if (border instanceof EmptyBorder) {
            return "empty " + insets(((EmptyBorder) border).getBorderInsets());
        }
        if (border instanceof LineBorder) {
            LineBorder line = (LineBorder) border;
            return "line " + Formats.write(line.getLineColor())
                    + (line.getThickness() == 1 ? "" : " " + line.getThickness());
        }
        if (border instanceof EtchedBorder) {
            return "etched";
        }
        if (type == BevelBorder.class) {
            return ((BevelBorder) border).getBevelType() == BevelBorder.RAISED ? "raised" : "lowered";
        }
        return Code.shortName(type);
    }

    private static String part(Border border) {
        return border == null ? "none" : write(border);
    }

    private static String insets(Insets insets) {
        boolean same = insets.top == insets.left && insets.top == insets.bottom && insets.top == insets.right;
        return same ? "" + insets.top : insets.top + "," + insets.left + "," + insets.bottom + "," + insets.right;
    }

    private static Border parse(String typed) {
        String text = typed.trim();
        String kind = text.split("\\s+", 2)[0].toLowerCase(Locale.ROOT);
        String rest = text.substring(kind.length()).trim();
        switch (kind) {
            case "":
            case "none":
                return null;
            case "titled":
                return BorderFactory.createTitledBorder(rest);
            case "etched":
                return BorderFactory.createEtchedBorder();
            case "raised":
                return BorderFactory.createRaisedBevelBorder();
            case "lowered":
                return BorderFactory.createLoweredBevelBorder();
            case "empty": {
                Insets insets = Formats.insets(rest);
                return BorderFactory.createEmptyBorder(insets.top, insets.left, insets.bottom, insets.right);
            }
            case "line": {
                String[] parts = rest.split("\\s+");
                int thickness = parts.length > 1 ? Integer.parseInt(parts[1]) : 1;
                return BorderFactory.createLineBorder(color(parts[0]), thickness);
            }
            case "matte": {
                int space = rest.lastIndexOf(' ');
                Insets insets = Formats.insets(rest.substring(0, Math.max(0, space)));
                Color color = color(rest.substring(space + 1));
                return BorderFactory.createMatteBorder(insets.top, insets.left, insets.bottom, insets.right, color);
            }
            default:
                throw new IllegalArgumentException();
        }
    }

    private static Color color(String text) {
        Color color = Formats.color(text);
        if (color == null) {
            throw new IllegalArgumentException();
        }
        return color;
    }
}
