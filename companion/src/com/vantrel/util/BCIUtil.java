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
 * nothing here may touch {@code java.awt}. Each takes the running VM's own class file and returns it with additions;
 * everything else in it stays byte for byte. If a supplier throws, the agent prints that, and the VM ends.
 */
public final class BCIUtil {
    private BCIUtil() {
    }

    /** The class file of {@code java.awt.Component}, with what {@link ToolkitEdits#editComponent} adds. */
    public static byte[] getComponentClassData() {
        ClassFileEditor component = new ClassFileEditor(ownClassFile(ToolkitEdits.COMPONENT));
        ToolkitEdits.editComponent(component, hasModules());
        return component.toByteArray();
    }

    /** The class file of {@code java.awt.Container}, with what {@link ToolkitEdits#editContainer} adds. */
    public static byte[] getContainerClassData() {
        ClassFileEditor container = new ClassFileEditor(ownClassFile(ToolkitEdits.CONTAINER));
        ToolkitEdits.editContainer(container);
        return container.toByteArray();
    }

    private static boolean hasModules() {
        try {
            Class.class.getMethod("getModule");
            return true;
        } catch (NoSuchMethodException e) {
            return false;
        }
    }

    /**
     * Reads the class file that the boot loader has for a class. It is asked through a new class loader whose only
     * parent is the boot loader, so that neither the application's class loaders nor a security manager have a say.
     */
    private static byte[] ownClassFile(final String className) {
        try {
            return AccessController.doPrivileged(new PrivilegedExceptionAction<byte[]>() {
                @Override
                public byte[] run() throws IOException {
                    ClassLoader bootLoaderOnly = new ClassLoader(null) {};
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
