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
import javax.swing.JInternalFrame;
import javax.swing.JMenuBar;
import javax.swing.JMenuItem;
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
        inner.setEnabled(false);
        bind(inner, JComponent.WHEN_ANCESTOR_OF_FOCUSED_COMPONENT, "ctrl D", "of a disabled one");
        bind(outer, JComponent.WHEN_ANCESTOR_OF_FOCUSED_COMPONENT, "ctrl D", "outer");
        for (int code : new int[] {KeyEvent.VK_A, KeyEvent.VK_B, KeyEvent.VK_C, KeyEvent.VK_D}) {
            ran.clear();
            KeyEvent event = press(button, code, InputEvent.CTRL_DOWN_MASK);
            String said = taker(Keys.takers(button, event));
            SwingUtilities.processKeyBindings(event);
            assertEquals(KeyEvent.getKeyText(code), String.join("; ", ran), said);
        }
        Row passed = Keys.takers(button, press(button, KeyEvent.VK_B, InputEvent.CTRL_DOWN_MASK)).get(0);
        assertEquals("passed over", passed.name());
        assertEquals("Not taken: the action is disabled.", passed.explanation());
        List<Row> tab = Keys.takers(button, new KeyEvent(button, KeyEvent.KEY_PRESSED, 0, 0, KeyEvent.VK_TAB, '\t'));
        assertEquals("the focus, which moves to the next component", taker(tab));
        assertEquals("and nothing is typed", 1, tab.size());
    }

    @Test
    public void aWindowsMenusComeLast() {
        JInternalFrame frame = new JInternalFrame();
        JButton button = new JButton();
        frame.add(button);
        JMenuItem item = new JMenuItem("Item");
        item.setAccelerator(KeyStroke.getKeyStroke("ctrl M"));
        frame.setJMenuBar(new JMenuBar());
        frame.getJMenuBar().add(item);
        bind(button, JComponent.WHEN_IN_FOCUSED_WINDOW, "ctrl M", "own");
        List<String> asked = Keys.takers(button, press(button, KeyEvent.VK_M, InputEvent.CTRL_DOWN_MASK))
                                     .stream()
                                     .map(row -> row.note().replaceAll(",.*", ""))
                                     .collect(Collectors.toList());
        assertEquals(List.of("This JButton", "JMenuItem", ""), asked);
        assertTrue(Keys.of(button).stream().anyMatch(row -> row.name().endsWith(" released")));
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
        Action named = new AbstractAction("Go") {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
            }
        };
        assertEquals("action \"Go\"", Listeners.of(new JButton(named)).get(0).note());
        assertTrue("the toolkit listens, too", rows.stream().anyMatch(Row::isFolded));
    }
}
