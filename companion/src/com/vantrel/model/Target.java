package com.vantrel.model;

import java.awt.Component;
import java.lang.ref.WeakReference;

/**
 * What can be picked and selected: a component of the program, or one cell of a table, tree or list, which is no
 * component: a renderer paints it. Holds the component weakly, as everything must that is kept after a click.
 */
public final class Target {
    private static final int NO_CELL = -1;

    private final WeakReference<Component> component;
    private final int row;
    private final int column;

    private Target(Component component, int row, int column) {
        this.component = new WeakReference<>(component);
        this.row = row;
        this.column = column;
    }

    public static Target of(Component component) {
        return new Target(component, NO_CELL, NO_CELL);
    }

    /**
     * A cell, as the view of its owner counts: a row of a tree, an index of a list, a row and column of a table.
     *
     * @param owner  a JTable, JTree or JList
     * @param column 0 for a tree or list
     */
    public static Target cell(Component owner, int row, int column) {
        return new Target(owner, row, column);
    }

    /** The component, or the cell's owner; null once it has been collected. */
    public Component component() {
        return component.get();
    }

    public boolean isCell() {
        return row != NO_CELL;
    }

    public int row() {
        return row;
    }

    public int column() {
        return column;
    }

    /** Whether both stand for the same thing. Two that have lost their component do not. */
    public boolean isSameAs(Target other) {
        Component own = component();
        return other != null && own != null && own == other.component() && row == other.row && column == other.column;
    }
}
