package com.vantrel.model;

import java.awt.Component;
import java.lang.reflect.Field;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

import javax.swing.GroupLayout;

/**
 * The groups of a GroupLayout, which it keeps to itself: read where the toolkit's module is open to us. For the event
 * thread.
 */
public final class Groups {
    private static final Field HORIZONTAL = Members.field(GroupLayout.class, "horizontalGroup");
    private static final Field VERTICAL = Members.field(GroupLayout.class, "verticalGroup");

    private Groups() {
    }

    /** Adds a row for each direction, with sequential groups in brackets and parallel groups in braces. */
    static void describe(List<Row> rows, String group, GroupLayout layout) throws Throwable {
        if (HORIZONTAL == null || VERTICAL == null) {
            rows.add(Row.of(group, "groups", "not seen")
                             .kind(Row.Kind.DIM)
                             .explanation("GroupLayout keeps its groups to itself in this Java VM."));
        } else {
            String how = "What stands in [ ] comes one after the other, what stands in { } in the same place.";
            rows.add(Row.of(group, "horizontally", text(HORIZONTAL.get(layout))).explanation(how));
            rows.add(Row.of(group, "vertically", text(VERTICAL.get(layout))).explanation(how));
        }
        rows.add(Row.of(group, "automatic gaps",
                layout.getAutoCreateGaps() + " between, " + layout.getAutoCreateContainerGaps() + " around"));
    }

    /**
     * The sizes that the program has given a child for one direction, such as {@code default..90..\u221e}; empty where
     * it has given none, or the layout keeps them to itself.
     */
    public static String told(GroupLayout layout, Component child, boolean horizontally) throws IllegalAccessException {
        Field group = horizontally ? HORIZONTAL : VERTICAL;
        Object spring = group == null ? null : find(group.get(layout), child);
        return spring == null ? "" : sizes(spring).trim();
    }

    private static Object find(Object spring, Component child) throws IllegalAccessException {
        Field component = field(spring, "component");
        if (component != null) {
            return component.get(spring) == child ? spring : null;
        }
        Field springs = field(spring, "springs");
        for (Object part : springs == null ? Collections.emptyList() : (List<?>) springs.get(spring)) {
            Object found = find(part, child);
            if (found != null) {
                return found;
            }
        }
        return null;
    }

    private static String text(Object spring) throws Throwable {
        StringBuilder text = new StringBuilder();
        write(text, spring);
        return Values.cut(text.toString());
    }

    private static void write(StringBuilder text, Object spring) throws Throwable {
        Field springs = field(spring, "springs");
        if (springs != null) {
            List<?> parts = (List<?>) springs.get(spring);
            if (parts.size() == 1) {
                write(text, parts.get(0)); // the layout wraps the program's group in one of its own
                return;
            }
            boolean sequential = spring instanceof GroupLayout.SequentialGroup;
            text.append(sequential ? '[' : '{');
            String separator = "";
            for (Object part : parts) {
                text.append(separator);
                write(text, part);
                separator = ", ";
            }
            text.append(sequential ? ']' : '}');
            return;
        }
        Field component = field(spring, "component");
        text.append(component == null ? "gap" : Code.describe((Component) component.get(spring)));
        text.append(sizes(spring));
    }

    /** The sizes that the program has given: the smallest, preferred and largest; empty where it has given none. */
    private static String sizes(Object spring) throws IllegalAccessException {
        List<String> sizes = new ArrayList<>();
        boolean given = false;
        for (String name : new String[] {"min", "pref", "max"}) {
            Field field = field(spring, name);
            if (field == null || field.getType() != int.class) {
                return "";
            }
            int size = field.getInt(spring);
            given |= size > 0;
            sizes.add(size(size));
        }
        boolean fixed = sizes.get(0).equals(sizes.get(1)) && sizes.get(1).equals(sizes.get(2));
        return !given ? "" : " " + (fixed ? sizes.get(0) : String.join("..", sizes));
    }

    private static String size(int size) {
        return size == GroupLayout.DEFAULT_SIZE      ? "default"
                : size == GroupLayout.PREFERRED_SIZE ? "preferred"
                : size >= Short.MAX_VALUE            ? "\u221e"
                                                     : Integer.toString(size);
    }

    private static Field field(Object spring, String name) {
        for (Class<?> at = spring.getClass(); at != null; at = at.getSuperclass()) {
            Field field = Members.field(at, name);
            if (field != null) {
                return field;
            }
        }
        return null;
    }
}
