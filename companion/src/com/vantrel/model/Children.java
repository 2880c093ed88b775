package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

import javax.swing.JMenu;

/**
 * The components in a container. The windows that it owns are not among them, the items of a menu are. For the event
 * thread.
 */
final class Children {
    private Children() {
    }

    static List<Component> of(Container container) {
        List<Component> children = new ArrayList<>(Arrays.asList(Facts.inside(container)));
        if (container instanceof JMenu && Code.overrider(container.getClass(), "getPopupMenu") == null) {
            // The popup that holds a menu's items is not a child of the menu.
            children.addAll(of(((JMenu) container).getPopupMenu()));
        }
        return children;
    }
}
