package com.vantrel.hooks;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.awt.Component;
import java.awt.Container;
import java.awt.Cursor;
import java.awt.event.ComponentAdapter;
import java.awt.event.ComponentEvent;
import java.io.ByteArrayOutputStream;
import java.io.PrintStream;
import java.lang.reflect.AccessibleObject;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.JPanel;

import org.junit.After;
import org.junit.Test;

/** Runs under the agent, which makes the toolkit call the hooks. */
public class HooksTest {
    private final List<String> told = new ArrayList<>();
    private final ChangeListener listener = new ChangeListener() {
        @Override
        public void changing(Component component, String what) {
            told.add(name(component) + " " + what);
        }

        @Override
        public void moving(Component component, Container from, Container to) {
            told.add(name(component) + " from " + name(from) + " to " + name(to));
        }
    };
    private final List<Object> registered = new ArrayList<>();

    private static String name(Component component) {
        return component == null ? "none" : String.valueOf(component.getName());
    }

    private static <T extends Component> T named(String name, T component) {
        component.setName(name);
        return component;
    }

    private void listen(ChangeListener another) {
        registered.add(another);
        Hooks.add(another);
    }

    private void filter(EventFilter another) {
        registered.add(another);
        Hooks.add(another);
    }

    @After
    public void unregister() {
        for (Object one : registered) {
            if (one instanceof ChangeListener) {
                Hooks.remove((ChangeListener) one);
            } else {
                Hooks.remove((EventFilter) one);
            }
        }
    }

    @Test
    public void changesAreTold() {
        JLabel label = named("label", new JLabel());
        JButton button = named("button", new JButton());
        JPanel one = named("one", new JPanel(null));
        JPanel two = named("two", new JPanel(null));
        Object[][] cases = {
                {(Runnable) () -> label.setText("x"), "label text"},
                {(Runnable) () -> label.setOpaque(true), "label opaque"},
                {(Runnable) () -> label.setIconTextGap(9), "label iconTextGap"},
                {(Runnable) () -> label.setBounds(1, 2, 3, 4), "label " + Hooks.BOUNDS},
                {(Runnable) () -> label.setSize(7, 7), "label " + Hooks.BOUNDS},
                {(Runnable) () -> label.setVisible(false), "label " + Hooks.VISIBLE},
                {(Runnable) () -> label.setVisible(true), "label " + Hooks.VISIBLE},
                {(Runnable) () -> button.setEnabled(false), "button " + Hooks.ENABLED},
                {(Runnable) () -> button.setEnabled(true), "button " + Hooks.ENABLED},
                {(Runnable) () -> label.setCursor(new Cursor(Cursor.HAND_CURSOR)), "label " + Hooks.CURSOR},
                {(Runnable) () -> label.setFocusable(false), "label " + Hooks.FOCUSABLE},
                {(Runnable) () -> label.invalidate(), "label " + Hooks.VALID},
                {(Runnable) () -> one.add(label), "label from none to one"},
                {(Runnable) () -> two.add(label), "label from one to none"},
                {(Runnable) () -> one.add(label), "label from none to one"},
                {(Runnable) () -> one.add(button), "button from none to one"},
                {(Runnable) () -> one.setComponentZOrder(button, 0), "one " + Hooks.ORDER},
                {(Runnable) () -> two.setComponentZOrder(button, 0), "button from none to two"},
                {(Runnable) () -> one.removeAll(), "label from one to none"},
        };
        listen(listener);
        for (int i = 0; i < cases.length; i++) {
            told.clear();
            ((Runnable) cases[i][0]).run();
            assertTrue("case " + i + ": " + told, told.contains(cases[i][1]));
        }
        Hooks.remove(listener);
        told.clear();
        label.setText("unheard");
        assertEquals(Collections.emptyList(), told);
    }

    @Test
    public void aFilterComesBeforeTheProgramAndMayKeepAnEvent() {
        List<String> seen = new ArrayList<>();
        JLabel label = new JLabel();
        label.addComponentListener(new ComponentAdapter() {
            @Override
            public void componentMoved(ComponentEvent event) {
                seen.add("program");
            }
        });
        boolean[] keep = {false};
        filter((source, event) -> {
            seen.add("first " + (source == label));
            return false;
        });
        filter((source, event) -> {
            seen.add("second");
            return keep[0];
        });
        filter((source, event) -> {
            seen.add("third");
            return false;
        });
        ComponentEvent event = new ComponentEvent(label, ComponentEvent.COMPONENT_MOVED);
        label.dispatchEvent(event);
        assertEquals("[first true, second, third, program]", seen.toString());
        seen.clear();
        keep[0] = true;
        label.dispatchEvent(event);
        assertEquals("[first true, second]", seen.toString());
    }

    @Test
    public void whatAListenerThrowsStaysThere() {
        PrintStream own = System.err;
        ByteArrayOutputStream said = new ByteArrayOutputStream();
        System.setErr(new PrintStream(said, true));
        try {
            listen(new ChangeListener() {
                @Override
                public void changing(Component component, String what) {
                    throw new AssertionError("first fault");
                }

                @Override
                public void moving(Component component, Container from, Container to) {
                    throw new IllegalStateException("second fault");
                }
            });
            listen(listener);
            JPanel panel = named("panel", new JPanel());
            JLabel label = named("label", new JLabel());
            told.clear();
            label.setText("x");
            panel.add(label);
            assertTrue(told.contains("label text"));
            assertTrue(told.contains("label from none to panel"));
            assertEquals(panel, label.getParent());
            filter((source, event) -> { throw new IllegalStateException("third fault"); });
            label.dispatchEvent(new ComponentEvent(label, ComponentEvent.COMPONENT_MOVED));
        } finally {
            System.setErr(own);
        }
        assertTrue(said.toString(), said.toString().contains("first fault"));
        assertTrue("once: " + said, !said.toString().contains("second fault"));
    }

    @Test
    public void packagesOfTheToolkitAreOpenedToUs() throws Exception {
        AccessibleObject ofSwing = JComponent.class.getDeclaredField("ui");
        AccessibleObject ofAwt = Component.class.getDeclaredField("peer");
        DesktopModule.open("javax.swing", "java.awt", "sun.awt");
        ofSwing.setAccessible(true);
        ofAwt.setAccessible(true);
        assertThrows(IllegalArgumentException.class, () -> DesktopModule.open("no.such.thing"));
    }
}
