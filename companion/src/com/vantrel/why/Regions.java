package com.vantrel.why;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.Container;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Locale;

/** BorderLayout: its regions, and what happens to a component whose region another one has taken. */
final class Regions {
    /** Those that go from side to side, those that go from top to bottom, and what is left. */
    private static final List<String> WIDE =
            Arrays.asList(BorderLayout.NORTH, BorderLayout.SOUTH, BorderLayout.PAGE_START, BorderLayout.PAGE_END);
    private static final List<String> HIGH =
            Arrays.asList(BorderLayout.WEST, BorderLayout.EAST, BorderLayout.LINE_START, BorderLayout.LINE_END);
    /** What the constants are called whose values are others. */
    private static final String[][] NAMES = {{BorderLayout.PAGE_START, "PAGE_START"},
            {BorderLayout.PAGE_END, "PAGE_END"}, {BorderLayout.LINE_START, "LINE_START"},
            {BorderLayout.LINE_END, "LINE_END"}};

    private Regions() {
    }

    static Sentence of(Component component, Container parent, BorderLayout layout) {
        Object region = layout.getConstraints(component);
        if (region == null) {
            return Sentence.of("It ", notLaidOut(parent, layout));
        }
        Object[] where = {"BorderLayout of ", parent, " has it in " + name(region)};
        if (WIDE.contains(region)) {
            return Sentence.of(where, ": as wide as there is room, " + Extent.size(component).width + ", and ",
                    Extent.preferred(component, false), ".");
        }
        if (HIGH.contains(region)) {
            return Sentence.of(where, ": as high as there is room, " + Extent.size(component).height + ", and ",
                    Extent.preferred(component, true), ".");
        }
        return Sentence.of(
                where, ", which gets what is left, ", Extent.text(component), Extent.doesNotCount(component), ".");
    }

    /** The end of a sentence on a component that is in no region; null for one that is. */
    static Object[] notLaidOut(Component component, BorderLayout layout, Container parent) {
        return layout.getConstraints(component) == null ? notLaidOut(parent, layout) : null;
    }

    private static Object[] notLaidOut(Container parent, BorderLayout layout) {
        List<Object> parts = new ArrayList<>();
        parts.addAll(Arrays.asList(
                "is in no region of BorderLayout in ", parent, ". Each holds only the last one that was added"));
        String separator = ": ";
        for (List<String> regions : Arrays.asList(WIDE, HIGH, Arrays.asList(BorderLayout.CENTER))) {
            for (String region : regions) {
                Component there = layout.getLayoutComponent(region);
                if (there != null) {
                    parts.addAll(Arrays.asList(separator, there, " in " + name(region)));
                    separator = ", ";
                }
            }
        }
        parts.add(".");
        return parts.toArray();
    }

    private static String name(Object region) {
        for (String[] name : NAMES) {
            if (name[0].equals(region)) {
                return name[1];
            }
        }
        return String.valueOf(region).toUpperCase(Locale.ROOT);
    }
}
