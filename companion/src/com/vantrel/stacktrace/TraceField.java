package com.vantrel.stacktrace;

import java.awt.Component;
import java.lang.invoke.MethodHandle;
import java.lang.invoke.MethodHandles;
import java.lang.invoke.MethodType;

/**
 * The field for a trace that the agent adds to {@code Component}, through the static methods that it adds with it.
 * Without the agent they are not there, and so is nothing that is set. They are sought when a trace is first asked for
 * and not while a program starts.
 */
final class TraceField {
    private static final MethodHandle GET = accessor(MethodType.methodType(Object.class, Component.class));
    private static final MethodHandle SET = accessor(MethodType.methodType(void.class, Component.class, Object.class));

    private TraceField() {
    }

    private static MethodHandle accessor(MethodType type) {
        try {
            return MethodHandles.publicLookup().findStatic(Component.class, "vantrel$trace", type);
        } catch (ReflectiveOperationException e) {
            return null;
        }
    }

    /** @return what was set, or what the container has taken; null for nothing */
    static Object get(Component component) {
        try {
            return GET == null ? null : (Object) GET.invokeExact(component);
        } catch (Throwable e) {
            throw unexpected(e);
        }
    }

    static void set(Component component, Object trace) {
        try {
            if (SET != null) {
                SET.invokeExact(component, trace);
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
