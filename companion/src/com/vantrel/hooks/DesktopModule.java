package com.vantrel.hooks;

import java.awt.Component;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;

/**
 * The module {@code java.desktop}. Where the VM has modules, its packages are closed to other modules, so that {@code
 * setAccessible} fails for their private members, and only the module's own code may open them. Therefore the agent
 * adds a method to {@code Component} that does so.
 */
public final class DesktopModule {
    private DesktopModule() {
    }

    /**
     * Opens packages of {@code java.desktop} to the companion, for the rest of the VM's life. Where there are no
     * modules all is open anyway; without the agent nothing is opened.
     *
     * @param packages such as "javax.swing"
     * @throws IllegalArgumentException if the module has no such package
     */
    public static void open(String... packages) {
        try {
            Method open = Component.class.getMethod("vantrel$open", String.class);
            for (String name : packages) {
                open.invoke(null, name);
            }
        } catch (NoSuchMethodException e) {
            // No agent, or no modules.
        } catch (InvocationTargetException e) {
            throw new IllegalArgumentException(e.getCause());
        } catch (IllegalAccessException e) {
            throw new IllegalStateException(e);
        }
    }
}
