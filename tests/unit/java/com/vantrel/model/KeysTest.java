package com.vantrel.model;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import java.awt.event.ActionEvent;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.util.ArrayList;
import java.util.List;
import java.util.stream.Collectors;

import javax.swing.AbstractAction;
import javax.swing.Action;
import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JPanel;
import javax.swing.JTextField;
import javax.swing.KeyStroke;
import javax.swing.SwingUtilities;

import org.junit.Test;

public class KeysTest {
    private final List<String> ran = new ArrayList<>();

    private Action bind(JComponent component, int condition, String key, String name) {
        Action action = new AbstractAction() {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
                ran.add(name);
            }
        };
        component.getInputMap(condition).put(KeyStroke.getKeyStroke(key), name);
        component.getActionMap().put(name, action);
        return action;
    }

    private static KeyEvent press(JComponent on, int code, int modifiers) {
        return new KeyEvent(on, KeyEvent.KEY_PRESSED, 0, modifiers, code, KeyEvent.CHAR_UNDEFINED);
    }

    private static String taker(List<Row> rows) {
        return rows.stream()
                .filter(row -> row.name().equals("taken by"))
                .map(Row::value)
                .collect(Collectors.joining("; "));
    }

    /** What the model says must be what Swing does with the same event. */
    @Test
    public void theBindingThatSwingTakesIsTheOneThatIsNamed() {
        JPanel outer = new JPanel();
        JPanel inner = new JPanel();
        JButton button = new JButton("b");
        outer.add(inner);
        inner.add(button);
        bind(button, JComponent.WHEN_FOCUSED, "ctrl A", "own");
        bind(inner, JComponent.WHEN_ANCESTOR_OF_FOCUSED_COMPONENT, "ctrl A", "never");
        Action disabled = bind(button, JComponent.WHEN_FOCUSED, "ctrl B", "disabled");
        disabled.setEnabled(false);
        bind(outer, JComponent.WHEN_ANCESTOR_OF_FOCUSED_COMPONENT, "ctrl B", "outer");
        button.getInputMap().put(KeyStroke.getKeyStroke("ctrl C"), "nowhere");
        bind(inner, JComponent.WHEN_FOCUSED, "ctrl C", "not the focused one's");
        for (int code : new int[] {KeyEvent.VK_A, KeyEvent.VK_B, KeyEvent.VK_C}) {
            ran.clear();
            KeyEvent event = press(button, code, InputEvent.CTRL_DOWN_MASK);
            String said = taker(Keys.takers(button, event));
            SwingUtilities.processKeyBindings(event);
            assertEquals(KeyEvent.getKeyText(code), String.join("; ", ran), said);
        }
        Row passed = Keys.takers(button, press(button, KeyEvent.VK_B, InputEvent.CTRL_DOWN_MASK)).get(0);
        assertEquals("passed over", passed.name());
        assertEquals("Not taken: the action is disabled.", passed.explanation());
        assertEquals("the focus, which moves to the next component",
                taker(Keys.takers(button, press(button, KeyEvent.VK_TAB, 0))));
    }

    @Test
    public void theProgramsBindingsComeBeforeTheToolkitsAndAskingMakesNoMaps() {
        JTextField field = new JTextField();
        bind(field, JComponent.WHEN_FOCUSED, "ctrl ENTER", "submit");
        JPanel empty = new JPanel();
        empty.add(field);
        List<Row> rows = Keys.of(field);
        assertEquals("submit", rows.get(0).value());
        assertTrue(rows.get(0).isPrograms() && !rows.get(0).isFolded());
        assertTrue(rows.get(1).isFolded());
        assertEquals(0, rows.stream().filter(row -> row.group().contains("JPanel")).count());
    }

    @Test
    public void listenersAreToldByTheClassThatTheyComeFrom() {
        JTextField field = new JTextField();
        field.addActionListener(event -> ran.add("lambda"));
        field.addPropertyChangeListener("text", event -> ran.add("named"));
        field.getDocument().addDocumentListener(new javax.swing.event.DocumentListener() {
            @Override
            public void insertUpdate(javax.swing.event.DocumentEvent event) {
            }

            @Override
            public void removeUpdate(javax.swing.event.DocumentEvent event) {
            }

            @Override
            public void changedUpdate(javax.swing.event.DocumentEvent event) {
            }
        });
        List<Row> rows = Listeners.of(field);
        List<String> programs =
                rows.stream()
                        .filter(Row::isPrograms)
                        .map(row -> row.group() + " | " + row.name() + " | " + row.value() + " | " + row.note())
                        .collect(Collectors.toList());
        String own = KeysTest.class.getName();
        assertEquals(List.of("Action | lambda in KeysTest | " + own + " | ",
                             "Property change | lambda in KeysTest | " + own + " | of \"text\"",
                             "Document of its document | KeysTest$2 | " + own + "$2 | "),
                programs);
        assertTrue("the toolkit listens, too", rows.stream().anyMatch(Row::isFolded));
    }
}
