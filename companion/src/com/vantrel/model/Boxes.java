package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.Insets;
import java.awt.Rectangle;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.List;

import javax.swing.JComponent;
import javax.swing.border.Border;

/**
 * The bounds of a component, of its parent and of its siblings, and its insets, for a drawing. A snapshot, which is
 * made anew when something moves. Holds components weakly. For the event thread.
 */
public final class Boxes {
    /** A sibling, or the component itself. */
    public static final class Box {
        private final WeakReference<Component> component;
        private final Rectangle bounds;
        private final boolean visible;

        private Box(Component component) {
            this.component = new WeakReference<>(component);
            bounds = Facts.bounds(component);
            visible = Facts.isVisible(component);
        }

        /** Null once it has been collected. */
        public Component component() {
            return component.get();
        }

        /** In its parent. */
        public Rectangle bounds() {
            return bounds;
        }

        public boolean isVisible() {
            return visible;
        }
    }

    private static final int MOST_NEIGHBOURS = 500;

    private final Rectangle bounds;
    private final Insets border;
    private final Insets insets;
    private final int baseline;
    private final Dimension parent;
    private final List<Box> children = new ArrayList<>();

    private Boxes(Component component, Rectangle bounds, Reading reading) {
        this.bounds = bounds;
        Object all = reading.plainValue("insets");
        insets = all instanceof Insets ? (Insets) all : new Insets(0, 0, 0, 0);
        border = border(component);
        Object line = reading.plainValue("baseline");
        baseline = line instanceof Integer ? (Integer) line : -1;
        Container in = Facts.parent(component);
        parent = in == null ? null : Facts.bounds(in).getSize();
        if (in != null) {
            for (Component child : Children.of(in)) {
                if (children.size() < MOST_NEIGHBOURS) {
                    children.add(new Box(child));
                }
            }
        }
    }

    /** The boxes of what has been read; null if there is nothing, or it does not tell its bounds. */
    public static Boxes of(Reading reading) {
        Component component = reading.target().component();
        Object bounds = reading.target().isCell() ? Cells.bounds(reading.target()) : reading.plainValue("bounds");
        if (component == null || !(bounds instanceof Rectangle)) {
            return null;
        }
        return new Boxes(component, (Rectangle) bounds, reading);
    }

    /**
     * The insets of the border alone, which in most cases are all insets; null if they cannot be asked for without
     * calling code of the program.
     */
    private static Insets border(Component component) {
        boolean askable = component instanceof JComponent && Code.overrider(component.getClass(), "getBorder") == null;
        Border border = askable ? ((JComponent) component).getBorder() : null;
        if (border == null || !Code.isToolkit(border.getClass())) {
            return null;
        }
        try {
            return border.getBorderInsets(component);
        } catch (RuntimeException e) {
            return null;
        }
    }

    /** In its parent. */
    public Rectangle bounds() {
        return bounds;
    }

    /** What the border takes; null where there is none, or it cannot be asked. */
    public Insets border() {
        return border;
    }

    /** What is kept free of children and content. */
    public Insets insets() {
        return insets;
    }

    /** From the upper edge; negative where there is none. */
    public int baseline() {
        return baseline;
    }

    /** The parent's size; null for a window. */
    public Dimension parent() {
        return parent;
    }

    /** The component and those beside it, in the order in which the parent has them. */
    public List<Box> siblings() {
        return children;
    }
}
