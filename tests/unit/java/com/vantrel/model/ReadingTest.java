package com.vantrel.model;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.awt.Color;
import java.awt.Dimension;
import java.util.ArrayList;
import java.util.List;

import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JPanel;
import javax.swing.JPasswordField;
import javax.swing.JTable;
import javax.swing.JTextField;
import javax.swing.UIManager;
import javax.swing.table.DefaultTableModel;

import org.junit.Before;
import org.junit.Test;

public class ReadingTest {
    /** A text field of the program's that notes which of its methods are called. */
    public static class Telling extends JTextField {
        private static final long serialVersionUID = 1L;
        final transient List<String> called = new ArrayList<>();

        private <T> T tell(String method, T answer) {
            if (called != null) { // null while the superclass is being made
                called.add(method);
            }
            return answer;
        }

        @Override
        public String getName() {
            return tell("getName", "telling");
        }

        @Override
        public String getText() {
            return tell("getText", "text");
        }

        @Override
        public Dimension getPreferredSize() {
            return tell("getPreferredSize", new Dimension(70, 30));
        }

        public Object getOrder() {
            return tell("getOrder", new Object() {
                @Override
                public String toString() {
                    return tell("toString", "an order");
                }
            });
        }

        public int getFailing() {
            throw new IllegalStateException("on purpose");
        }

        @Override
        public String toString() {
            return tell("toString", "telling");
        }
    }

    @Before
    public void metal() throws Exception {
        UIManager.setLookAndFeel("javax.swing.plaf.metal.MetalLookAndFeel");
    }

    private static Reading read(JComponent component) {
        Reading reading = new Reading(Target.of(component));
        do {
            assertTrue(reading.refresh());
        } while (!reading.isComplete());
        return reading;
    }

    private static Row row(Reading reading, String name) {
        for (Row row : reading.rows()) {
            if (row.name().equals(name)) {
                return row;
            }
        }
        throw new AssertionError("no row " + name);
    }

    @Test
    public void callsWhatTheProgramHasWrittenOnlyWhenAsked() {
        Telling field = new Telling();
        field.called.clear();
        Reading reading = read(field);
        reading.refresh();
        LayoutFacts.of(reading);
        Boxes.of(reading);
        assertEquals(List.of(), field.called);
        for (String name : List.of("name", "text", "preferredSize", "minimumSize", "baseline", "order")) {
            assertEquals(name, Row.Kind.ASK, row(reading, name).kind());
        }
        assertEquals("int[2]  1, 2", Values.text(new int[] {1, 2}));
        JPanel fresh = new JPanel();
        assertEquals("it would make one", Row.Kind.ASK, row(read(fresh), "accessibleName").kind());
        assertEquals("the toolkit's own are read", "LEADING", row(reading, "horizontalAlignment").value());

        reading.ask(row(reading, "preferredSize"));
        reading.ask(row(reading, "order"));
        assertEquals(List.of("getPreferredSize", "getOrder"), field.called);
        assertEquals("70 \u00d7 30", row(reading, "preferredSize").value());
        assertTrue(row(reading, "order").value(), row(reading, "order").value().startsWith("Telling$1@"));

        reading.ask(row(reading, "failing"));
        assertEquals(Row.Kind.ERROR, row(reading, "failing").kind());
        assertEquals("IllegalStateException: on purpose", row(reading, "failing").value());
        reading.refresh();
        assertEquals("what was asked for stays", "70 \u00d7 30", row(reading, "preferredSize").value());
    }

    @Test
    public void doesNotAskAgainWhatTakesLong() {
        int[] asked = {0};
        JTable table = new JTable(new DefaultTableModel() {
            @Override
            public int getRowCount() {
                asked[0]++;
                try {
                    Thread.sleep(450);
                } catch (InterruptedException e) {
                    Thread.currentThread().interrupt();
                }
                return 3;
            }
        });
        Reading reading = read(table);
        assertEquals("3", row(reading, "rowCount").value());
        int before = asked[0];
        for (int i = 0; i < 3; i++) {
            reading.refresh();
        }
        assertEquals(before, asked[0]);
        assertEquals("not even of another one", Row.Kind.ASK, row(read(new JTable()), "rowCount").kind());
        Reading fast = read(new JTable(2, 2));
        fast.ask(row(fast, "rowCount"));
        assertEquals("until one is fast", "2", row(read(new JTable(2, 2)), "rowCount").value());
    }

    @Test
    public void tellsWhereValuesComeFrom() {
        JButton button = new JButton("OK");
        JPanel panel = new JPanel();
        panel.setName("panel");
        JComponent plain = new JComponent() {};
        panel.add(button);
        panel.add(plain);
        assertEquals("Button.background", row(read(button), "background").note());
        assertEquals("Button.border", row(read(button), "border").note());
        assertEquals("computed", row(read(button), "preferredSize").note());
        assertEquals("", row(read(button), "enabled").note());
        assertEquals("from JPanel \"panel\"", row(read(plain), "background").note());
        button.setBackground(Color.RED);
        button.setPreferredSize(new Dimension(1, 2));
        assertEquals("own", row(read(button), "background").note());
        assertEquals("set", row(read(button), "preferredSize").note());
    }

    @Test
    public void keepsSecretsAndHoldsNothing() throws InterruptedException {
        JPasswordField secret = new JPasswordField("swordfish");
        Reading reading = read(secret);
        for (Row row : reading.rows()) {
            assertFalse(row.toString(), row.toString().contains("swordfish"));
        }
        assertEquals("hidden, 9 characters", row(reading, "text").value());
        List<Row> rows = reading.rows();
        secret = null;
        for (int i = 0; i < 50 && reading.refresh(); i++) {
            System.gc();
            Thread.sleep(20);
        }
        assertFalse(reading.refresh());
        assertFalse(rows.isEmpty());
    }
}
