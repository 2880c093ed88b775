package com.vantrel.view;

import java.awt.Component;
import java.awt.Dimension;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.event.ActionEvent;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.awt.event.MouseEvent;
import java.util.Collections;
import java.util.List;
import java.util.function.Consumer;

import javax.swing.AbstractAction;
import javax.swing.AbstractListModel;
import javax.swing.BorderFactory;
import javax.swing.InputMap;
import javax.swing.JList;
import javax.swing.JViewport;
import javax.swing.KeyStroke;
import javax.swing.ListSelectionModel;
import javax.swing.SwingUtilities;
import javax.swing.event.MouseInputAdapter;
import javax.swing.plaf.basic.BasicListUI;

import com.vantrel.model.ComponentTree;
import com.vantrel.model.TreeNode;
import com.vantrel.model.TreeSearch;

/**
 * The tree of components on the screen. It is a list whose rows have all the same height, which is fast however large
 * the program is. When the rows change, the selected component stays selected, and its row stays where it is on the
 * screen; if that was not in sight, the topmost row stays.
 */
final class TreeView extends JList<TreeNode> {
    private static final long serialVersionUID = 1L;

    private final transient ComponentTree tree;
    private final transient TreeSearch search;
    private final TreeRowPainter painter = new TreeRowPainter(this);
    private final Rows rows = new Rows();
    private transient Consumer<TreeNode> onSelect = node -> {};
    private transient Consumer<TreeNode> onHover = node -> {};
    private transient TreeNode selected;
    private boolean adjusting;
    private int hovered = -1;

    TreeView(ComponentTree tree, TreeSearch search) {
        this.tree = tree;
        this.search = search;
        setName("vantrel.tree");
        getAccessibleContext().setAccessibleName("Components");
        setModel(rows);
        setCellRenderer(painter);
        setSelectionMode(ListSelectionModel.SINGLE_SELECTION);
        addListSelectionListener(event -> {
            if (!adjusting && getSelectedValue() != null) {
                selected = getSelectedValue();
                onSelect.accept(selected);
            }
        });
        MouseInputAdapter mouse = new Mouse();
        addMouseListener(mouse);
        addMouseMotionListener(mouse);
        bind("LEFT", this::goOut);
        bind("RIGHT", this::goIn);
        bind("ADD", () -> expand(getSelectedValue(), true));
        bind("SUBTRACT", () -> expand(getSelectedValue(), false));
        bind("MULTIPLY", () -> expandAll(getSelectedValue()));
    }

    @Override
    public void updateUI() {
        setUI(new BasicListUI());
        setBackground(Look.paper());
        setForeground(Look.ink());
        setBorder(BorderFactory.createEmptyBorder(2, 0, 2, 0));
        setFixedCellHeight(TreeRowPainter.height());
        setFixedCellWidth(1);
    }

    /** Has a key do something with the selected row. */
    void bind(String key, Runnable action) {
        InputMap keys = getInputMap(WHEN_FOCUSED);
        keys.put(KeyStroke.getKeyStroke(key), "tree " + key);
        getActionMap().put("tree " + key, new AbstractAction() {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
                if (getSelectedValue() != null) {
                    action.run();
                }
            }
        });
    }

    /** Sets what to do when the user has selected a row. */
    void onSelect(Consumer<TreeNode> action) {
        onSelect = action;
    }

    /** Sets what to do when the pointer comes to a row, or, with null, leaves all rows. */
    void onHover(Consumer<TreeNode> action) {
        onHover = action;
    }

    int hovered() {
        return hovered;
    }

    boolean isSearched() {
        return tree.isSearched();
    }

    boolean isExpanded(TreeNode node) {
        return tree.isExpanded(node);
    }

    List<String> words() {
        return search.query().words();
    }

    /**
     * Selects a node that has a row, and scrolls to it; null selects nothing. Does not run what {@link #onSelect} has
     * set.
     */
    void select(TreeNode node) {
        selected = node;
        showRows();
        int row = rows.list.indexOf(node);
        if (row >= 0) {
            Rectangle cell = getCellBounds(row, row);
            Rectangle seen = getVisibleRect();
            int left = Math.max(0, TreeRowPainter.twistyAt(node) - TreeRowPainter.INDENT);
            boolean leftIsSeen = left >= seen.x && left + seen.width / 3 < seen.x + seen.width;
            scrollRectToVisible(new Rectangle(leftIsSeen ? seen.x : left, cell.y, seen.width, cell.height));
        }
    }

    /**
     * Scrolls to the selected row if it has got out of sight because the view became lower: a wide row brings a scroll
     * bar, which may cover the lowest row.
     * @param earlierHeight of the view, in pixels
     */
    void keepInSight(int earlierHeight) {
        int row = selected == null ? -1 : rows.list.indexOf(selected);
        Rectangle seen = getVisibleRect();
        if (row >= 0) {
            Rectangle cell = getCellBounds(row, row);
            int end = cell.y + cell.height;
            if (end > seen.y + seen.height && end <= seen.y + earlierHeight) {
                scrollRectToVisible(new Rectangle(seen.x, cell.y, 1, cell.height));
            }
        }
    }

    /**
     * Keeps a node selected whose row may be new or gone, and does not scroll. Does not run what {@link #onSelect} has
     * set.
     */
    void keep(TreeNode node) {
        selected = node;
        showRows();
    }

    /** Scrolls to the first row, and measures the width anew: all rows are others than before. */
    void scrollToFirst() {
        setFixedCellWidth(1);
        scrollRectToVisible(new Rectangle(0, 0, 1, getFixedCellHeight()));
    }

    /** Takes over the rows that the tree has now. */
    void showRows() {
        Rectangle seen = getVisibleRect();
        int first = seen.isEmpty() ? -1 : locationToIndex(seen.getLocation());
        int chosen = selected == null ? -1 : rows.list.indexOf(selected);
        if (chosen >= 0 && seen.intersects(getCellBounds(chosen, chosen))) {
            first = chosen; // the user looks at it, so it stays where it is
        }
        TreeNode anchor = first < 0 || first >= rows.list.size() ? null : rows.list.get(first);
        int offset = anchor == null ? 0 : seen.y - getCellBounds(first, first).y;
        adjusting = true;
        rows.set(tree.rows());
        int row = selected == null ? -1 : rows.list.indexOf(selected);
        if (row < 0) {
            clearSelection();
        } else if (getSelectedIndex() != row) {
            setSelectedIndex(row);
        }
        adjusting = false;
        int now = anchor == null ? -1 : rows.list.indexOf(anchor);
        if (now >= 0 && now != first && getParent() instanceof JViewport) {
            Dimension size = getPreferredSize();
            setSize(Math.max(size.width, getWidth()),
                    size.height); // or the viewport would limit the position by the old height
            int y = getCellBounds(now, now).y + offset;
            ((JViewport) getParent())
                    .setViewPosition(new Point(seen.x, Math.max(0, Math.min(y, size.height - seen.height))));
        }
        repaint();
    }

    /** Looks again at the components whose rows can be seen, and paints those that have changed. */
    void lookAgain() {
        Rectangle seen = getVisibleRect();
        int first = seen.isEmpty() ? -1 : locationToIndex(seen.getLocation());
        if (first < 0) {
            return;
        }
        int last = Math.min(rows.list.size() - 1, first + seen.height / getFixedCellHeight() + 1);
        int width = getFixedCellWidth();
        for (int row = first; row <= last; row++) {
            TreeNode node = rows.list.get(row);
            if (node.lookAgain()) {
                repaint(getCellBounds(row, row));
            }
            width = Math.max(width, painter.widthOf(node));
        }
        if (width > getFixedCellWidth()) {
            setFixedCellWidth(width);
        }
    }

    /** The node of the row at a point; null for none. */
    TreeNode nodeAt(Point point) {
        int row = locationToIndex(point);
        Rectangle cell = row < 0 ? null : getCellBounds(row, row);
        return cell != null && cell.contains(point) ? rows.list.get(row) : null;
    }

    private void expand(TreeNode node, boolean expanded) {
        if (node.isExpandable() && tree.isExpanded(node) != expanded) {
            tree.setExpanded(node, expanded);
            showRows();
        }
    }

    private void expandAll(TreeNode node) {
        tree.setAllExpanded(node, true);
        showRows();
    }

    private void goOut() {
        TreeNode node = getSelectedValue();
        if (node.isExpandable() && tree.isExpanded(node)) {
            expand(node, false);
        } else if (tree.parentOf(node) != null) {
            setSelectedValue(tree.parentOf(node), true);
        }
    }

    private void goIn() {
        TreeNode node = getSelectedValue();
        if (node.isExpandable() && !tree.isExpanded(node)) {
            expand(node, true);
        } else if (node.isExpandable()) {
            setSelectedIndex(getSelectedIndex() + 1);
            ensureIndexIsVisible(getSelectedIndex());
        }
    }

    /** As wide as the widest row that was seen so far, but never narrower than the viewport. */
    @Override
    public boolean getScrollableTracksViewportWidth() {
        Component parent = getParent();
        return parent instanceof JViewport && parent.getWidth() > getPreferredSize().width;
    }

    /** What the user types goes to the search. (A list would otherwise jump to a row that begins with it.) */
    @Override
    protected void processKeyEvent(KeyEvent event) {
        boolean command = (event.getModifiersEx()
                                  & (InputEvent.CTRL_DOWN_MASK | InputEvent.META_DOWN_MASK | InputEvent.ALT_DOWN_MASK))
                != 0;
        if (event.getID() == KeyEvent.KEY_TYPED && !command && !Character.isISOControl(event.getKeyChar())) {
            if ("+-*".indexOf(event.getKeyChar()) < 0) {
                firePropertyChange("typed", null, String.valueOf(event.getKeyChar()));
            }
            event.consume();
            return;
        }
        super.processKeyEvent(event);
    }

    /** Forgets everything: the window is being closed. */
    void clear() {
        selected = null;
        hovered = -1;
        painter.forget();
        showRows();
        setFixedCellWidth(1);
    }

    /** The rows as a list's model. */
    private static final class Rows extends AbstractListModel<TreeNode> {
        private static final long serialVersionUID = 1L;

        private transient List<TreeNode> list = Collections.emptyList();

        @Override
        public int getSize() {
            return list.size();
        }

        @Override
        public TreeNode getElementAt(int index) {
            return list.get(index);
        }

        /** Reports as changed only the rows between those that are the same at the beginning and at the end. */
        void set(List<TreeNode> next) {
            List<TreeNode> old = list;
            int most = Math.min(old.size(), next.size());
            int begin = 0;
            while (begin < most && old.get(begin) == next.get(begin)) {
                begin++;
            }
            int end = 0;
            while (end < most - begin && old.get(old.size() - 1 - end) == next.get(next.size() - 1 - end)) {
                end++;
            }
            list = next;
            if (old.size() - end > begin) {
                fireIntervalRemoved(this, begin, old.size() - end - 1);
            }
            if (next.size() - end > begin) {
                fireIntervalAdded(this, begin, next.size() - end - 1);
            }
        }
    }

    private final class Mouse extends MouseInputAdapter {
        private final DoubleClick doubleClick = new DoubleClick();

        @Override
        public void mousePressed(MouseEvent event) {
            TreeNode node = nodeAt(event.getPoint());
            boolean doubled = doubleClick.isEndedBy(event, node);
            if (node == null || !SwingUtilities.isLeftMouseButton(event)) {
                return;
            }
            int x = event.getX() - TreeRowPainter.twistyAt(node);
            boolean onTwisty = x >= 0 && x < TreeRowPainter.TWISTY;
            if (node.isExpandable() && (onTwisty || doubled)) {
                expand(node, !tree.isExpanded(node));
            }
        }

        @Override
        public void mouseMoved(MouseEvent event) {
            TreeNode node = nodeAt(event.getPoint());
            hover(node == null ? -1 : locationToIndex(event.getPoint()), node);
        }

        @Override
        public void mouseExited(MouseEvent event) {
            hover(-1, null);
        }

        private void hover(int row, TreeNode node) {
            if (row != hovered) {
                hovered = row;
                repaint();
                onHover.accept(node);
            }
        }
    }
}
