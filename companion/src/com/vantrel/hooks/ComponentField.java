package com.vantrel.hooks;

import java.awt.Component;
import java.lang.invoke.MethodHandle;
import java.lang.invoke.MethodHandles;
import java.lang.invoke.MethodType;

/**
 * A field that the agent adds to {@code Component}, with two static methods that read and write it. Its value lives as
 * long as its component. Without the agent there is no such field: then nothing is stored, and what is read is null.
 * May be used by any thread.
 */
public final class ComponentField {
    private final MethodHandle get;
    private final MethodHandle set;

    /** Looks for the two methods. That takes a while, and is not to be done while the program starts. */
    public ComponentField(String name) {
        get = accessor(name, MethodType.methodType(Object.class, Component.class));
        set = accessor(name, MethodType.methodType(void.class, Component.class, Object.class));
    }

    private static MethodHandle accessor(String name, MethodType type) {
        try {
            return MethodHandles.publicLookup().findStatic(Component.class, name, type);
        } catch (ReflectiveOperationException e) {
            return null;
        }
    }

    /** The field's value; null if none was set. */
    public Object get(Component component) {
        try {
            return get == null ? null : (Object) get.invokeExact(component);
        } catch (Throwable e) {
            throw unexpected(e);
        }
    }

    public void set(Component component, Object value) {
        try {
            if (set != null) {
                set.invokeExact(component, value);
            }
        } catch (Throwable e) {
            throw unexpected(e);
        }
    }

    /** For what cannot happen: the methods only read and write a field. */
    private static RuntimeException unexpected(Throwable e) {
        if (e instanceof Error) {
            Error error = (Error) e;
            throw error;
        }
        return new IllegalStateException(e);
    }
}
