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

    /** Whether nobody has said yet whether it is to be expanded. */
    boolean fresh = true;
    boolean expanded;
    /** Whether it was collapsed by hand among what a search has found, where all is expanded otherwise. */
    boolean collapsedInSearch;
    /** As the rows have it: machinery that is folded away takes no level. */
    int level;
    boolean expandable;
    /** Whether the last search found it, or something below it. */
    boolean match;
    boolean onPath;

    /** Of nothing: what all windows are below. */
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

    /** The node that this one is in, folded away or not; one of nothing for a window without an owner. */
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

    /** Nodes for components, those that there are already among them. */
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
