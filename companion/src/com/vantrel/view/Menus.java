package com.vantrel.view;

import java.util.function.BooleanSupplier;

import javax.swing.Action;
import javax.swing.JCheckBoxMenuItem;
import javax.swing.JMenu;
import javax.swing.JMenuBar;
import javax.swing.JMenuItem;
import javax.swing.JPopupMenu;

/** The window's menus. Every command is in one of them, so that users find all commands there, with their keys. */
final class Menus {
    private Menus() {
    }

    /** @param close hides the window */
    static JMenuBar bar(Commands commands, BooleanSupplier showsMachinery, Action close) {
        JMenuBar bar = new JMenuBar();
        JMenu inspector = menu("Inspector", 'I', commands.pick, commands.find, null, close);
        JMenu edit = menu("Edit", 'E', commands.undo, commands.redo, null, commands.copyPath, commands.copyClass,
                commands.copyDescription);
        JMenu view = menu("View", 'V');
        JCheckBoxMenuItem machinery = new JCheckBoxMenuItem(commands.machinery);
        machinery.setToolTipText(null);
        view.add(machinery);
        view.addSeparator();
        add(view, commands.expandAll);
        add(view, commands.collapseAll);
        view.getPopupMenu().addPopupMenuListener(
                new OnPopup(() -> machinery.setSelected(showsMachinery.getAsBoolean())));
        JMenu go = menu("Go", 'G', commands.back, commands.forward, commands.parent, null, commands.outline);
        for (JMenu menu : new JMenu[] {inspector, edit, view, go}) {
            menu.getPopupMenu().addPopupMenuListener(new OnPopup(commands::update));
            bar.add(menu);
        }
        return bar;
    }

    private static JMenu menu(String name, char mnemonic, Action... actions) {
        JMenu menu = new JMenu(name);
        menu.setMnemonic(mnemonic);
        for (Action action : actions) {
            if (action != null) {
                add(menu, action);
            } else {
                menu.addSeparator();
            }
        }
        return menu;
    }

    private static void add(JMenu menu, Action action) {
        menu.add(new JMenuItem(action)).setToolTipText(null); // it would say the same again
    }

    /** The menu of the selected row. */
    static JPopupMenu ofRow(Commands commands) {
        JPopupMenu menu = new JPopupMenu();
        for (Action action : new Action[] {commands.outline, commands.parent, null, commands.copyPath,
                     commands.copyClass, commands.copyDescription}) {
            if (action == null) {
                menu.addSeparator();
            } else {
                menu.add(new JMenuItem(action)).setToolTipText(null);
            }
        }
        menu.addPopupMenuListener(new OnPopup(commands::update));
        return menu;
    }
}
