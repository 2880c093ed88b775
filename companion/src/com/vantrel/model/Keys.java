package com.vantrel.model;

import java.awt.AWTKeyStroke;
import java.awt.Component;
import java.awt.Container;
import java.awt.KeyboardFocusManager;
import java.awt.Window;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashSet;
import java.util.List;
import java.util.Set;

import javax.swing.AbstractButton;
import javax.swing.Action;
import javax.swing.ActionMap;
import javax.swing.ComponentInputMap;
import javax.swing.InputMap;
import javax.swing.JComponent;
import javax.swing.JInternalFrame;
import javax.swing.JLabel;
import javax.swing.JMenuBar;
import javax.swing.JPopupMenu;
import javax.swing.KeyStroke;
import javax.swing.plaf.UIResource;
import javax.swing.text.JTextComponent;

/**
 * Which keys do what in a component: the bindings in its own input maps and in those of its parents, for all three
 * conditions, and which of them would take a key. For the event thread.
 */
public final class Keys {
    private static final String[] CONDITIONS = {
            "when focused", "when a part of it is focused", "when its window is focused"};
    private static final int MOST_IN_WINDOW = 2000;

    private Keys() {
    }

    /**
     * All bindings that could take a key while a component has the focus, in the order in which the toolkit tries them.
     */
    public static List<Row> of(Component component) {
        List<Row> rows = new ArrayList<>();
        for (Place place : places(component)) {
            add(rows, place);
        }
        return rows;
    }

    /** One component's input map of one condition. */
    private static final class Place {
        final JComponent component;
        final int condition;
        final boolean own;
        /** Null if it has none. */
        final InputMap map;

        Place(JComponent component, int condition, boolean own) {
            this.component = component;
            this.condition = condition;
            this.own = own;
            map = hasStrokes(component, condition) ? component.getInputMap(condition) : null;
        }

        String title() {
            return (own ? "This " : "") + Code.describe(component) + ", " + CONDITIONS[condition];
        }
    }

    /** In the order in which the toolkit tries them. */
    private static List<Place> places(Component focused) {
        List<Place> places = new ArrayList<>();
        if (focused instanceof JComponent) {
            places.add(new Place((JComponent) focused, JComponent.WHEN_FOCUSED, true));
        }
        Component at = focused;
        for (; at != null && !(at instanceof Window); at = at.getParent()) {
            if (at instanceof JComponent) {
                places.add(new Place((JComponent) at, JComponent.WHEN_ANCESTOR_OF_FOCUSED_COMPONENT, at == focused));
            }
            if (at instanceof JInternalFrame) {
                addWindow(places, (Container) at, focused);
            }
        }
        if (at instanceof Container) {
            addWindow(places, (Container) at, focused);
        }
        return places;
    }

    /** The toolkit tries menu bars after everything else in the window. */
    private static void addWindow(List<Place> places, Container window, Component focused) {
        List<Place> inWindow = new ArrayList<>();
        List<Place> inMenus = new ArrayList<>();
        walk(window, focused, inWindow, inMenus, false);
        places.addAll(inWindow);
        places.addAll(inMenus);
    }

    private static void walk(Container at, Component focused, List<Place> places, List<Place> menus, boolean inMenu) {
        for (Component child : Children.of(at)) {
            if (places.size() + menus.size() < MOST_IN_WINDOW && child instanceof Container) {
                boolean menu = inMenu || child instanceof JMenuBar;
                if (child instanceof JComponent && hasStrokes((JComponent) child, JComponent.WHEN_IN_FOCUSED_WINDOW)) {
                    (menu ? menus : places)
                            .add(new Place((JComponent) child, JComponent.WHEN_IN_FOCUSED_WINDOW, child == focused));
                }
                walk((Container) child, focused, places, menus, menu);
            }
        }
    }

    /**
     * Whether a component has an input map for a condition. Asking for one that is missing would create it, and so
     * change the program.
     */
    private static boolean hasStrokes(JComponent component, int condition) {
        if (Code.overrider(component.getClass(), "getRegisteredKeyStrokes") != null) {
            return true;
        }
        KeyStroke[] strokes = component.getRegisteredKeyStrokes();
        Set<KeyStroke> seen = new HashSet<>();
        for (KeyStroke stroke : strokes) {
            // A stroke that is in two maps is listed twice, but its condition is that of the first map both times.
            if (!seen.add(stroke) || component.getConditionForKeyStroke(stroke) == condition) {
                return true;
            }
        }
        return false;
    }

    private static void add(List<Row> rows, Place place) {
        KeyStroke[] strokes = place.map == null ? null : place.map.allKeys();
        if (strokes == null) {
            return;
        }
        List<Row> own = new ArrayList<>();
        List<Row> toolkits = new ArrayList<>();
        for (KeyStroke stroke : strokes) {
            Binding binding = Binding.of(place, stroke);
            boolean programs = binding.isPrograms();
            (programs ? own : toolkits)
                    .add(programs ? binding.row(place.title())
                                  : binding.row(place.title() + " \u00b7 the toolkit's").folded());
        }
        for (List<Row> part : Arrays.asList(own, toolkits)) {
            part.sort((one, other) -> one.name().compareTo(other.name()));
            rows.addAll(part);
        }
    }

    /** A key, what it is called in the input map, and what the action map has under that name. */
    private static final class Binding {
        final Place place;
        final KeyStroke stroke;
        final Object name;
        final Action action;

        private Binding(Place place, KeyStroke stroke, Object name, Action action) {
            this.place = place;
            this.stroke = stroke;
            this.name = name;
            this.action = action;
        }

        /** The binding of a key; null if it has none there. */
        static Binding of(Place place, KeyStroke stroke) {
            Object name = place.map == null ? null : place.map.get(stroke);
            if (name == null) {
                return null;
            }
            ActionMap actions = place.component.getActionMap();
            return new Binding(place, stroke, name, actions == null ? null : actions.get(name));
        }

        /** Whether the program has bound it: in a map of its own, with an action of its own, or to a menu item. */
        boolean isPrograms() {
            // Accelerators and mnemonics are the program's; the look and feel has made bindings of them.
            boolean shortcut = place.condition == JComponent.WHEN_IN_FOCUSED_WINDOW
                    && (place.component instanceof AbstractButton || place.component instanceof JLabel);
            if (shortcut || action != null && !Code.isMachinery(action.getClass())) {
                return true;
            }
            for (InputMap map = place.map; map != null; map = map.getParent()) {
                if (map.keys() != null && Arrays.asList(map.keys()).contains(stroke)) {
                    // The wrapper of a text component's keymap is of another class, and not the program's.
                    return !(map instanceof UIResource)
                            && (map.getClass() == InputMap.class || map.getClass() == ComponentInputMap.class);
                }
            }
            return false;
        }

        /** Why it would not take its key; null if it would. */
        String hindrance() {
            if (action == null) {
                return "no action of this name";
            }
            try {
                if (!place.component.isEnabled()) {
                    return Code.describe(place.component) + " is disabled";
                }
                boolean inWindow = place.condition == JComponent.WHEN_IN_FOCUSED_WINDOW;
                if (inWindow && !isReachable(place.component)) {
                    return Code.describe(place.component) + " does not show";
                }
                return action.isEnabled() ? null : "the action is disabled";
            } catch (RuntimeException e) {
                return Values.error(e);
            }
        }

        /** A menu item takes its accelerator while its menu is closed, as long as the menu bar shows. */
        private static boolean isReachable(Component component) {
            for (Component at = component; at != null;
                    at = at instanceof JPopupMenu ? ((JPopupMenu) at).getInvoker() : at.getParent()) {
                if (at instanceof JMenuBar) {
                    return at.isShowing();
                }
            }
            return component.isShowing();
        }

        /**
         * The name of an action's class. The toolkit's actions are nested in classes that people know, so it is the
         * outermost one's.
         */
        private static String actor(Class<?> type) {
            Class<?> outermost = type;
            while (Code.isToolkit(type) && outermost.getEnclosingClass() != null) {
                outermost = outermost.getEnclosingClass();
            }
            return Code.shortName(outermost);
        }

        Row row(String group) {
            String acts = action == null ? "no action" : actor(action.getClass());
            Row row = Row.of(group, text(stroke), Values.text(name))
                              .note(acts)
                              .type(action == null ? "" : action.getClass().getName())
                              .programs(isPrograms());
            return action == null ? row.kind(Row.Kind.DIM) : row;
        }
    }

    /**
     * Which binding would take a key if it were pressed while a component has the focus: all that have the key, in the
     * order in which they are asked, and for each whether it takes it or why not.
     *
     * @param pressed the event of the key being pressed, as it came to a component of ours
     */
    public static List<Row> takers(Component component, KeyEvent pressed) {
        List<Row> rows = new ArrayList<>();
        KeyStroke stroke = KeyStroke.getKeyStrokeForEvent(pressed);
        boolean moves = takers(rows, "Pressed: " + text(stroke), component, stroke);
        boolean plain = (pressed.getModifiersEx()
                                & (InputEvent.CTRL_DOWN_MASK | InputEvent.ALT_DOWN_MASK | InputEvent.META_DOWN_MASK))
                == 0;
        // A key that moves the focus does so instead of typing anything.
        if (plain && !moves && pressed.getKeyChar() != KeyEvent.CHAR_UNDEFINED) {
            KeyStroke typed = KeyStroke.getKeyStroke(pressed.getKeyChar());
            takers(rows, "Then typed: " + text(typed), component, typed);
        }
        return rows;
    }

    /** Adds the rows for one stroke. Returns whether it moves the focus. */
    private static boolean takers(List<Row> rows, String group, Component component, KeyStroke stroke) {
        if (addTraversal(rows, group, component, stroke)) {
            return true;
        }
        boolean taken = false;
        int listeners = component.getKeyListeners().length;
        if (listeners > 0) {
            rows.add(Row.of(group, "key listeners", Values.count(listeners, "listener"))
                             .note("asked first; any of them may take it"));
        }
        boolean typed = stroke.getKeyChar() != KeyEvent.CHAR_UNDEFINED;
        for (Place place : places(component)) {
            Binding binding = Binding.of(place, stroke);
            if (binding != null) {
                String hindrance = taken ? "it is taken already" : binding.hindrance();
                Row row = binding.row(group);
                rows.add(Row.of(group, hindrance == null ? "taken by" : "passed over", row.value())
                                 .note(place.title())
                                 .type(row.type())
                                 .programs(row.isPrograms() && hindrance == null)
                                 .kind(hindrance == null ? Row.Kind.PLAIN : Row.Kind.DIM)
                                 .explanation(hindrance == null ? "" : "Not taken: " + hindrance + "."));
                taken |= hindrance == null;
            }
        }
        if (!taken) {
            boolean text = typed && component instanceof JTextComponent;
            rows.add(Row.of(group, text ? "taken by" : "nobody",
                                text ? "the text component's keymap, which inserts the character"
                                     : "no binding takes it")
                             .kind(text ? Row.Kind.PLAIN : Row.Kind.DIM));
        }
        return false;
    }

    /** Adds a row if the key moves the focus: such a key never reaches a binding. */
    private static boolean addTraversal(List<Row> rows, String group, Component component, KeyStroke stroke) {
        if (!component.getFocusTraversalKeysEnabled()) {
            return false;
        }
        String[] ways = {
                "to the next component", "to the previous component", "out of the focus cycle", "into the focus cycle"};
        boolean root = component instanceof Container && ((Container) component).isFocusCycleRoot();
        int last = root ? KeyboardFocusManager.DOWN_CYCLE_TRAVERSAL_KEYS : KeyboardFocusManager.UP_CYCLE_TRAVERSAL_KEYS;
        for (int way = 0; way <= last; way++) {
            Set<AWTKeyStroke> keys = component.getFocusTraversalKeys(way);
            if (keys != null && keys.contains(stroke)) {
                rows.add(Row.of(group, "taken by", "the focus, which moves " + ways[way]));
                return true;
            }
        }
        return false;
    }

    /** A key as it is printed on the keyboard and in menus. */
    static String text(KeyStroke stroke) {
        if (stroke.getKeyChar() != KeyEvent.CHAR_UNDEFINED) {
            char typed = stroke.getKeyChar();
            return "typed " + (Character.isISOControl(typed) ? String.format("U+%04X", (int) typed) : "" + typed);
        }
        String modifiers = InputEvent.getModifiersExText(stroke.getModifiers());
        String key = KeyEvent.getKeyText(stroke.getKeyCode());
        return (modifiers.isEmpty() ? key : modifiers + "+" + key) + (stroke.isOnKeyRelease() ? " released" : "");
    }
}
