package com.vantrel.util;

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
 * nothing here may touch {@code java.awt}. Each takes the running VM's own class file and returns it with an addition;
 * everything else in it stays byte for byte. What a supplier throws the agent prints, and the VM ends.
 */
public final class BCIUtil {
    private static final int ACC_PRIVATE = 0x0002;
    private static final int ACC_TRANSIENT = 0x0080;

    private BCIUtil() {
    }

    /**
     * The class file of {@code java.awt.Component}, with the private transient field {@code windowClosingException}
     * that the agent reads by name. VMs up to 8 have it; where it is there, nothing is added.
     */
    public static byte[] getComponentClassData() {
        ClassFileEditor component = new ClassFileEditor(ownClassFile("java/awt/Component"));
        if (!component.declaresField("windowClosingException")) {
            component.addField(ACC_PRIVATE | ACC_TRANSIENT, "windowClosingException", "Ljava/lang/RuntimeException;");
        }
        return component.toByteArray();
    }

    /**
     * The class file of {@code java.awt.Container}, whose {@code addImpl}, through which every component is added,
     * first tells {@link com.vantrel.stacktrace.StackTraceManager#componentAdded} which one it is.
     */
    public static byte[] getContainerClassData() {
        ClassFileEditor container = new ClassFileEditor(ownClassFile("java/awt/Container"));
        container.passFirstArgument("addImpl", "(Ljava/awt/Component;Ljava/lang/Object;I)V",
                "com/vantrel/stacktrace/StackTraceManager", "componentAdded", "(Ljava/awt/Component;)V");
        return container.toByteArray();
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
