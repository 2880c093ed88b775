package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.event.ActionEvent;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;
import java.util.function.Function;

import javax.swing.AbstractAction;
import javax.swing.Action;
import javax.swing.JComponent;
import javax.swing.JMenuBar;
import javax.swing.JPanel;
import javax.swing.JPopupMenu;
import javax.swing.KeyStroke;

import com.vantrel.model.Selection;
import com.vantrel.model.Settings;
import com.vantrel.model.TreeNode;

/** All that is in the inspector's window. Made when the window is shown, and dropped when it is closed. */
public final class InspectorPane extends JPanel {
    private static final long serialVersionUID = 1L;
    private static final String SPLIT = "window.split";
    private static final String MACHINERY = "tree.machinery";
    private static final int TREE_WIDTH = 420;

    private final transient Selection selection;
    private final transient Sight sight;
    private final TreePane tree;
    private final transient Commands commands;
    private final ToolBar tools;
    private final StatusLine status;
    private final DetailsPane details;
    private final Split split;
    private final JMenuBar menus;

    /**
     * @param details makes the part of the window that tells all about the selected component, out of the selection
     * @param close   hides the window
     */
    public InspectorPane(Selection selection, Sight sight, Function<Selection, JComponent> details,
            Runnable close) {
        super(new BorderLayout());
        this.selection = selection;
        this.sight = sight;
        tree = new TreePane(selection);
        status = new StatusLine(selection);
        commands = new Commands(selection, tree, sight, status, this::update);
        tools = new ToolBar(commands, tree.searchBar(), null, null);
        this.details = new DetailsPane(selection, details.apply(selection));
        split = new Split(tree, this.details);
        split.setDividerLocation(Settings.get(SPLIT, TREE_WIDTH));
        split.setResizeWeight(0.3);
        menus = Menus.bar(commands, tree.tree()::showsMachinery, closing(close), null, null);
        add(tools, BorderLayout.PAGE_START);
        add(split);
        add(status, BorderLayout.PAGE_END);

        commands.bind(this);
        selection.onChange(this::update);
        sight.onChange(this::update);
        tree.onLook(this::update);
        tree.view().onHover(node -> sight.outline(node == null ? null : node.component()));
        rowMenu(tree.view(), Menus.ofRow(commands));
        tree.tree().showMachinery(Boolean.parseBoolean(Settings.get(MACHINERY, "")));
        update();
    }

    private static Action closing(Runnable close) {
        Action action = new AbstractAction("Close") {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
                close.run();
            }
        };
        action.putValue(Action.ACCELERATOR_KEY, KeyStroke.getKeyStroke("ctrl W"));
        return action;
    }

    /** The menu of a row, by the right mouse button or by key. */
    private static void rowMenu(TreeView view, JPopupMenu menu) {
        view.addMouseListener(new MouseAdapter() {
            @Override
            public void mousePressed(MouseEvent event) {
                open(event);
            }

            @Override
            public void mouseReleased(MouseEvent event) {
                open(event);
            }

            private void open(MouseEvent event) {
                TreeNode node = event.isPopupTrigger() ? view.nodeAt(event.getPoint()) : null;
                if (node != null) {
                    view.setSelectedValue(node, false);
                    menu.show(view, event.getX(), event.getY());
                }
            }
        });
        Runnable atRow = () -> {
            Rectangle row = view.getCellBounds(view.getSelectedIndex(), view.getSelectedIndex());
            Point at = new Point(TreeRowPainter.twistyAt(view.getSelectedValue()) + 2 * TreeRowPainter.TWISTY,
                    row.y + row.height);
            menu.show(view, at.x, at.y);
        };
        view.bind("CONTEXT_MENU", atRow);
        view.bind("shift F10", atRow);
    }

    /** The window's menus. */
    public JMenuBar menus() {
        return menus;
    }

    /** What is to have the focus when the window is shown. */
    public Component first() {
        return tree.view();
    }

    /** Begins to look at the program. */
    public void start() {
        tree.start();
    }

    /** Remembers what is to be remembered of the window's parts. */
    public void remember() {
        Settings.set(SPLIT, String.valueOf(split.getDividerLocation()));
        Settings.set(MACHINERY, String.valueOf(tree.tree().showsMachinery()));
    }

    /** Forgets everything else: the window is being closed. */
    public void clear() {
        sight.outline(null);
        sight.pick(false);
        selection.clear();
        tree.clear();
    }

    private void update() {
        Component component = selection.component();
        boolean gone = component != null && tree.isReady() && tree.tree().nodeOf(component) == null;
        status.tellGone(gone);
        details.update(gone, selection.hasLost());
        commands.update();
        tools.update(sight.isPicking(), tree.tree().showsMachinery());
    }
}
