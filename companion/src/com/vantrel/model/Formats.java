package com.vantrel.model;

import java.awt.Color;
import java.awt.ComponentOrientation;
import java.awt.Cursor;
import java.awt.Dimension;
import java.awt.Font;
import java.awt.Insets;
import java.awt.Point;
import java.awt.Rectangle;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.function.Function;
import java.util.function.Supplier;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

import javax.swing.border.Border;

/** The formats of the types that can be typed or chosen. Stateless, for any thread. */
public final class Formats {
    private static final Pattern NUMBER = Pattern.compile("[+-]?\\d+");
    private static final Pattern NUMBERS = Pattern.compile("[\\s,;x\u00d7+\\d-]+");
    private static final Pattern HEX = Pattern.compile("#?([0-9a-fA-F]{3}|[0-9a-fA-F]{6}|[0-9a-fA-F]{8})");
    private static final List<String> STYLES = Arrays.asList("plain", "bold", "italic");

    private static final Map<Class<?>, Format> BY_TYPE = new HashMap<>();

    private Formats() {
    }

    /** The format of a type; null for one that has no obvious way to be written. */
    static Format of(Class<?> type) {
        return type.isEnum() ? ofEnum(type) : BY_TYPE.get(type);
    }

    private static Format ofEnum(Class<?> type) {
        List<Object> values = Arrays.asList(type.getEnumConstants());
        List<String> names = new ArrayList<>();
        for (Object value : values) {
            names.add(((Enum<?>) value).name());
        }
        return Format.chosen(values, names);
    }

    static {
        both(boolean.class, Boolean.class, Format.flag());
        both(byte.class, Byte.class, number(Byte::valueOf, "a whole number from -128 to 127"));
        both(short.class, Short.class, number(Short::valueOf, "a whole number from -32768 to 32767"));
        both(int.class, Integer.class, number(Integer::valueOf, "a whole number that an int can hold"));
        both(long.class, Long.class, number(Long::valueOf, "a whole number that a long can hold"));
        both(float.class, Float.class, number(text -> finite(Float.valueOf(text)), "a number"));
        both(double.class, Double.class, number(text -> finite(Double.valueOf(text)), "a number"));
        both(char.class, Character.class,
                Format.typed("a single character, or nothing for none",
                        value -> (char) value == 0 ? "" : value.toString(), (text, old) -> {
                            require(text.length() <= 1);
                            return text.isEmpty() ? '\0' : text.charAt(0);
                        }));
        BY_TYPE.put(String.class, Format.typed("a text", value -> (String) value, (text, old) -> text));
        BY_TYPE.put(Color.class,
                Format.typed("a colour: type #rrggbb, #rrggbbaa, or red, green, blue from 0 to 255",
                        value -> write((Color) value), (text, old) -> color(text)));
        BY_TYPE.put(Font.class,
                Format.typed("a font: type a family, plain, bold or italic, and a size from 1 to 999",
                        value -> write((Font) value), (text, old) -> font(text, (Font) old)));
        BY_TYPE.put(Insets.class,
                Format.typed("insets: type top, left, bottom, right, or one number for all four",
                        value -> write((Insets) value), (text, old) -> orNull(text, () -> insets(text))));
        BY_TYPE.put(Dimension.class,
                Format.typed("a size: type width \u00d7 height, not negative",
                        value -> write((Dimension) value), (text, old) -> orNull(text, () -> {
                            int[] size = numbers(text, 2);
                            require(size[0] >= 0 && size[1] >= 0);
                            return new Dimension(size[0], size[1]);
                        })));
        BY_TYPE.put(Point.class,
                Format.typed(
                        "a position: type x, y", value -> ((Point) value).x + ", " + ((Point) value).y, (text, old) -> {
                            int[] at = numbers(text, 2);
                            return new Point(at[0], at[1]);
                        }));
        BY_TYPE.put(Rectangle.class,
                Format.typed("a rectangle: type x, y, width \u00d7 height, no size negative",
                        value -> write((Rectangle) value), (text, old) -> {
                            int[] at = numbers(text, 4);
                            require(at[2] >= 0 && at[3] >= 0);
                            return new Rectangle(at[0], at[1], at[2], at[3]);
                        }));
        BY_TYPE.put(Border.class, Borders.FORMAT);
        BY_TYPE.put(Cursor.class, cursors());
        BY_TYPE.put(ComponentOrientation.class,
                Format.chosen(Arrays.asList(ComponentOrientation.LEFT_TO_RIGHT, ComponentOrientation.RIGHT_TO_LEFT,
                                      ComponentOrientation.UNKNOWN),
                        Arrays.asList("left to right", "right to left", "unknown")));
    }

    private static void both(Class<?> primitive, Class<?> boxed, Format format) {
        BY_TYPE.put(primitive, format);
        BY_TYPE.put(boxed, format);
    }

    private static Format number(Function<String, Object> parser, String expects) {
        return Format.typed(expects, String::valueOf, (text, old) -> parser.apply(text.trim()));
    }

    private static Object finite(Number number) {
        require(!Double.isNaN(number.doubleValue()) && !Double.isInfinite(number.doubleValue()));
        return number;
    }

    private static Format cursors() {
        List<Cursor> cursors = new ArrayList<>();
        List<String> names = new ArrayList<>();
        for (int type = Cursor.DEFAULT_CURSOR; type <= Cursor.MOVE_CURSOR; type++) {
            cursors.add(Cursor.getPredefinedCursor(type));
            names.add(Cursor.getPredefinedCursor(type).getName().replace(" Cursor", ""));
        }
        return Format.chosen(cursors, names, value -> ((Cursor) value).getName().replace(" Cursor", ""));
    }

    static String write(Color color) {
        String rgb = String.format("#%06x", color.getRGB() & 0xFFFFFF);
        return color.getAlpha() == 255 ? rgb : rgb + String.format("%02x", color.getAlpha());
    }

    static String write(Font font) {
        String style = font.isPlain() ? "plain" : (font.isBold() ? "bold " : "") + (font.isItalic() ? "italic" : "");
        float size = font.getSize2D();
        return font.getName() + " " + style.trim() + " " + (size == (int) size ? "" + (int) size : "" + size);
    }

    static String write(Insets insets) {
        return insets.top + ", " + insets.left + ", " + insets.bottom + ", " + insets.right;
    }

    public static String write(Dimension size) {
        return size(size.width, size.height);
    }

    public static String write(Rectangle at) {
        return at.x + ", " + at.y + ", " + size(at.width, at.height);
    }

    public static String size(int width, int height) {
        return extent(width) + " \u00d7 " + extent(height);
    }

    /**
     * A width or height. Short.MAX_VALUE and more are the toolkit's "as large as you like", and written as infinite.
     */
    static String extent(int length) {
        return length >= Short.MAX_VALUE ? "\u221e" : Integer.toString(length);
    }

    /** A colour from text; null for an empty one, which stands for "none of its own". */
    static Color color(String typed) {
        String text = typed.trim();
        if (text.isEmpty()) {
            return null;
        }
        Matcher hex = HEX.matcher(text);
        if (hex.matches()) {
            String digits = hex.group(1);
            if (digits.length() == 3) {
                digits = digits.replaceAll("(.)", "$1$1");
            }
            int rgb = Integer.parseInt(digits.substring(0, 6), 16);
            int alpha = digits.length() == 8 ? Integer.parseInt(digits.substring(6), 16) : 255;
            return new Color(alpha << 24 | rgb, true);
        }
        int[] parts = numbers(text, text.split(",").length == 4 ? 4 : 3);
        for (int part : parts) {
            require(part >= 0 && part <= 255);
        }
        return new Color(parts[0], parts[1], parts[2], parts.length == 4 ? parts[3] : 255);
    }

    private static Font font(String typed, Font old) {
        String text = typed.trim();
        if (text.isEmpty()) {
            return null;
        }
        List<String> words = new ArrayList<>(Arrays.asList(text.split("\\s+")));
        float size = Float.parseFloat(words.remove(words.size() - 1));
        require(size >= 1 && size < 1000);
        int style = Font.PLAIN;
        while (!words.isEmpty() && STYLES.contains(words.get(words.size() - 1).toLowerCase(Locale.ROOT))) {
            style |= STYLES.indexOf(words.remove(words.size() - 1).toLowerCase(Locale.ROOT));
        }
        String family = String.join(" ", words);
        if (old != null && (family.isEmpty() || family.equalsIgnoreCase(old.getName()))) {
            return old.deriveFont(style, size);
        }
        require(!family.isEmpty());
        Font font = new Font(family, style, 1).deriveFont(size);
        // The toolkit falls back to this family where it has not got the one asked for.
        if (font.getFamily(Locale.ROOT).equals(Font.DIALOG) && !family.equalsIgnoreCase(Font.DIALOG)) {
            throw new IllegalArgumentException("There is no font family \u201c" + family + "\u201d on this machine.");
        }
        return font;
    }

    static Insets insets(String text) {
        int[] all = NUMBER.matcher(text.trim()).matches() ? numbers(text, 1) : numbers(text, 4);
        int last = all.length - 1;
        return new Insets(all[0], all[Math.min(1, last)], all[Math.min(2, last)], all[last]);
    }

    private static Object orNull(String text, Supplier<Object> otherwise) {
        return text.trim().isEmpty() ? null : otherwise.get();
    }

    /** Whole numbers, with anything between them that people write between numbers. */
    private static int[] numbers(String text, int count) {
        String plain = text.replace("\u221e", Integer.toString(Short.MAX_VALUE));
        require(NUMBERS.matcher(plain).matches());
        int[] found = new int[count];
        Matcher matcher = NUMBER.matcher(plain);
        for (int i = 0; i < count; i++) {
            require(matcher.find());
            found[i] = Integer.parseInt(matcher.group());
        }
        require(!matcher.find());
        return found;
    }

    private static void require(boolean condition) {
        if (!condition) {
            throw new IllegalArgumentException();
        }
    }
}
