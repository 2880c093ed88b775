package com.vantrel.model;

import java.awt.Component;
import java.awt.KeyboardFocusManager;
import java.awt.Rectangle;
import java.util.ArrayList;
import java.util.List;

import com.vantrel.stacktrace.StackTraceManager;

/** A component in words, to paste into a report or a script. Runs nothing of the program. For the event thread. */
public final class Description {
    private static final int MOST_FRAMES = 12;

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
