package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.LayoutManager;
import java.util.ArrayList;
import java.util.List;

import javax.swing.GroupLayout;

import com.vantrel.model.Groups;
import com.vantrel.model.MigLayouts;

/**
 * Managers that work out sizes from much that they were told: GroupLayout and MigLayout. What they were told is said.
 */
final class Told {
    private Told() {
    }

    static Sentence group(Component component, Container parent, GroupLayout layout) throws IllegalAccessException {
        return Sentence.of(Managed.of(layout, parent), "makes it ", group(layout, component, true), ", and ",
                group(layout, component, false), ".");
    }

    private static Object[] group(GroupLayout layout, Component component, boolean wide) throws IllegalAccessException {
        String told = Groups.told(layout, component, wide);
        String is = Extent.along(Extent.size(component), wide) + (wide ? " wide" : " high");
        return told.isEmpty() ? Extent.clause(component, wide) : new Object[] {is + ", for which it was told " + told};
    }

    static Sentence mig(Component component, Container parent, LayoutManager layout) throws Throwable {
        List<String> told = new ArrayList<>();
        add(told, MigLayouts.constraints(layout, component), "it");
        add(told, MigLayouts.ofAll(layout, "Layout"), "all");
        add(told, MigLayouts.ofAll(layout, "Column"), "columns");
        add(told, MigLayouts.ofAll(layout, "Row"), "rows");
        String text = told.isEmpty() ? "nothing" : told.get(0);
        for (int i = 1; i < told.size(); i++) {
            text += (i == told.size() - 1 ? " and " : ", ") + told.get(i);
        }
        return Sentence.of(
                Managed.of(layout, parent), "makes it ", Extent.text(component), ": it was told ", text, ".");
    }

    private static void add(List<String> told, Object what, String of) {
        if (what instanceof String && !((String) what).isEmpty()) {
            told.add("\"" + what + "\" for " + of);
        } else if (what != null && !(what instanceof String)) {
            told.add("constraints that are no text for " + of);
        }
    }
}
