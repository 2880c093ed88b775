package com.vantrel.hooks;

import java.awt.AWTEvent;
import java.awt.Component;
import java.awt.Container;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

/**
 * The calls that the agent adds to {@code java.awt.Component} and {@code Container}, and where the inspector registers
 * for them. They are made with every event and every change in the program, so while nobody is registered each of them
 * is one test of one field. What a listener throws never reaches the program; the first time, it is printed.
 *
 * <p>What is registered is held, and called, until it is removed. Both may be done on any thread, also by a listener
 * while it is being called.
 */
public final class Hooks {
    /** Position and size. */
    public static final String BOUNDS = "bounds";
    public static final String VISIBLE = "visible";
    /**
     * The order of a container's components; additions and removals are told by {@link ChangeListener#moving} instead.
     */
    public static final String ORDER = "order";
    /** The component was invalidated: its computed sizes and its layout hold no longer. */
    public static final String VALID = "valid";
    public static final String ENABLED = "enabled";
    public static final String CURSOR = "cursor";
    public static final String FOCUSABLE = "focusable";

    /**
     * Null while there are none, so that calls cost next to nothing then. An array is only replaced, never changed, so
     * that it can be read without a lock.
     */
    private static volatile EventFilter[] filters;
    private static volatile ChangeListener[] listeners;

    private static volatile boolean reported;

    private Hooks() {
    }

    public static synchronized void add(EventFilter filter) {
        filters = with(filters, filter, new EventFilter[0]);
    }

    public static synchronized void remove(EventFilter filter) {
        filters = without(filters, filter);
    }

    public static synchronized void add(ChangeListener listener) {
        listeners = with(listeners, listener, new ChangeListener[0]);
    }

    public static synchronized void remove(ChangeListener listener) {
        listeners = without(listeners, listener);
    }

    /**
     * Called by {@code Component.dispatchEvent} before anything else. Returns whether the event is to go no further.
     */
    public static boolean event(Component source, AWTEvent event) {
        return filters != null && kept(source, event);
    }

    /** Called at the start of each method of {@code Component} that changes something which listeners are told of. */
    public static void changing(Component component, String what) {
        if (listeners != null) {
            tell(component, what);
        }
    }

    /** Called before a component's parent is written to, with the tree lock held. */
    public static void moving(Component component, Container from, Container to) {
        if (listeners != null) {
            tell(component, from, to);
        }
    }

    private static boolean kept(Component source, AWTEvent event) {
        EventFilter[] current = filters;
        boolean kept = false;
        for (int i = 0; current != null && i < current.length && !kept; i++) {
            try {
                kept = current[i].keep(source, event);
            } catch (Throwable e) {
                report(e);
            }
        }
        return kept;
    }

    private static void tell(Component component, String what) {
        ChangeListener[] current = listeners;
        for (int i = 0; current != null && i < current.length; i++) {
            try {
                current[i].changing(component, what);
            } catch (Throwable e) {
                report(e);
            }
        }
    }

    private static void tell(Component component, Container from, Container to) {
        ChangeListener[] current = listeners;
        for (int i = 0; current != null && i < current.length; i++) {
            try {
                current[i].moving(component, from, to);
            } catch (Throwable e) {
                report(e);
            }
        }
    }

    /** Only once, because what fails on one event fails on thousands. */
    private static void report(Throwable fault) {
        try {
            if (!reported) {
                reported = true;
                System.err.println("vantrel: a part of the inspector failed while it was told of the program:");
                fault.printStackTrace();
            }
        } catch (Throwable e) {
            // There is no memory or stack left to print with. The program will notice that by itself.
        }
    }

    private static <T> T[] with(T[] some, T another, T[] none) {
        List<T> all = new ArrayList<>(Arrays.asList(some == null ? none : some));
        all.add(another);
        return all.toArray(none);
    }

    private static <T> T[] without(T[] some, T one) {
        if (some == null) {
            return null;
        }
        List<T> left = new ArrayList<>(Arrays.asList(some));
        left.remove(one);
        return left.isEmpty() ? null : left.toArray(Arrays.copyOf(some, 0));
    }
}
