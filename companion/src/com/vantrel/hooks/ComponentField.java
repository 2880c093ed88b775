package com.vantrel.hooks;

import java.awt.Component;
import java.lang.invoke.MethodHandle;
import java.lang.invoke.MethodHandles;
import java.lang.invoke.MethodType;

/**
 * A field that the agent adds to {@code Component}, through the static methods that it adds with it: what lies there
 * goes with its component. Without the agent there is no such field, and nothing that is set stays. May be used by any
 * thread.
 */
public final class ComponentField {
    private final MethodHandle get;
    private final MethodHandle set;

    /** Looks for the field, which takes a while: not for a time at which a program starts. */
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

    /** What lies there; null for nothing. */
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

    /** The accessors only read and write a field. */
    private static RuntimeException unexpected(Throwable e) {
        if (e instanceof Error) {
            Error error = (Error) e;
            throw error;
        }
        return new IllegalStateException(e);
    }
}
