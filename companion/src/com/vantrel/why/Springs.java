package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.lang.reflect.Field;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Locale;

import javax.swing.Spring;
import javax.swing.SpringLayout;

import com.vantrel.model.Members;

/**
 * SpringLayout: to which edges of others a component's edges are tied. The layout tells of a spring only its value, so
 * that springs are read as they lie in it, where the toolkit's module is open to us.
 */
final class Springs {
    /** By direction: the record of the edges that were tied, and for each edge the field that has its spring. */
    private static final String[] HISTORIES = {"horizontalHistory", "verticalHistory"};
    private static final String[][] EDGES = {{SpringLayout.WEST, "x"}, {SpringLayout.EAST, "east"},
            {SpringLayout.WIDTH, "width"}, {SpringLayout.NORTH, "y"}, {SpringLayout.SOUTH, "south"},
            {SpringLayout.HEIGHT, "height"}};

    private Springs() {
    }

    static Sentence of(Component component, Container parent, SpringLayout layout) throws IllegalAccessException {
        SpringLayout.Constraints constraints = layout.getConstraints(component);
        List<Object> parts = new ArrayList<>();
        for (String[] edge : EDGES) {
            Object[] tie = isTied(constraints, edge[0]) ? tie(edge[0], read(constraints, edge[1])) : null;
            if (tie != null) {
                parts.add(parts.isEmpty() ? "" : " and ");
                parts.add(tie);
            }
        }
        String size = Extent.text(component);
        return parts.isEmpty()
                ? Sentence.of(
                        Managed.of(layout, parent), "makes it ", size, ": it tells only the values of its springs.")
                : Sentence.of(Managed.of(layout, parent), "ties ", parts.toArray(), ", which makes it ", size, ".");
    }

    private static boolean isTied(SpringLayout.Constraints constraints, String edge) throws IllegalAccessException {
        for (String name : HISTORIES) {
            Object history = read(constraints, name);
            if (history instanceof List && ((List<?>) history).contains(edge)) {
                return true;
            }
        }
        return false;
    }

    /** "its WEST to WEST of JPanel "form" + 5" for a spring that is another edge plus a number; null for others. */
    private static Object[] tie(String edge, Object spring) throws IllegalAccessException {
        Object plus = read(spring, "s1");
        Object other = read(spring, "s2");
        Object name = other == null ? null : read(other, "edgeName");
        Object of = name == null ? null : read(other, "c");
        if (!(plus instanceof Spring) || !(of instanceof Component)) {
            return null;
        }
        int distance = ((Spring) plus).getValue();
        String how = distance == 0 ? "" : (distance > 0 ? " + " : " - ") + Math.abs(distance);
        return new Object[] {"its ", edge.toUpperCase(Locale.ROOT), " to ",
                String.valueOf(name).toUpperCase(Locale.ROOT), " of ", of, how};
    }

    private static Object read(Object from, String name) throws IllegalAccessException {
        for (Class<?> at = from == null ? null : from.getClass(); at != null; at = at.getSuperclass()) {
            Field field = Arrays.stream(at.getDeclaredFields()).anyMatch(each -> each.getName().equals(name))
                    ? Members.field(at, name)
                    : null;
            if (field != null) {
                return field.get(from);
            }
        }
        return null;
    }
}
