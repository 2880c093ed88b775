package com.vantrel.stacktrace;

import java.awt.Component;
import java.lang.ref.Reference;
import java.lang.ref.ReferenceQueue;
import java.lang.ref.WeakReference;
import java.util.Arrays;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.ConcurrentMap;

/**
 * Remembers where in the program each component was added to its container: the stack of the thread that added it
 * last.
 *
 * <p>Traces are kept by component, by identity, and weakly: they go when the component does. Until then a trace that
 * nobody has asked for keeps the classes on it loaded. All methods may be called from any thread; none of them calls
 * the component. A null component has no trace.
 */
public class StackTraceManager {
    private static final StackTraceElement[] NO_TRACE = new StackTraceElement[0];

    /** By Key, the trace as the VM took it (an Addition) or, once somebody has asked, as an array of elements. */
    private static final ConcurrentMap<Object, Object> TRACES = new ConcurrentHashMap<>();
    private static final ReferenceQueue<Component> GONE = new ReferenceQueue<>();

    /** All state is static; an instance gives nothing more. */
    public StackTraceManager() {
    }

    /**
     * Where a component was added.
     *
     * @return the stack of the adding thread, innermost call first; empty if no addition of the component was seen
     */
    public static StackTraceElement[] getStackTrace(Component component) {
        if (component == null) {
            return NO_TRACE;
        }
        Sought key = new Sought(component);
        Object trace = TRACES.get(key);
        if (trace instanceof Addition) {
            StackTraceElement[] elements = ((Addition) trace).elements();
            TRACES.replace(key, trace, elements);
            trace = elements;
        }
        return trace == null ? NO_TRACE : ((StackTraceElement[]) trace).clone();
    }

    /** Remembers a trace for a component, in the place of the one it has. A null trace counts as none. */
    public static void addStackTrace(Component component, StackTraceElement[] trace) {
        if (trace == null) {
            removeStackTrace(component);
        } else {
            put(component, trace.clone());
        }
    }

    /** Forgets the trace of a component. */
    public static void removeStackTrace(Component component) {
        if (component != null) {
            TRACES.remove(new Sought(component));
        }
    }

    /**
     * Remembers the current thread's stack for a component. Called by {@code java.awt.Container.addImpl}, of which the
     * agent makes this the first call, before the container has looked at the component: null is possible.
     *
     * <p>It runs with every addition, so it only has the VM note the frames; the elements, which cost several times as
     * much, are made when somebody asks for them.
     */
    public static void componentAdded(Component component) {
        put(component, new Addition());
    }

    private static void put(Component component, Object trace) {
        for (Reference<?> gone = GONE.poll(); gone != null; gone = GONE.poll()) {
            TRACES.remove(gone);
        }
        if (component != null) {
            Key key = new Key(component);
            TRACES.put(key, trace);
            if (key.get() == null) { // it went meanwhile, and the queue may have been read since
                TRACES.remove(key);
            }
        }
    }

    /** A component by identity. Equal to itself even after the component has gone, so that it can be removed. */
    private static final class Key extends WeakReference<Component> {
        private final int hash;

        Key(Component component) {
            super(component, GONE);
            hash = System.identityHashCode(component);
        }

        @Override
        public int hashCode() {
            return hash;
        }

        @Override
        public boolean equals(Object other) {
            if (this == other) {
                return true;
            }
            Component component = get();
            return component != null && other instanceof Key && ((Key) other).get() == component;
        }
    }

    /**
     * What a Key is looked for with. It holds the component strongly: a caller may have no other use for it, and a weak
     * reference would then be free to go before it was compared.
     */
    private static final class Sought {
        private final Component component;

        Sought(Component component) {
            this.component = component;
        }

        @Override
        public int hashCode() {
            return System.identityHashCode(component);
        }

        @Override
        public boolean equals(Object other) {
            return other instanceof Key && ((Key) other).get() == component;
        }
    }

    /** The frames of an addition, as the VM holds them. Never thrown. */
    private static final class Addition extends Throwable {
        private static final long serialVersionUID = 1L;

        Addition() {
            super(null, null, false, true);
        }

        /** The frames from the container's on: the innermost one is this class's own. */
        StackTraceElement[] elements() {
            StackTraceElement[] all = getStackTrace();
            return all.length == 0 ? all : Arrays.copyOfRange(all, 1, all.length);
        }
    }
}
