package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.Collections;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Map;

/**
 * A component in the tree of a program's windows, as it was when the tree last looked. Holds the component weakly. For
 * the event thread.
 */
public final class TreeNode {
    private static final int FEW = 8;

    private final TreeNode parent;
    private final WeakReference<Component> component;
    private final ClassFacts facts;
    private List<TreeNode> children = Collections.emptyList();
    private Machinery machinery = Machinery.NO;
    private NodeLook look;

    /** Whether it is new, so that it is still to be decided whether it is expanded. */
    boolean fresh = true;
    boolean expanded;
    /** Whether the user has collapsed it among the rows of a search, which are all expanded at first. */
    boolean collapsedInSearch;
    /** How far its row is indented; machinery that is folded away does not count. */
    int level;
    boolean expandable;
    /** Whether the last search found it. */
    boolean match;
    boolean onPath;

    /** The root, which stands for no component and has the windows for children. */
    TreeNode() {
        parent = null;
        component = new WeakReference<>(null);
        facts = null;
        fresh = false;
        expanded = true;
        level = -1;
    }

    private TreeNode(TreeNode parent, Component component) {
        this.parent = parent;
        this.component = new WeakReference<>(component);
        facts = ClassFacts.of(component.getClass());
    }

    /** The component; null once it has been collected. */
    public Component component() {
        return component.get();
    }

    public ClassFacts facts() {
        return facts;
    }

    /** The node that this one is in, folded away or not; the root for a window without an owner. */
    TreeNode parent() {
        return parent;
    }

    List<TreeNode> children() {
        return children;
    }

    Machinery machinery() {
        return machinery;
    }

    /** How far it is indented, from 0 on. */
    public int level() {
        return level;
    }

    /** Whether there is anything to expand. */
    public boolean isExpandable() {
        return expandable;
    }

    /** Whether the last search found this component itself, and not only something in it. */
    public boolean isMatch() {
        return match;
    }

    /** What its row says, as it was when somebody last looked. */
    public NodeLook look() {
        if (look == null) {
            look = NodeLook.of(this);
        }
        return look;
    }

    /** Looks again at what its row says. Returns whether that has changed. */
    public boolean lookAgain() {
        NodeLook before = look;
        look = NodeLook.of(this);
        return !look.equals(before);
    }

    /** Looks at one component's children. Returns whether they, or what they are to this one, have changed. */
    boolean readChildren(Component[] now) {
        boolean same = now.length == children.size();
        for (int i = 0; same && i < now.length; i++) {
            same = children.get(i).component.get() == now[i];
        }
        if (!same) {
            children = reuse(now);
        }
        Component own = component.get();
        Container container = own instanceof Container ? (Container) own : null;
        for (TreeNode child : children) {
            Component at = child.component.get();
            Machinery is = at == null ? Machinery.NO : Machinery.of(at, container);
            same &= is == child.machinery;
            child.machinery = is;
        }
        return !same;
    }

    /** A node for each component: the one that it had, or a new one. */
    private List<TreeNode> reuse(Component[] now) {
        List<TreeNode> nodes = new ArrayList<>(now.length);
        Map<Component, TreeNode> old = new IdentityHashMap<>(Math.max(FEW, children.size()));
        for (TreeNode child : children) {
            Component its = child.component.get();
            if (its != null) {
                old.put(its, child);
            }
        }
        for (Component each : now) {
            TreeNode node = old.get(each);
            nodes.add(node == null ? new TreeNode(this, each) : node);
        }
        return nodes;
    }

    /** The row as text, for scripts and for the clipboard. */
    @Override
    public String toString() {
        return facts == null ? "" : NodeLook.of(this).toString();
    }
}
