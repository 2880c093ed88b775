package com.vantrel.model;

import java.awt.Component;
import java.lang.reflect.Field;

/**
 * Private fields of the toolkit's classes, read where a class of the program overrides the getter: reading a field runs
 * no code. A field cannot be read where its module is closed to us, or where the VM's version of the class has no such
 * field; the caller says what to assume then. For any thread.
 */
final class Fields {
    static final Fields NAME = new Fields(Component.class, "name");
    static final Fields NAME_IS_SET = new Fields(Component.class, "nameExplicitlySet");
    static final Fields PARENT = new Fields(Component.class, "parent");
    static final Fields VISIBLE = new Fields(Component.class, "visible");
    static final Fields ENABLED = new Fields(Component.class, "enabled");
    static final Fields VALID = new Fields(Component.class, "valid");
    static final Fields EVENT_MASK = new Fields(Component.class, "eventMask");
    static final Fields MOUSE = new Fields(Component.class, "mouseListener");
    static final Fields MOUSE_MOTION = new Fields(Component.class, "mouseMotionListener");
    static final Fields MOUSE_WHEEL = new Fields(Component.class, "mouseWheelListener");
    static final Fields X = new Fields(Component.class, "x");
    static final Fields Y = new Fields(Component.class, "y");
    static final Fields WIDTH = new Fields(Component.class, "width");
    static final Fields HEIGHT = new Fields(Component.class, "height");
    static final Fields CHILDREN = new Fields(java.awt.Container.class, "component");
    static final Fields LAYOUT = new Fields(java.awt.Container.class, "layoutMgr");
    static final Fields LABEL_TEXT = new Fields(javax.swing.JLabel.class, "text");
    static final Fields BUTTON_TEXT = new Fields(javax.swing.AbstractButton.class, "text");
    static final Fields FRAME_TITLE = new Fields(java.awt.Frame.class, "title");
    static final Fields DIALOG_TITLE = new Fields(java.awt.Dialog.class, "title");
    static final Fields INTERNAL_TITLE = new Fields(javax.swing.JInternalFrame.class, "title");
    static final Fields ACCESSIBLE = new Fields(Component.class, "accessibleContext");
    static final Fields ACCESSIBLE_NAME = new Fields(javax.accessibility.AccessibleContext.class, "accessibleName");

    private final Class<?> owner;
    private final String name;
    private volatile Field field;
    private boolean tried;

    private Fields(Class<?> owner, String name) {
        this.owner = owner;
        this.name = name;
    }

    /** The value in an object; a fallback where the field cannot be read. */
    Object of(Object object, Object fallback) {
        if (field == null && !open()) {
            return fallback;
        }
        try {
            return field.get(object);
        } catch (IllegalAccessException | RuntimeException e) {
            return fallback;
        }
    }

    boolean isReadable() {
        return field != null || open();
    }

    private synchronized boolean open() {
        if (field == null && !tried) {
            tried = true;
            field = Members.field(owner, name);
        }
        return field != null;
    }
}
