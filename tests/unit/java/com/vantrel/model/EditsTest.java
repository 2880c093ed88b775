package com.vantrel.model;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.awt.BorderLayout;
import java.awt.Color;
import java.awt.Component;
import java.awt.GridBagLayout;
import java.util.ArrayList;
import java.util.List;

import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.border.EmptyBorder;

import org.junit.Test;

public class EditsTest {
    private final List<String> told = new ArrayList<>();
    private final Edits edits = new Edits((component, task) -> task.run(), Runnable::run);

    /** Sets a property from text, as the window does. */
    private void set(Component component, String name, String text) {
        Property property = property(component, name);
        Object value = property.format().parse(text, null);
        edits.set(component, property, value, told::add);
    }

    private static Property property(Component component, String name) {
        for (Property property : Catalog.of(component)) {
            if (property.name().equals(name)) {
                return property;
            }
        }
        throw new AssertionError("no property " + name);
    }

    private static String gridBag(String text) {
        JPanel panel = new JPanel(new GridBagLayout());
        JLabel label = new JLabel();
        panel.add(label);
        Format format = Constraints.format(label);
        return format.write(format.parse(text, null));
    }

    @Test
    public void undoPutsBackWhatWasThere() {
        JPanel parent = new JPanel();
        JComponent plain = new JComponent() {};
        parent.add(plain);
        set(plain, "background", "#ff0000");
        set(plain, "name", "plain");
        assertEquals("name of JComponent", edits.whatToUndo().replaceAll(" of .*", " of JComponent"));
        edits.undo();
        assertNull(plain.getName());
        edits.undo();
        assertFalse("none of its own again", plain.isBackgroundSet());
        assertFalse(edits.canUndo());
        edits.redo();
        assertEquals(Color.RED, plain.getBackground());
        set(plain, "preferredSize", "10 x 20");
        edits.undo();
        assertFalse("computed again", plain.isPreferredSizeSet());
        set(plain, "enabled", "false");
        assertFalse("what was undone is forgotten", edits.canRedo());
        assertEquals("all went well", java.util.Collections.nCopies(4, null), told);
    }

    @Test
    public void aRefusedValueLeavesTheOldOne() {
        boolean[] locked = {false};
        JLabel label = new JLabel("before") {
            private static final long serialVersionUID = 1L;

            @Override
            public void setText(String text) {
                super.setText(text);
                if ("bad".equals(text) || locked[0]) {
                    throw new IllegalArgumentException("no such text");
                }
            }
        };
        set(label, "text", "bad");
        assertEquals(List.of("The component refuses it: IllegalArgumentException: no such text."), told);
        assertEquals("before", label.getText());
        assertFalse(edits.canUndo());
        List<String> complaints = new ArrayList<>();
        edits.onComplaint(complaints::add);
        set(label, "text", "good");
        locked[0] = true;
        edits.undo();
        assertTrue("" + complaints, complaints.get(0).contains("cannot be set back: The component refuses it: "));
        assertTrue("the undo that failed can be tried again", edits.whatToUndo().startsWith("text of "));
        locked[0] = false;
        edits.undo();
        assertEquals("before", label.getText());

        JPanel panel = new JPanel(new BorderLayout());
        JButton north = new JButton("north");
        JButton center = new JButton("center");
        panel.add(north, BorderLayout.NORTH);
        panel.add(center);
        set(center, "constraints", "NORTH");
        assertTrue(told.get(2), told.get(2).contains("JButton is there already"));
        set(center, "constraints", "SOUTH");
        assertEquals(BorderLayout.SOUTH, ((BorderLayout) panel.getLayout()).getConstraints(center));
        edits.undo();
        assertEquals(BorderLayout.CENTER, ((BorderLayout) panel.getLayout()).getConstraints(center));
    }

    @Test
    public void holdsNothingThatLeadsBackToAComponentOutsideOfWindows() {
        JPanel panel = new JPanel();
        panel.setBorder(new EmptyBorder(1, 1, 1, 1) { // the program's, and it may know the panel
            private static final long serialVersionUID = 1L;
        });
        set(panel, "border", "none");
        assertFalse(edits.canUndo());
        set(panel, "border", "line #ff0000");
        assertTrue(edits.canUndo());
    }

    @Test
    public void readsGridBagConstraintsAsItWritesThem() {
        for (String text : List.of("gridx=0 gridy=3",
                     "gridx=RELATIVE gridy=1 gridwidth=2 weightx=0.5 anchor=LINE_START "
                             + "fill=BOTH insets=1,2,3,4 ipadx=5 ipady=6")) {
            assertEquals(text, gridBag(text));
        }
        assertEquals("gridx=1 gridy=RELATIVE gridwidth=0", gridBag(" gridwidth = REMAINDER  gridx=1"));
        String[][] wrong = {
                {"gridx=-3", "not negative"},
                {"gridz=1", "no \u201cgridz\u201d"},
                {"anchor=UP", "not one of CENTER"},
                {"weightx=-1", "0 or more"},
                {"gridx=1 and more", "type gridx"},
                {"insets=1,2", "type gridx"},
        };
        for (String[] it : wrong) {
            Exception e = assertThrows(it[0], IllegalArgumentException.class, () -> gridBag(it[0]));
            assertTrue(e.getMessage(), e.getMessage().contains(it[1]));
        }
    }
}
