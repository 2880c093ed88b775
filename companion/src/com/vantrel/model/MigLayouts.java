package com.vantrel.model;

import java.awt.Component;
import java.awt.LayoutManager;

/**
 * Layout managers of the library MigLayout. It belongs to the program, if it is there at all, so its public methods are
 * called by reflection. For the event thread.
 */
public final class MigLayouts {
    private MigLayouts() {
    }

    /** Whether a manager is one, and not a class of the program's that extends it. */
    public static boolean isOne(LayoutManager layout) {
        return layout.getClass().getName().equals("net.miginfocom.swing.MigLayout");
    }

    /** The constraints of a component, as the program gave them: a text, or an object of the library's. */
    public static Object constraints(LayoutManager layout, Component component) throws Throwable {
        return Members.call(layout.getClass().getMethod("getComponentConstraints", Component.class), layout, component);
    }

    static void setConstraints(LayoutManager layout, Component component, Object constraints) throws Throwable {
        Members.call(layout.getClass().getMethod("setComponentConstraints", Component.class, Object.class), layout,
                component, constraints);
    }

    /**
     * What the layout as a whole, its columns or its rows were told.
     *
     * @param what "Layout", "Column" or "Row"
     */
    public static Object ofAll(LayoutManager layout, String what) throws Throwable {
        return Members.call(layout.getClass().getMethod("get" + what + "Constraints"), layout);
    }
}
