package com.vantrel.model;

import java.lang.reflect.AccessibleObject;
import java.lang.reflect.Field;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;

import com.vantrel.hooks.DesktopModule;

/**
 * Members of classes that are called or read by reflection. May be used by any thread, if what is called allows it.
 */
public final class Members {
    static {
        DesktopModule.open("java.awt", "javax.accessibility", "javax.swing");
    }

    private Members() {
    }

    /** Calls a method and gives what it returns, or throws what it throws. */
    static Object call(Method method, Object on, Object... arguments) throws Throwable {
        // A public method can be called at once only if its class is public, too, and most of a program's are not.
        if (!Modifier.isPublic(method.getDeclaringClass().getModifiers())) {
            open(method);
        }
        try {
            return method.invoke(on, arguments);
        } catch (InvocationTargetException e) {
            throw e.getCause();
        }
    }

    /**
     * A field of one of the toolkit's classes.
     *
     * @return null where there is no such field, or where the toolkit's module keeps it to itself
     */
    public static Field field(Class<?> type, String name) {
        try {
            Field field = type.getDeclaredField(name);
            return open(field) ? field : null;
        } catch (NoSuchFieldException e) {
            return null;
        }
    }

    /** As {@link #field}, for a method. */
    static Method method(Class<?> type, String name, Class<?>... parameters) {
        try {
            Method method = type.getDeclaredMethod(name, parameters);
            return open(method) ? method : null;
        } catch (NoSuchMethodException e) {
            return null;
        }
    }

    private static boolean open(AccessibleObject member) {
        try {
            member.setAccessible(true);
            return true;
        } catch (RuntimeException e) {
            // The module is not open to us. Its exception is newer than the Java that this is written for.
            return false;
        }
    }
}
