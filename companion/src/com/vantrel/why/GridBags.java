package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.GridBagConstraints;
import java.awt.GridBagLayout;
import java.lang.reflect.Field;

import com.vantrel.model.Formats;
import com.vantrel.model.Members;

/** GridBagLayout: the cell of a component, and how much of it the component takes. */
final class GridBags {
    /** Where constraints that say RELATIVE have led to, which the layout notes in them. */
    private static final Field COLUMN = Members.field(GridBagConstraints.class, "tempX");
    private static final Field ROW = Members.field(GridBagConstraints.class, "tempY");

    private GridBags() {
    }

    static Sentence of(Component component, Container parent, GridBagLayout layout) throws IllegalAccessException {
        GridBagConstraints at = layout.getConstraints(component);
        Dimension is = Extent.size(component);
        Object[] where = {Managed.of(layout, parent),
                "has it in column " + place(COLUMN, at, at.gridx) + ", row " + place(ROW, at, at.gridy) + ": "};
        switch (at.fill) {
            case GridBagConstraints.BOTH:
                return Sentence.of(where, "as large as its cell, ", Formats.write(is), ", by fill=BOTH.");
            case GridBagConstraints.HORIZONTAL:
                return Sentence.of(where, "as wide as its cell, " + is.width + ", by fill=HORIZONTAL, and ",
                        other(component, false), ".");
            case GridBagConstraints.VERTICAL:
                return Sentence.of(where, "as high as its cell, " + is.height + ", by fill=VERTICAL, and ",
                        other(component, true), ".");
            default:
                return Sentence.of(where, size(component), ".");
        }
    }

    private static Object[] size(Component component) {
        Dimension is = Extent.size(component);
        Dimension preferred = Wants.PREFERRED.of(component);
        if (preferred != null && !preferred.equals(is) && is.equals(Wants.MINIMUM.of(component))) {
            return new Object[] {"there is too little room for what is preferred, ", Formats.write(preferred),
                    ", so that it gets its minimum size, ", Formats.write(is), Wants.MINIMUM.origin(component)};
        }
        if (preferred == null || preferred.equals(is)) {
            return new Object[] {"in its preferred size, ", Formats.write(is), Wants.PREFERRED.origin(component)};
        }
        return new Object[] {Extent.clause(component, true), ", and ", Extent.clause(component, false)};
    }

    private static Object[] other(Component component, boolean wide) {
        Wants wanted = Extent.wanted(component, wide);
        return wanted == Wants.PREFERRED || wanted == null && Wants.PREFERRED.of(component) == null
                ? Extent.preferred(component, wide)
                : Extent.clause(component, wide);
    }

    private static int place(Field field, GridBagConstraints constraints, int told) throws IllegalAccessException {
        return field == null ? told : field.getInt(constraints);
    }
}
