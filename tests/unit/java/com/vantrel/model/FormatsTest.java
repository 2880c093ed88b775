package com.vantrel.model;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.awt.Color;
import java.awt.ComponentOrientation;
import java.awt.Cursor;
import java.awt.Dimension;
import java.awt.Font;
import java.awt.Insets;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.font.TextAttribute;
import java.util.Map;
import java.util.concurrent.TimeUnit;

import javax.swing.border.Border;
import javax.swing.border.CompoundBorder;
import javax.swing.border.EmptyBorder;
import javax.swing.border.LineBorder;

import org.junit.Test;

public class FormatsTest {
    /** Type, what is typed, and how the value that it makes is written. */
    private static final Object[][] GOOD = {
            {int.class, " -12 ", "-12"},
            {double.class, "0.5", "0.5"},
            {boolean.class, "true", "true"},
            {char.class, "x", "x"},
            {String.class, " a\nb ", " a\nb "},
            {TimeUnit.class, "DAYS", "DAYS"},
            {Color.class, "#F80", "#ff8800"},
            {Color.class, "10, 20,30", "#0a141e"},
            {Color.class, "10203040", "#10203040"},
            {Font.class, "Dialog 12", "Dialog plain 12"},
            {Font.class, "Dialog Bold italic 12.5", "Dialog bold italic 12.5"},
            {Insets.class, "3", "3, 3, 3, 3"},
            {Insets.class, "1 2 3 -4", "1, 2, 3, -4"},
            {Dimension.class, "10x20", "10 \u00d7 20"},
            {Dimension.class, "\u221e \u00d7 5", "\u221e \u00d7 5"},
            {Point.class, "-1, 2", "-1, 2"},
            {Rectangle.class, "1, 2, 3 \u00d7 4", "1, 2, 3 \u00d7 4"},
            {Cursor.class, "Hand", "Hand"},
            {ComponentOrientation.class, "right to left", "right to left"},
            {Border.class, "empty 1,2,3,4", "empty 1,2,3,4"},
            {Border.class, "line #00ff00 2", "line #00ff00 2"},
            {Border.class, "titled Two words", "titled Two words"},
            {Border.class, "raised", "raised"},
            {Border.class, "Lowered", "lowered"},
            {Border.class, "matte 1,0,0,0 #0000ff", "matte 1,0,0,0 #0000ff"},
    };

    /** Type, what is typed, and a part of what is said of it. */
    private static final Object[][] BAD = {
            {int.class, "3000000000", "\u201c3000000000\u201d is not a whole number"},
            {byte.class, "200", "from -128 to 127"},
            {double.class, "NaN", "not a number"},
            {char.class, "xy", "single character"},
            {TimeUnit.class, "YEARS", "one of NANOSECONDS"},
            {Color.class, "red", "#rrggbb"},
            {Color.class, "1, 2, 300", "from 0 to 255"},
            {Font.class, "No such family 12", "no font family \u201cNo such family\u201d"},
            {Font.class, "Dialog", "a size"},
            {Font.class, "Dialog 0", "from 1 to 999"},
            {Insets.class, "1, 2", "top, left, bottom, right"},
            {Dimension.class, "10", "width \u00d7 height"},
            {Dimension.class, "-1 x 2", "not negative"},
            {Dimension.class, "1 x 2 x 3", "width \u00d7 height"},
            {Rectangle.class, "1, 2, 3, -4", "no size negative"},
            {Border.class, "line", "not a border"},
            {Border.class, "thick", "not a border"},
    };

    @Test
    public void readsWhatPeopleTypeAndSaysWhatIsWrong() {
        for (Object[] it : GOOD) {
            Format format = Formats.of((Class<?>) it[0]);
            assertEquals(it[2], format.write(format.parse((String) it[1], null)));
        }
        for (Object[] it : BAD) {
            Format format = Formats.of((Class<?>) it[0]);
            Exception e = assertThrows(
                    (String) it[1], IllegalArgumentException.class, () -> format.parse((String) it[1], null));
            assertTrue(e.getMessage(), e.getMessage().contains((String) it[2]));
        }
        assertEquals("line #000000 around empty 2",
                Formats.of(Border.class)
                        .write(new CompoundBorder(new LineBorder(Color.BLACK), new EmptyBorder(2, 2, 2, 2))));
        for (Class<?> type : new Class<?>[] {Color.class, Font.class, Border.class, Dimension.class, Insets.class}) {
            assertNull("nothing typed is none of its own", Formats.of(type).parse("", null));
        }
    }

    @Test
    public void aFontKeepsWhatTheTextDoesNotMention() {
        Font old = new Font("Dialog", Font.PLAIN, 12).deriveFont(Map.of(TextAttribute.UNDERLINE, 0));
        Font made = (Font) Formats.of(Font.class).parse("bold 14", old);
        assertEquals("Dialog bold 14", Formats.write(made));
        assertEquals(0, made.getAttributes().get(TextAttribute.UNDERLINE));
    }
}
