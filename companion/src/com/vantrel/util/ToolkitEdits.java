package com.vantrel.util;

import static com.vantrel.util.ClassFileEditor.NO_FRAME;
import static com.vantrel.util.Instructions.ALOAD_0;
import static com.vantrel.util.Instructions.ALOAD_1;
import static com.vantrel.util.Instructions.ARETURN;
import static com.vantrel.util.Instructions.GETFIELD;
import static com.vantrel.util.Instructions.IFEQ;
import static com.vantrel.util.Instructions.IFNULL;
import static com.vantrel.util.Instructions.INVOKESTATIC;
import static com.vantrel.util.Instructions.INVOKEVIRTUAL;
import static com.vantrel.util.Instructions.LDC_W;
import static com.vantrel.util.Instructions.NOP;
import static com.vantrel.util.Instructions.POP;
import static com.vantrel.util.Instructions.PUTFIELD;
import static com.vantrel.util.Instructions.RETURN;

import com.vantrel.hooks.Hooks;

/**
 * What the agent adds to {@code java.awt.Component} and {@code Container}. If the VM's class lacks a method that is to
 * be edited, the edit is left out where the inspector can do without it; otherwise it is an error.
 */
final class ToolkitEdits {
    static final String COMPONENT = "java/awt/Component";
    static final String CONTAINER = "java/awt/Container";

    private static final int ACC_PUBLIC = 0x0001;
    private static final int ACC_PRIVATE = 0x0002;
    private static final int ACC_STATIC = 0x0008;
    private static final int ACC_VOLATILE = 0x0040;
    private static final int ACC_TRANSIENT = 0x0080;
    private static final int ACC_SYNTHETIC = 0x1000;

    private static final String HOOKS = "com/vantrel/hooks/Hooks";
    private static final String STACK_TRACE_MANAGER = "com/vantrel/stacktrace/StackTraceManager";
    private static final String TRACE = "vantrel$trace";
    private static final String CHANGES = "vantrel$changes";
    private static final String PARENT_TYPE = "Ljava/awt/Container;";

    /** Descriptors of firePropertyChange, whose first argument is the property that changes. */
    private static final String[] FIRING = {
            "(Ljava/lang/String;Ljava/lang/Object;Ljava/lang/Object;)V",
            "(Ljava/lang/String;ZZ)V",
            "(Ljava/lang/String;II)V",
    };

    /** Other methods of Component through which all changes of a property go: name, descriptor, property. */
    private static final String[][] CHANGING = {
            {"reshape", "(IIII)V", Hooks.BOUNDS},
            {"show", "()V", Hooks.VISIBLE},
            {"hide", "()V", Hooks.VISIBLE},
            {"enable", "()V", Hooks.ENABLED},
            {"disable", "()V", Hooks.ENABLED},
            {"setCursor", "(Ljava/awt/Cursor;)V", Hooks.CURSOR},
            {"setFocusable", "(Z)V", Hooks.FOCUSABLE},
            {"invalidate", "()V", Hooks.VALID},
    };

    private ToolkitEdits() {
    }

    /**
     * Gives components room for their trace and their changes, has them tell {@link Hooks} of events and changes, and
     * adds the private transient field {@code windowClosingException}, which the agent looks up by name and only VMs up
     * to 8 have themselves.
     *
     * @param hasModules whether the VM has modules, which the class is then to open to the companion
     */
    static void editComponent(ClassFileEditor component, boolean hasModules) {
        if (!component.declaresField("windowClosingException")) {
            component.addField(ACC_PRIVATE | ACC_TRANSIENT, "windowClosingException", "Ljava/lang/RuntimeException;");
        }
        addRoom(component, TRACE);
        addRoom(component, CHANGES);
        filterEvents(component);
        for (String descriptor : FIRING) {
            tellOfChanges(component, "firePropertyChange", descriptor, null);
        }
        for (String[] change : CHANGING) {
            tellOfChanges(component, change[0], change[1], change[2]);
        }
        if (hasModules) {
            addOpen(component);
        }
    }

    /**
     * Has containers tell {@link Hooks} of additions and removals, and store in a component the stack on which it got
     * its parent. All additions and removals are writes to {@code Component.parent} in this class.
     */
    static void editContainer(ClassFileEditor container) {
        String name = "vantrel$setParent";
        String descriptor = "(Ljava/awt/Component;Ljava/awt/Container;)V";
        int field = container.fieldRef(COMPONENT, "parent", PARENT_TYPE);
        int moving =
                container.methodRef(HOOKS, "moving", "(Ljava/awt/Component;Ljava/awt/Container;Ljava/awt/Container;)V");
        int take = container.methodRef(STACK_TRACE_MANAGER, "take", "()Ljava/lang/Object;");
        int trace = container.fieldRef(COMPONENT, TRACE, "Ljava/lang/Object;");
        int branch = 15;
        int end = 25;
        // An instruction, or a few that belong together, to a line.
        // clang-format off
        byte[] code = new ByteSink()
                // Hooks.moving(component, component.parent, parent);
                .u1(ALOAD_0).u1(ALOAD_0).u1(GETFIELD).u2(field).u1(ALOAD_1).u1(INVOKESTATIC).u2(moving)
                // component.parent = parent;
                .u1(ALOAD_0).u1(ALOAD_1).u1(PUTFIELD).u2(field)
                // if (parent != null) component.vantrel$trace = StackTraceManager.take();
                .u1(ALOAD_1).u1(IFNULL).u2(end - branch)
                .u1(ALOAD_0).u1(INVOKESTATIC).u2(take).u1(PUTFIELD).u2(trace)
                .u1(RETURN).toByteArray();
        // clang-format on
        container.replaceWrites(COMPONENT, "parent", PARENT_TYPE, container.methodRef(CONTAINER, name, descriptor));
        container.addMethod(ACC_PRIVATE | ACC_STATIC | ACC_SYNTHETIC, name, descriptor, 3, 2, code, end);
        tellOfChanges(container, "setComponentZOrder", "(Ljava/awt/Component;I)V", Hooks.ORDER);
    }

    /**
     * Adds a field to components, with the methods by which {@link com.vantrel.hooks.ComponentField} reads and writes
     * it from outside of the package. The field is volatile, so that an object in it is seen complete on any thread.
     * The methods are static, so that they are not taken for a property.
     */
    private static void addRoom(ClassFileEditor component, String name) {
        component.addField(ACC_TRANSIENT | ACC_VOLATILE | ACC_SYNTHETIC, name, "Ljava/lang/Object;");
        int field = component.fieldRef(COMPONENT, name, "Ljava/lang/Object;");
        int flags = ACC_PUBLIC | ACC_STATIC | ACC_SYNTHETIC;
        byte[] get = new ByteSink().u1(ALOAD_0).u1(GETFIELD).u2(field).u1(ARETURN).toByteArray();
        component.addMethod(flags, name, "(Ljava/awt/Component;)Ljava/lang/Object;", 1, 1, get, NO_FRAME);
        byte[] set = new ByteSink().u1(ALOAD_0).u1(ALOAD_1).u1(PUTFIELD).u2(field).u1(RETURN).toByteArray();
        component.addMethod(flags, name, "(Ljava/awt/Component;Ljava/lang/Object;)V", 2, 2, set, NO_FRAME);
    }

    /**
     * {@code if (Hooks.event(this, event)) return;} at the head of dispatchEvent, so before anything is done with an
     * event.
     */
    private static void filterEvents(ClassFileEditor component) {
        int event = component.methodRef(HOOKS, "event", "(Ljava/awt/Component;Ljava/awt/AWTEvent;)Z");
        // An instruction, or a few that belong together, to a line.
        // clang-format off
        byte[] head = new ByteSink().u1(ALOAD_0).u1(ALOAD_1).u1(INVOKESTATIC).u2(event)
                .u1(NOP).u1(NOP).u1(NOP).u1(IFEQ).u2(4).u1(RETURN).toByteArray();
        // clang-format on
        if (!component.insertAtHead("dispatchEvent", "(Ljava/awt/AWTEvent;)V", head, 2, true)) {
            throw new IllegalArgumentException("Component has no dispatchEvent");
        }
    }

    /**
     * {@code Hooks.changing(this, what);} at the head of a method.
     *
     * @param what null for the method's first argument
     */
    private static void tellOfChanges(ClassFileEditor file, String method, String descriptor, String what) {
        ByteSink head = new ByteSink().u1(ALOAD_0);
        if (what == null) {
            head.u1(ALOAD_1).u1(NOP).u1(NOP);
        } else {
            head.u1(LDC_W).u2(file.stringRef(what));
        }
        head.u1(INVOKESTATIC).u2(file.methodRef(HOOKS, "changing", "(Ljava/awt/Component;Ljava/lang/String;)V"));
        file.insertAtHead(method, descriptor, head.u1(NOP).toByteArray(), 2, false);
    }

    /**
     * {@code Component.class.getModule().addOpens(packageName, Hooks.class.getModule());} as a method of the class,
     * because only code of the module itself may open its packages.
     */
    private static void addOpen(ClassFileEditor component) {
        int getModule = component.methodRef("java/lang/Class", "getModule", "()Ljava/lang/Module;");
        int addOpens = component.methodRef(
                "java/lang/Module", "addOpens", "(Ljava/lang/String;Ljava/lang/Module;)Ljava/lang/Module;");
        // An instruction, or a few that belong together, to a line.
        // clang-format off
        byte[] code = new ByteSink()
                .u1(LDC_W).u2(component.classRef(COMPONENT)).u1(INVOKEVIRTUAL).u2(getModule)
                .u1(ALOAD_0)
                .u1(LDC_W).u2(component.classRef(HOOKS)).u1(INVOKEVIRTUAL).u2(getModule)
                .u1(INVOKEVIRTUAL).u2(addOpens).u1(POP).u1(RETURN).toByteArray();
        // clang-format on
        int flags = ACC_PUBLIC | ACC_STATIC | ACC_SYNTHETIC;
        component.addMethod(flags, "vantrel$open", "(Ljava/lang/String;)V", 3, 1, code, NO_FRAME);
    }
}
