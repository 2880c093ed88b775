package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;
import java.util.ArrayList;
import java.util.List;

import javax.swing.JMenu;

/** The children of a container, as the toolkit knows them. For the event thread. */
final class Children {
    private Children() {
    }

    /** The children, and a menu's items; none of a container whose class has its own idea of them. */
    static List<Component> of(Container container) {
        List<Component> children = new ArrayList<>();
        Class<?> type = container.getClass();
        if (Code.overrider(type, "getComponentCount") != null
                || Code.overrider(type, "getComponent", int.class) != null) {
            return children;
        }
        for (int i = 0; i < container.getComponentCount(); i++) {
            children.add(container.getComponent(i));
        }
        if (container instanceof JMenu && Code.overrider(type, "getPopupMenu") == null) {
            // Its popup is not a child of it, and is its child in all but name.
            children.addAll(of(((JMenu) container).getPopupMenu()));
        }
        return children;
    }
}
