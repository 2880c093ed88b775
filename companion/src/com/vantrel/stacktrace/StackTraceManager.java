package com.vantrel.stacktrace;

import java.awt.Component;

/**
 * Remembers where in the program each component was added to its container: the stack of the thread that added it last.
 *
 * <p>A trace lies in a field that the agent adds to {@code java.awt.Component}, and lives as long as its component.
 * Without the agent there is no such field, and no component has a trace. All methods may be called from any thread;
 * none of them calls the component. A null component has no trace.
 */
public class StackTraceManager {
    private static final StackTraceElement[] NO_TRACE = new StackTraceElement[0];

    /** An instance has no state: all methods are static. */
    public StackTraceManager() {
    }

    /**
     * Where a component was added.
     *
     * @return the stack of the adding thread, innermost call first; empty if no addition of the component was seen
     */
    public static StackTraceElement[] getStackTrace(Component component) {
        Object trace = component == null ? null : TraceField.FIELD.get(component);
        return trace instanceof Trace ? ((Trace) trace).elements() : NO_TRACE;
    }

    /** Remembers a trace for a component, in the place of the one it has. A null trace counts as none. */
    public static void addStackTrace(Component component, StackTraceElement[] trace) {
        if (component != null) {
            TraceField.FIELD.set(component, trace == null ? null : new Trace(trace));
        }
    }

    /** Forgets the trace of a component. */
    public static void removeStackTrace(Component component) {
        addStackTrace(component, null);
    }

    /**
     * The current thread's stack, to be kept with a component. The agent has {@code java.awt.Container} call it
     * whenever a component gets a parent.
     *
     * <p>It runs with every addition, so it only has the VM note the frames; the elements, which cost several times as
     * much, are made when somebody asks for them.
     *
     * @return the value for the component's field; null if there is no memory or stack left for it, because an addition
     *         must not fail for that
     */
    public static Object take() {
        try {
            return new Trace(new Throwable());
        } catch (VirtualMachineError e) {
            return null;
        }
    }
}
