package com.vantrel.pick;

import java.awt.Component;
import java.awt.Container;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.Window;
import java.util.ArrayList;
import java.util.List;

import javax.swing.JList;
import javax.swing.JRootPane;
import javax.swing.JTable;
import javax.swing.JTree;

import com.vantrel.model.Cells;
import com.vantrel.model.Facts;
import com.vantrel.model.Target;

/**
 * Where components are, and which of them are at a place. Only bounds count: a component that is disabled, has no
 * listeners or lets the mouse through is found like any other. Coordinates are those of user space. For the event
 * thread.
 */
final class Places {
    private Places() {
    }

    /** The window that a component is in, or is; null for none. */
    static Window windowOf(Component component) {
        Component at = component;
        while (at != null && !(at instanceof Window)) {
            at = Facts.parent(at);
        }
        return (Window) at;
    }

    /** A point of a component, in its window's coordinates; null if it is in no window. */
    static Point inWindow(Component component, Point place) {
        Point point = new Point(place);
        Component at = component;
        while (at != null && !(at instanceof Window)) {
            Rectangle bounds = Facts.bounds(at);
            point.translate(bounds.x, bounds.y);
            at = Facts.parent(at);
        }
        return at == null ? null : point;
    }

    /**
     * What lies at a place of a window, the foremost first. Of components that lie in each other, only the innermost is
     * listed. A glass pane with nothing in it comes last, because users look through it.
     */
    static List<Component> at(Window window, Point place) {
        List<Component> found = new ArrayList<>();
        List<Component> glass = new ArrayList<>();
        if (Facts.isVisible(window)) {
            collect(window, place.x, place.y, found, glass);
        }
        found.addAll(glass);
        return found;
    }

    private static void collect(Component component, int x, int y, List<Component> found, List<Component> glass) {
        int before = found.size() + glass.size();
        for (Component child : component instanceof Container ? Facts.children(component) : new Component[0]) {
            Rectangle bounds = Facts.bounds(child);
            if (!(child instanceof Window) && Facts.isVisible(child) && bounds.contains(x, y)) {
                collect(child, x - bounds.x, y - bounds.y, found, glass);
            }
        }
        if (found.size() + glass.size() == before) {
            (isGlassPane(component) ? glass : found).add(component);
        }
    }

    private static boolean isGlassPane(Component component) {
        Container parent = Facts.parent(component);
        return parent instanceof JRootPane && ((JRootPane) parent).getGlassPane() == component;
    }

    /** What can be picked at a place of a component: a cell of it, or all of it. */
    static Target targetAt(Component component, Point place) {
        try {
            Target cell = cellAt(component, place);
            Rectangle bounds = cell == null ? null : Cells.bounds(cell);
            return bounds != null && bounds.contains(place) ? cell : Target.of(component);
        } catch (RuntimeException e) {
            return Target.of(component); // the program's model disagrees with its view
        }
    }

    private static Target cellAt(Component component, Point place) {
        if (component instanceof JTable) {
            JTable table = (JTable) component;
            int row = table.rowAtPoint(place);
            int column = table.columnAtPoint(place);
            return row < 0 || column < 0 ? null : Target.cell(table, row, column);
        }
        if (component instanceof JTree) {
            int row = ((JTree) component).getRowForLocation(place.x, place.y);
            return row < 0 ? null : Target.cell(component, row, 0);
        }
        if (component instanceof JList) {
            int row = ((JList<?>) component).locationToIndex(place);
            return row < 0 ? null : Target.cell(component, row, 0);
        }
        return null;
    }

    /** Where a window is on the screen. */
    static Point onScreen(Window window) {
        return Facts.bounds(window).getLocation(); // unlike other bounds, a window's are on the screen
    }

    /**
     * The visible part of a target, in its window; null if it is in no window, or nothing of it shows.
     *
     * @param whole if not null, is given the bounds of all of it, in its window
     */
    static Rectangle visiblePart(Target target, Rectangle whole) {
        Component at = target.component();
        if (at == null) {
            return null;
        }
        Rectangle size = new Rectangle(Facts.bounds(at).getSize());
        Rectangle all = target.isCell() ? cellBounds(target) : new Rectangle(size);
        if (all == null) {
            return null;
        }
        Rectangle part = all.intersection(size);
        while (!(at instanceof Window)) {
            Container parent = Facts.parent(at);
            if (parent == null || !Facts.isVisible(at)) {
                return null;
            }
            Rectangle bounds = Facts.bounds(at);
            part.translate(bounds.x, bounds.y);
            all.translate(bounds.x, bounds.y);
            part = part.intersection(new Rectangle(Facts.bounds(parent).getSize()));
            at = parent;
        }
        if (whole != null) {
            whole.setBounds(all);
        }
        return part.isEmpty() || !at.isShowing() ? null : part;
    }

    private static Rectangle cellBounds(Target target) {
        try {
            return Cells.bounds(target);
        } catch (RuntimeException e) {
            return null;
        }
    }
}
