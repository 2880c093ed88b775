package com.vantrel.model;

import java.awt.Component;
import java.awt.Rectangle;

import javax.swing.JList;
import javax.swing.JTable;
import javax.swing.JTree;
import javax.swing.ListCellRenderer;
import javax.swing.ListModel;
import javax.swing.tree.TreePath;

/**
 * Cells of tables, trees and lists: the component that paints one, prepared as its owner prepares it. It is the
 * renderer's, shared by all cells, and in no window: to be read at once, not changed, and not held. For the event
 * thread.
 */
public final class Cells {
    private Cells() {
    }

    /**
     * Has the renderer prepare its component for a cell, as with every painting.
     *
     * @return null if there is no such cell or renderer any more
     */
    static Component prepare(Target target) {
        Component owner = target.component();
        Component prepared = null;
        Rectangle at = bounds(target);
        if (at == null) {
            return null;
        }
        if (owner instanceof JTable) {
            JTable table = (JTable) owner;
            prepared = table.prepareRenderer(
                    table.getCellRenderer(target.row(), target.column()), target.row(), target.column());
        } else if (owner instanceof JTree) {
            prepared = prepare((JTree) owner, target.row());
        } else if (owner instanceof JList) {
            prepared = prepare((JList<?>) owner, target.row());
        }
        if (prepared != null && prepared.getParent() == null) {
            // Gives it the size that it is painted with, for otherwise only the painting would.
            prepared.setSize(at.width, at.height);
        }
        return prepared;
    }

    private static Component prepare(JTree tree, int row) {
        TreePath path = tree.getPathForRow(row);
        if (path == null || tree.getCellRenderer() == null) {
            return null;
        }
        Object value = path.getLastPathComponent();
        return tree.getCellRenderer().getTreeCellRendererComponent(tree, value, tree.isRowSelected(row),
                tree.isExpanded(row), tree.getModel().isLeaf(value), row,
                tree.hasFocus() && tree.getLeadSelectionRow() == row);
    }

    private static <E> Component prepare(JList<E> list, int index) {
        ListModel<E> model = list.getModel();
        ListCellRenderer<? super E> renderer = list.getCellRenderer();
        return renderer == null
                ? null
                : renderer.getListCellRendererComponent(list, model.getElementAt(index), index,
                        list.isSelectedIndex(index), list.hasFocus() && list.getLeadSelectionIndex() == index);
    }

    /** Where in its owner a cell is; null if there is no such cell any more. */
    public static Rectangle bounds(Target target) {
        Component owner = target.component();
        int row = target.row();
        if (owner instanceof JTable) {
            JTable table = (JTable) owner;
            boolean there = row < table.getRowCount() && target.column() < table.getColumnCount();
            return there ? table.getCellRect(row, target.column(), false) : null;
        }
        if (owner instanceof JTree) {
            return ((JTree) owner).getRowBounds(row);
        }
        if (owner instanceof JList) {
            JList<?> list = (JList<?>) owner;
            return row < list.getModel().getSize() ? list.getCellBounds(row, row) : null;
        }
        return null;
    }
}
