package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.Rectangle;
import java.util.ArrayList;
import java.util.List;

/** Why a component has its size and its place, in rows. For the event thread. */
public final class LayoutFacts {
    private static final String SIZE = "Size";
    private static final String PARENT = "In its parent";
    private static final String OWN = "Its own layout";
    private static final String SIBLINGS = "Siblings";
    private static final int MOST_SIBLINGS = 200;

    private LayoutFacts() {
    }

    /** @param reading what was read of the component; what it has not read has no row */
    public static List<Row> of(Reading reading) {
        List<Row> rows = new ArrayList<>();
        Component component = reading.target().component();
        if (component == null) {
            return rows;
        }
        for (String name : new String[] {"bounds", "minimumSize", "preferredSize", "maximumSize"}) {
            Row row = reading.row(name);
            if (row != null) {
                rows.add(row.in(SIZE));
            }
        }
        if (reading.target().isCell()) {
            Rectangle cell = Cells.bounds(reading.target());
            if (cell != null) {
                rows.add(Row.of(SIZE, "cell", Formats.write(cell)).note("in its owner"));
            }
            return rows;
        }
        addReason(rows, reading, component, true);
        addReason(rows, reading, component, false);
        Container parent = Facts.parent(component);
        if (parent != null) {
            addParent(rows, reading, component, parent);
        }
        if (component instanceof Container && !Children.of((Container) component).isEmpty()) {
            Managers.describe(rows, OWN, (Container) component);
        }
        if (parent != null) {
            addSiblings(rows, component, parent);
        }
        return rows;
    }

    private static void addReason(List<Row> rows, Reading reading, Component component, boolean wide) {
        Object bounds = reading.plainValue("bounds");
        Object preferred = reading.plainValue("preferredSize");
        if (!(bounds instanceof Rectangle) || !(preferred instanceof Dimension)) {
            return;
        }
        int is = wide ? ((Rectangle) bounds).width : ((Rectangle) bounds).height;
        int wants = wide ? ((Dimension) preferred).width : ((Dimension) preferred).height;
        String difference = is == wants ? "as preferred"
                : is > wants            ? is - wants + " more than preferred"
                                        : wants - is + " less than preferred";
        String reason;
        try {
            reason = SizeReason.of(component, wide);
        } catch (RuntimeException e) {
            reason = Values.error(e);
        }
        rows.add(Row.of(SIZE, wide ? "its width" : "its height",
                            is == wants || reason == null ? difference : difference + ": " + reason)
                         .kind(is == wants ? Row.Kind.DIM : Row.Kind.PLAIN));
    }

    private static void addParent(List<Row> rows, Reading reading, Component component, Container parent) {
        rows.add(Row.of(PARENT, "parent", Code.describe(parent))
                         .note(Formats.write(Facts.bounds(parent).getSize()))
                         .programs(!Code.isMachinery(parent.getClass())));
        Row constraints = reading.row("constraints");
        if (constraints != null) {
            rows.add(constraints.in(PARENT));
        } else {
            String place = Managers.place(component);
            if (!place.isEmpty()) {
                rows.add(Row.of(PARENT, "place", place));
            }
        }
        Managers.describe(rows, PARENT, parent);
    }

    private static void addSiblings(List<Row> rows, Component component, Container parent) {
        int index = 0;
        for (Component child : Children.of(parent)) {
            if (index < MOST_SIBLINGS) {
                boolean self = child == component;
                rows.add(Row.of(SIBLINGS, index + "  " + Code.describe(child), Formats.write(Facts.bounds(child)))
                                 .note(self ? "this one" : Managers.place(child))
                                 .programs(self)
                                 .kind(Facts.isVisible(child) ? Row.Kind.PLAIN : Row.Kind.DIM));
            }
            index++;
        }
        if (index > MOST_SIBLINGS) {
            rows.add(Row.of(SIBLINGS, "more", Values.count(index - MOST_SIBLINGS, "sibling")).kind(Row.Kind.DIM));
        }
    }
}
