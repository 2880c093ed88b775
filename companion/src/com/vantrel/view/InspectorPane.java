package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.event.ActionEvent;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;

import javax.swing.AbstractAction;
import javax.swing.Action;
import javax.swing.JMenuBar;
import javax.swing.JPanel;
import javax.swing.JPopupMenu;
import javax.swing.JSplitPane;
import javax.swing.SwingUtilities;

import com.vantrel.model.Edits;
import com.vantrel.model.Selection;
import com.vantrel.model.Settings;
import com.vantrel.model.TreeNode;

/** All that is in the inspector's window. Made when the window is shown, and dropped when it is closed. */
public final class InspectorPane extends JPanel {
    private static final long serialVersionUID = 1L;
    private static final String SPLIT = "window.split";
    private static final String MACHINERY = "tree.machinery";
    private static final double TREE_SHARE = 0.4;

    private final transient Selection selection;
    private final transient Edits edits;
    private final transient Sight sight;
    private final TreePane tree;
    private final transient Commands commands;
    private final ToolBar tools;
    private final StatusLine status;
    private final DetailsPane details;
    private final Split split;
    private final JMenuBar menus;

    /**
     * @param edits makes the user's changes in the program
     * @param close hides the window
     */
    public InspectorPane(Selection selection, Edits edits, Sight sight, Runnable close) {
        super(new BorderLayout());
        this.selection = selection;
        this.edits = edits;
        this.sight = sight;
        tree = new TreePane(selection);
        status = new StatusLine(selection);
        commands = new Commands(selection, edits, tree, sight, status, this::update);
        tools = new ToolBar(commands, tree.searchBar());
        details = new DetailsPane(selection);
        split = new Split(JSplitPane.HORIZONTAL_SPLIT, tree, details);
        split.setResizeWeight(TREE_SHARE);
        menus = Menus.bar(commands, tree.tree()::showsMachinery, closing(close));
        add(tools, BorderLayout.PAGE_START);
        add(split);
        add(status, BorderLayout.PAGE_END);

        commands.bind(this);
        selection.onChange(this::update);
        edits.onChange(this::update);
        sight.onChange(this::update);
        tree.onLook(this::update);
        tree.view().onHover(node -> sight.outline(node == null ? commands.shown() : node.component()));
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
        action.putValue(Action.ACCELERATOR_KEY, Command.keyStroke("ctrl W"));
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
            Point at = new Point(
                    TreeRowPainter.twistyAt(view.getSelectedValue()) + 2 * TreeRowPainter.TWISTY, row.y + row.height);
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

    /** Begins to look at the program: the window has its size now. */
    public void start() {
        validate();
        split.setDividerLocation(Settings.get(SPLIT, (int) (TREE_SHARE * getWidth())));
        tree.start();
        SwingUtilities.invokeLater(this::fillDetails);
    }

    /**
     * An event of its own: the event thread is the program's, too, and making the whole window at once would hold it
     * too long.
     */
    private void fillDetails() {
        if (isDisplayable()) {
            AddedAtPanel addedAt = new AddedAtPanel(selection);
            addedAt.onOutcome(outcome -> status.say(outcome.line(), outcome.isFailure()));
            Details all = new Details(selection, edits, addedAt, addedAt::openWhere);
            all.onOutcome(outcome -> status.say(outcome.line(), outcome.isFailure()));
            details.fill(all);
        }
    }

    /** Stores in the settings how the parts of the window are arranged. */
    public void remember() {
        Settings.set(SPLIT, String.valueOf(split.getDividerLocation()));
        Settings.set(MACHINERY, String.valueOf(tree.tree().showsMachinery()));
    }

    /** Forgets everything else: the window is being closed. */
    public void clear() {
        sight.outline(null);
        sight.pick(false);
        selection.clear();
        edits.clear();
        tree.clear();
    }

    private void update() {
        Component component = selection.component();
        boolean gone = component != null && tree.isReady() && tree.tree().nodeOf(component) == null;
        details.update(gone, selection.hasLost());
        commands.update();
        tools.update(sight.isPicking(), tree.tree().showsMachinery());
    }
}
