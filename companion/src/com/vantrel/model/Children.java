package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

import javax.swing.JMenu;

/** What lies in a container: not the windows that it owns, but the items of a menu. For the event thread. */
final class Children {
    private Children() {
    }

    static List<Component> of(Container container) {
        List<Component> children = new ArrayList<>(Arrays.asList(Facts.inside(container)));
        if (container instanceof JMenu && Code.overrider(container.getClass(), "getPopupMenu") == null) {
            // Its popup is not a child of it, and is its child in all but name.
            children.addAll(of(((JMenu) container).getPopupMenu()));
        }
        return children;
    }
}
