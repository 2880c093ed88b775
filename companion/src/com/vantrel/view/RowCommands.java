package com.vantrel.view;

import java.awt.event.ActionEvent;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.util.function.Consumer;

import javax.swing.AbstractAction;
import javax.swing.Action;
import javax.swing.JComponent;
import javax.swing.JPopupMenu;
import javax.swing.KeyStroke;

import com.vantrel.model.Row;

/** What can be done in a table of rows by key and by its menu. For the event thread. */
final class RowCommands {
    private final RowsTable table;

    RowCommands(RowsTable table) {
        this.table = table;
        bindKeys();
        table.setComponentPopupMenu(menu());
    }

    private void bindKeys() {
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_ENTER, 0), action("Edit", table::activate));
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_F2, 0), action("Edit", table::activate));
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_SPACE, 0), action("Edit", table::activate));
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_LEFT, 0), action("Fold", () -> table.fold(false)));
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_RIGHT, 0), action("Unfold", () -> table.fold(true)));
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_HOME, 0), action("First", () -> table.go(0)));
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_END, 0), action("Last", () -> table.go(table.getRowCount() - 1)));
        // Tab leaves the table, and does not go from cell to cell: the whole row is selected.
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_TAB, 0), action("Next", table::transferFocus));
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_TAB, InputEvent.SHIFT_DOWN_MASK),
                action("Previous", table::transferFocusBackward));
    }

    private JPopupMenu menu() {
        int shortcut = Tips.shortcutMask();
        JPopupMenu menu = new JPopupMenu();
        menu.add(bind(KeyStroke.getKeyStroke(KeyEvent.VK_C, shortcut),
                action("Copy value", () -> copy(table.selectedRow() == null ? "" : table.selectedRow().value()))));
        menu.add(action("Copy line", () -> copy(table.selectedRow() == null ? "" : table.selectedRow().toString())));
        menu.add(action("Copy all lines", () -> copy(allText())));
        return menu;
    }

    /**
     * Adds something that can be done with the selected row, by the menu and by key.
     *
     * @param key as {@link KeyStroke#getKeyStroke(String)} takes it
     */
    void add(String name, String key, Consumer<Row> task) {
        table.getComponentPopupMenu().add(bind(KeyStroke.getKeyStroke(key), action(name, () -> {
            if (table.selectedRow() != null) {
                task.accept(table.selectedRow());
            }
        })));
    }

    /**
     * Binds a key in the table and its children. (The action does nothing while a cell is being edited: the editor is a
     * child.)
     */
    private Action bind(KeyStroke key, Action action) {
        Object name = "vantrel " + key;
        table.getInputMap(JComponent.WHEN_ANCESTOR_OF_FOCUSED_COMPONENT).put(key, name);
        table.getActionMap().put(name, action);
        action.putValue(Action.ACCELERATOR_KEY, key);
        return action;
    }

    private Action action(String name, Runnable task) {
        return new AbstractAction(name) {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
                if (!table.isEditing()) {
                    task.run();
                }
            }
        };
    }

    private static void copy(String text) {
        if (!text.isEmpty()) {
            Clip.copy(text);
        }
    }

    private String allText() {
        StringBuilder text = new StringBuilder();
        for (int line = 0; line < table.getRowCount(); line++) {
            Row row = table.rows().row(line);
            text.append(row == null ? table.rows().group(line) : "    " + row).append('\n');
        }
        return text.toString();
    }
}
