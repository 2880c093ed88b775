package com.vantrel.model;

import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

/**
 * A search in the tree, done in pieces that are short enough for the event thread. Whoever started it calls {@link
 * #work} until it is done, and starts it over when the program has changed; meanwhile the tree goes on showing what was
 * found before. For the event thread.
 */
public final class TreeSearch {
    /** How many components are looked at between two looks at the clock. */
    private static final int AT_ONCE = 64;

    private final ComponentTree tree;
    private Calls calls = new Calls();
    private Query query = Query.parse("", calls);
    /** The nodes to look at; null until the next piece of work has listed them. */
    private List<TreeNode> open = Collections.emptyList();
    private int next;
    private List<TreeNode> finds = new ArrayList<>();
    private int found;

    public TreeSearch(ComponentTree tree) {
        this.tree = tree;
    }

    /** Begins to search for what was typed; for nothing, shows everything again. */
    public void start(String typed) {
        query = Query.parse(typed, calls);
        startOver();
        if (query.isEmpty()) {
            found = 0;
            tree.showOnly(null);
        }
    }

    /** Searches again for the same: the program has changed. */
    public void startOver() {
        open = query.isEmpty() ? Collections.emptyList() : null;
        next = 0;
        finds = new ArrayList<>();
    }

    public boolean isOn() {
        return !query.isEmpty();
    }

    public boolean isWorking() {
        return open == null || next < open.size();
    }

    /** Goes on for some nanoseconds. Returns whether the rows have changed. */
    public boolean work(long duration) {
        long end = System.nanoTime() + duration;
        if (open == null) {
            open = tree.all();
        }
        if (open.isEmpty() && isOn()) {
            return finish();
        }
        while (isWorking()) {
            int until = Math.min(open.size(), next + AT_ONCE);
            for (; next < until; next++) {
                TreeNode node = open.get(next);
                if (query.finds(node)) {
                    finds.add(node);
                }
            }
            if (!isWorking()) {
                return finish();
            }
            if (System.nanoTime() - end > 0) {
                return false;
            }
        }
        return false;
    }

    private boolean finish() {
        open = Collections.emptyList();
        next = 0;
        found = finds.size();
        tree.showOnly(finds);
        return true;
    }

    /** How many components the last search found. */
    public int found() {
        return found;
    }

    /** How much of the search is done, in percent. */
    public int percent() {
        return open == null ? 0 : open.isEmpty() ? 100 : (int) (100L * next / open.size());
    }

    public Query query() {
        return query;
    }

    /** Forgets everything: the window is being closed. */
    public void clear() {
        calls = new Calls();
        start("");
        finds = new ArrayList<>();
    }
}
