package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;
import java.awt.KeyboardFocusManager;
import java.awt.Rectangle;
import java.awt.Window;
import java.util.ArrayList;
import java.util.List;

import javax.swing.JLayeredPane;

import com.vantrel.stacktrace.StackTraceManager;

/** A component in words, to paste into a report or a script. Runs nothing of the program. For the event thread. */
public final class Description {
    private static final int MOST_FRAMES = 12;
    private static final int MOST_WORDS = 4;

    private Description() {
    }

    /** The way to a component, from its window through the containers to itself, without the machinery. */
    public static List<Component> path(Component component) {
        List<Component> path = new ArrayList<>();
        for (Component at = component; at != null; at = Facts.parent(at)) {
            if (at == component || Machinery.of(at, Facts.parent(at)) == Machinery.NO) {
                path.add(0, at);
            }
        }
        return path;
    }

    /**
     * Where a component is, such as {@code JFrame "main" > JPanel "form" > JLabel[2]}: one without a name is told from
     * others of its class in the same place by its number, from 0 on.
     */
    public static String pathText(Component component) {
        StringBuilder text = new StringBuilder();
        for (Component at : path(component)) {
            text.append(text.length() == 0 ? "" : " > ").append(Code.describe(at));
            if (Facts.name(at) == null && Facts.parent(at) != null) {
                text.append('[').append(number(at)).append(']');
            }
        }
        return text.toString();
    }

    /**
     * A component in as few words as tell it from others: {@code JPanel "form"}, or {@code JPanel "form" > JLabel[2]}
     * where it has no name itself and is of no class of the program; a window by its title, and its content pane as
     * that.
     */
    public static String shortPath(Component component) {
        List<String> words = new ArrayList<>();
        Component at = component;
        while (!saysEnough(at)) {
            words.add(0, Code.describe(at) + '[' + number(at) + ']');
            at = owner(at);
        }
        words.add(0, words(at));
        if (words.size() > MOST_WORDS) {
            words.subList(1, words.size() - MOST_WORDS + 2).clear();
            words.add(1, "\u2026");
        }
        return String.join(" > ", words);
    }

    /** Whether a component need not be told from its siblings by what it is in. */
    private static boolean saysEnough(Component component) {
        return component instanceof Window || Facts.parent(component) == null || Facts.name(component) != null
                || ClassFacts.of(component.getClass()).isPrograms();
    }

    private static String words(Component component) {
        Container parent = Facts.parent(component);
        boolean isWindow = component instanceof Window;
        String title = isWindow && Facts.name(component) == null ? Facts.text(component) : null;
        if (title != null) {
            return Code.describe(component) + " titled \"" + title + "\"";
        }
        if (isWindow || parent == null) {
            return Code.describe(component);
        }
        if (Machinery.of(component, parent) == Machinery.BETWEEN && parent instanceof JLayeredPane) {
            return "the content pane of " + shortPath(owner(component));
        }
        return Facts.name(component) != null ? Code.describe(component)
                                             : Code.describe(component) + '[' + number(component) + ']';
    }

    /** The nearest container around a component that is not machinery. */
    private static Component owner(Component component) {
        Container at = Facts.parent(component);
        while (Facts.parent(at) != null && Machinery.of(at, Facts.parent(at)) != Machinery.NO) {
            at = Facts.parent(at);
        }
        return at;
    }

    private static int number(Component component) {
        int number = 0;
        for (Component sibling : Facts.children(Facts.parent(component))) {
            if (sibling == component) {
                return number;
            }
            number += sibling.getClass() == component.getClass() ? 1 : 0;
        }
        return number;
    }

    /**
     * Everything that a reader of a report would ask for: which component, where, how it is, and where it was added.
     */
    public static String of(Component component) {
        StringBuilder text = new StringBuilder(Code.describe(component)).append('\n');
        line(text, "class", component.getClass().getName());
        line(text, "path", pathText(component));
        line(text, "text", Facts.text(component));
        line(text, "tooltip", Facts.toolTip(component));
        Rectangle bounds = Facts.bounds(component);
        line(text, "bounds", bounds.x + ", " + bounds.y + ", " + bounds.width + " x " + bounds.height);
        line(text, "state", state(component));
        StackTraceElement[] trace = StackTraceManager.getStackTrace(component);
        for (int i = 0; i < trace.length && i < MOST_FRAMES; i++) {
            line(text, i == 0 ? "added" : "", "at " + trace[i]);
        }
        if (trace.length > MOST_FRAMES) {
            line(text, "", "and " + (trace.length - MOST_FRAMES) + " more");
        }
        return text.toString();
    }

    private static void line(StringBuilder text, String name, String value) {
        if (value != null) {
            text.append(String.format("  %-8s %s%n", name, value.replaceAll("\\s+", " ")));
        }
    }

    private static String state(Component component) {
        Showing showing = Showing.of(component);
        boolean focused = KeyboardFocusManager.getCurrentKeyboardFocusManager().getFocusOwner() == component;
        return (showing == Showing.YES ? "showing" : showing.words())
                + (Facts.isEnabled(component) ? ", enabled" : ", disabled") + (focused ? ", has the focus" : "");
    }
}
