package com.vantrel.model;

import java.awt.Component;
import java.awt.Window;
import java.util.ArrayDeque;
import java.util.ArrayList;
import java.util.Collection;
import java.util.Collections;
import java.util.Deque;
import java.util.List;
import java.util.function.Consumer;
import java.util.function.Supplier;

/**
 * All windows of the program with all components in them, as rows to show: either what is expanded, without the
 * machinery unless that is asked for, or what a search has found. It follows the program by comparing what is there
 * with what was there before, so that a row stays the same row while its component stays. For the event thread.
 */
public final class ComponentTree {
    /** How many rows at most a window is expanded to when it has just come; a small one is expanded whole. */
    private static final int ROWS_OF_NEW_WINDOW = 200;
    private static final int ROWS_OF_OTHERS = 20;

    private final Supplier<? extends Component[]> windows;
    private final TreeNode top = new TreeNode();
    private List<TreeNode> rows = Collections.emptyList();
    private boolean showsMachinery;
    private boolean searched;
    private int count;
    /** Machinery that is shown all the same: the selected component, and the parts that it is in. */
    private final List<TreeNode> revealed = new ArrayList<>();

    /** @param windows gives the program's windows that have no owner, in order, without ours */
    public ComponentTree(Supplier<? extends Component[]> windows) {
        this.windows = windows;
    }

    /** The rows to show, from top to bottom. An unmodifiable list that later changes leave as it is. */
    public List<TreeNode> rows() {
        return rows;
    }

    /** How many components there are, machinery left out unless it is shown. */
    public int count() {
        return count;
    }

    public boolean showsMachinery() {
        return showsMachinery;
    }

    public void showMachinery(boolean show) {
        showsMachinery = show;
        layOut();
    }

    /** Looks at the program again. Returns whether the rows may have changed. */
    public boolean refresh() {
        boolean changed = top.readChildren(windows.get());
        List<TreeNode> newcomers = new ArrayList<>();
        Deque<TreeNode> open = new ArrayDeque<>();
        open.add(top);
        while (!open.isEmpty()) {
            TreeNode node = open.removeLast();
            Component component = node.component();
            changed |= component != null && node.readChildren(Facts.children(component));
            for (TreeNode child : node.children()) {
                if (child.fresh && !node.fresh) {
                    newcomers.add(child);
                }
                open.addLast(child);
            }
        }
        for (TreeNode node : newcomers) {
            expandAtFirst(node);
        }
        if (changed) {
            layOut();
        }
        return changed;
    }

    /** Expands what is near the top of something new, level by level, while there is room. */
    private void expandAtFirst(TreeNode newcomer) {
        int room = newcomer.component() instanceof Window ? ROWS_OF_NEW_WINDOW : ROWS_OF_OTHERS;
        Deque<TreeNode> open = new ArrayDeque<>();
        open.add(newcomer);
        while (!open.isEmpty()) {
            TreeNode node = open.removeFirst();
            Component component = node.component();
            boolean hidden = component instanceof Window && !Facts.isVisible(component);
            node.fresh = false;
            if (node.machinery() == Machinery.NO) {
                int inside = rowsIn(node);
                node.expanded = inside <= room && !hidden && isReached(node, newcomer);
                room -= node.expanded ? inside : 0;
            } else {
                node.expanded = node.machinery() == Machinery.BETWEEN;
            }
            open.addAll(node.children());
        }
    }

    private static boolean isReached(TreeNode node, TreeNode newcomer) {
        return node == newcomer || node.parent().expanded;
    }

    private int rowsIn(TreeNode node) {
        int[] number = {0};
        eachRowIn(node, child -> number[0]++);
        return number[0];
    }

    /**
     * Goes through the rows that a node would have if it were expanded: its children, but instead of machinery what is
     * in that.
     */
    private void eachRowIn(TreeNode node, Consumer<TreeNode> consumer) {
        for (TreeNode child : node.children()) {
            if (!isFolded(child)) {
                consumer.accept(child);
            } else if (child.machinery() == Machinery.BETWEEN) {
                eachRowIn(child, consumer);
            }
        }
    }

    private boolean isFolded(TreeNode node) {
        return !showsMachinery && node.machinery() != Machinery.NO && !revealed.contains(node);
    }

    private boolean hasRows(TreeNode node) {
        for (TreeNode child : node.children()) {
            if (!isFolded(child) || child.machinery() == Machinery.BETWEEN && hasRows(child)) {
                return true;
            }
        }
        return false;
    }

    private void layOut() {
        List<TreeNode> next = new ArrayList<>(rows.size() + 16);
        count = 0;
        addRows(top, 0, true, next);
        rows = Collections.unmodifiableList(next);
    }

    /** Adds the rows below a node, if those are to be seen, and counts all components there. */
    private void addRows(TreeNode node, int level, boolean seen, List<TreeNode> to) {
        for (TreeNode child : node.children()) {
            boolean folded = isFolded(child);
            if (folded && child.machinery() == Machinery.PART) {
                continue;
            }
            boolean row = !folded && seen && (!searched || child.match || child.onPath);
            if (row) {
                child.level = level;
                child.expandable = hasRows(child);
                to.add(child);
            }
            count += folded ? 0 : 1;
            addRows(child, folded ? level : level + 1, folded ? seen : row && isExpanded(child), to);
        }
    }

    public boolean isExpanded(TreeNode node) {
        return searched ? !node.collapsedInSearch : node.expanded;
    }

    public void setExpanded(TreeNode node, boolean expanded) {
        setExpanded(Collections.singleton(node), expanded);
    }

    /** Expands or collapses a node and all that is in it. */
    public void setAllExpanded(TreeNode node, boolean expanded) {
        List<TreeNode> all = new ArrayList<>();
        addAll(node, all);
        all.add(node);
        setExpanded(all, expanded);
    }

    /** Expands or collapses everything, but leaves the windows themselves to be seen. */
    public void setAllExpanded(boolean expanded) {
        List<TreeNode> all = new ArrayList<>();
        addAll(top, all);
        setExpanded(all, expanded);
    }

    private void setExpanded(Collection<TreeNode> nodes, boolean expanded) {
        for (TreeNode node : nodes) {
            if (searched) {
                node.collapsedInSearch = !expanded;
            } else {
                node.expanded = expanded;
            }
        }
        layOut();
    }

    /** All nodes that would be rows if everything were expanded, in that order. */
    List<TreeNode> all() {
        List<TreeNode> all = new ArrayList<>(count);
        addAll(top, all);
        return all;
    }

    private void addAll(TreeNode node, List<TreeNode> to) {
        eachRowIn(node, child -> {
            to.add(child);
            addAll(child, to);
        });
    }

    /** The node of a component; null where it is in none of the windows, or has come since the last look. */
    public TreeNode nodeOf(Component component) {
        List<Component> path = new ArrayList<>();
        for (Component at = component; at != null; at = Facts.parent(at)) {
            path.add(at);
        }
        TreeNode node = top;
        for (int i = path.size() - 1; i >= 0 && node != null; i--) {
            TreeNode next = null;
            for (TreeNode child : node.children()) {
                if (child.component() == path.get(i)) {
                    next = child;
                    break;
                }
            }
            node = next;
        }
        return node == top ? null : node;
    }

    /** The row that a row is indented below; null for one at the top. */
    public TreeNode parentOf(TreeNode node) {
        TreeNode at = node.parent();
        while (at != null && at != top && isFolded(at)) {
            at = at.parent();
        }
        return at == top ? null : at;
    }

    /**
     * Makes sure that there is a row for a node, machinery or not, whatever is collapsed. Null: no row is forced any
     * more.
     */
    public void reveal(TreeNode node) {
        revealed.clear();
        if (node != null) {
            revealed.add(node);
            for (TreeNode at = node.parent(); at != top && at != null; at = at.parent()) {
                if (at.machinery() == Machinery.PART) {
                    revealed.add(at);
                }
                at.expanded = true;
                at.onPath = true;
                at.collapsedInSearch = false;
            }
            node.onPath = true;
        }
        layOut();
    }

    /** Shows only what a search has found and what contains it; null shows everything again. */
    void showOnly(Collection<TreeNode> found) {
        searched = found != null;
        Deque<TreeNode> open = new ArrayDeque<>(top.children());
        while (!open.isEmpty()) {
            TreeNode node = open.removeLast();
            node.match = false;
            node.onPath = false;
            open.addAll(node.children());
        }
        if (searched) {
            for (TreeNode node : found) {
                node.match = true;
                for (TreeNode at = node.parent(); at != null && !at.onPath; at = at.parent()) {
                    at.onPath = true;
                }
            }
        }
        layOut();
    }

    /** Whether the rows are those of a search. */
    public boolean isSearched() {
        return searched;
    }

    /** Forgets everything: the window is being closed. */
    public void clear() {
        searched = false;
        revealed.clear();
        top.readChildren(new Component[0]);
        layOut();
    }
}
