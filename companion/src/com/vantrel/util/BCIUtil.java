package com.vantrel.util;

import static com.vantrel.util.ClassFileEditor.NO_FRAME;
import static com.vantrel.util.Instructions.ALOAD_0;
import static com.vantrel.util.Instructions.ALOAD_1;
import static com.vantrel.util.Instructions.ARETURN;
import static com.vantrel.util.Instructions.GETFIELD;
import static com.vantrel.util.Instructions.IFNULL;
import static com.vantrel.util.Instructions.INVOKESTATIC;
import static com.vantrel.util.Instructions.PUTFIELD;
import static com.vantrel.util.Instructions.RETURN;

import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.security.AccessController;
import java.security.PrivilegedActionException;
import java.security.PrivilegedExceptionAction;

/**
 * Supplies the class files that the agent puts in the place of two of the VM's own.
 *
 * <p>The agent calls the suppliers on whatever thread is about to define the class, while the class is being loaded:
 * nothing here may touch {@code java.awt}. Each takes the running VM's own class file and returns it with additions;
 * everything else in it stays byte for byte. What a supplier throws the agent prints, and the VM ends.
 */
public final class BCIUtil {
    private static final int ACC_PUBLIC = 0x0001;
    private static final int ACC_PRIVATE = 0x0002;
    private static final int ACC_STATIC = 0x0008;
    private static final int ACC_VOLATILE = 0x0040;
    private static final int ACC_TRANSIENT = 0x0080;
    private static final int ACC_SYNTHETIC = 0x1000;

    private static final String COMPONENT = "java/awt/Component";
    private static final String CONTAINER = "java/awt/Container";
    private static final String STACK_TRACE_MANAGER = "com/vantrel/stacktrace/StackTraceManager";
    private static final String TRACE = "vantrel$trace";

    private BCIUtil() {
    }

    /**
     * The class file of {@code java.awt.Component}, with room for a component's trace, and with the private transient
     * field {@code windowClosingException} that the agent reads by name. VMs up to 8 have that one; where it is there,
     * it is not added.
     */
    public static byte[] getComponentClassData() {
        ClassFileEditor component = new ClassFileEditor(ownClassFile(COMPONENT));
        if (!component.declaresField("windowClosingException")) {
            component.addField(ACC_PRIVATE | ACC_TRANSIENT, "windowClosingException", "Ljava/lang/RuntimeException;");
        }
        addTrace(component);
        return component.toByteArray();
    }

    /**
     * The class file of {@code java.awt.Container}, which remembers with a component the stack on which it gets its
     * parent. Every way of giving it one is a write to {@code Component.parent} in this class.
     */
    public static byte[] getContainerClassData() {
        ClassFileEditor container = new ClassFileEditor(ownClassFile(CONTAINER));
        traceParents(container);
        return container.toByteArray();
    }

    /**
     * Adds the field of a trace, which goes with its component, and how {@link com.vantrel.stacktrace} reaches it from
     * outside of the package. The field is volatile so that whoever finds a trace finds all of it, on any thread; the
     * methods are static so that they do not pass for properties.
     */
    private static void addTrace(ClassFileEditor component) {
        component.addField(ACC_TRANSIENT | ACC_VOLATILE | ACC_SYNTHETIC, TRACE, "Ljava/lang/Object;");
        int field = component.fieldRef(COMPONENT, TRACE, "Ljava/lang/Object;");
        int flags = ACC_PUBLIC | ACC_STATIC | ACC_SYNTHETIC;
        byte[] get = new ByteSink().u1(ALOAD_0).u1(GETFIELD).u2(field).u1(ARETURN).toByteArray();
        component.addMethod(flags, TRACE, "(Ljava/awt/Component;)Ljava/lang/Object;", 1, 1, get, NO_FRAME);
        byte[] set = new ByteSink().u1(ALOAD_0).u1(ALOAD_1).u1(PUTFIELD).u2(field).u1(RETURN).toByteArray();
        component.addMethod(flags, TRACE, "(Ljava/awt/Component;Ljava/lang/Object;)V", 2, 2, set, NO_FRAME);
    }

    /**
     * Has every write to a component's parent done by a method of the container's own, which is
     *
     * <pre>
     * component.parent = parent;
     * if (parent != null) {
     *     component.vantrel$trace = StackTraceManager.take();
     * }
     * </pre>
     */
    private static void traceParents(ClassFileEditor container) {
        String parameters = "(Ljava/awt/Component;Ljava/awt/Container;)V";
        int end = 16;
        byte[] code = new ByteSink()
                .u1(ALOAD_0).u1(ALOAD_1).u1(PUTFIELD).u2(container.fieldRef(COMPONENT, "parent", "Ljava/awt/Container;"))
                .u1(ALOAD_1).u1(IFNULL).u2(end - 6)
                .u1(ALOAD_0)
                .u1(INVOKESTATIC).u2(container.methodRef(STACK_TRACE_MANAGER, "take", "()Ljava/lang/Object;"))
                .u1(PUTFIELD).u2(container.fieldRef(COMPONENT, TRACE, "Ljava/lang/Object;"))
                .u1(RETURN).toByteArray();
        String name = "vantrel$setParent";
        container.replaceWrites(COMPONENT, "parent", "Ljava/awt/Container;",
                container.methodRef(CONTAINER, name, parameters));
        container.addMethod(ACC_PRIVATE | ACC_STATIC | ACC_SYNTHETIC, name, parameters, 2, 2, code, end);
    }

    /**
     * Reads the class file that the boot loader has for a class. A class loader that has no parent but the boot loader
     * finds it, whatever the application's class loaders or a security manager make of resources.
     */
    private static byte[] ownClassFile(final String className) {
        try {
            return AccessController.doPrivileged(new PrivilegedExceptionAction<byte[]>() {
                @Override
                public byte[] run() throws IOException {
                    ClassLoader bootLoaderOnly = new ClassLoader(null) {
                    };
                    try (InputStream in = bootLoaderOnly.getResourceAsStream(className + ".class")) {
                        if (in == null) {
                            throw new IOException("the boot loader has no class file of it");
                        }
                        return readFully(in);
                    }
                }
            });
        } catch (PrivilegedActionException e) {
            throw new IllegalStateException("Cannot read the class file of " + className, e.getCause());
        }
    }

    private static byte[] readFully(InputStream in) throws IOException {
        ByteArrayOutputStream bytes = new ByteArrayOutputStream();
        byte[] chunk = new byte[16384];
        for (int n = in.read(chunk); n >= 0; n = in.read(chunk)) {
            bytes.write(chunk, 0, n);
        }
        return bytes.toByteArray();
    }
}
