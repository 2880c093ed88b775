package com.vantrel.record;

import java.awt.Component;
import java.awt.Container;
import java.util.Collections;
import java.util.List;
import java.util.concurrent.ArrayBlockingQueue;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.CopyOnWriteArrayList;
import java.util.function.Predicate;

import com.vantrel.hooks.ChangeListener;
import com.vantrel.hooks.ComponentField;
import com.vantrel.hooks.Hooks;
import com.vantrel.model.Ours;

/**
 * Notes, between {@link #start} and {@link #stop}, who sets the properties of the program's components. What was noted
 * stays with the components after that. May be used by any thread.
 *
 * <p>The thread that sets a property only takes its stack, which costs a few microseconds; a daemon of ours brings the
 * stacks into the form in which they are kept. When too many wait for the daemon, the setting thread does that work
 * itself, so that memory is bounded.
 */
public final class ChangeRecorder {
    /** How many properties may wait for the daemon at once, and how many changes each of them. */
    private static final int MOST_PROPERTIES = 1_024;
    private static final int MOST_CHANGES = 16;

    /** Not recorded: nearly every change invalidates a layout, and nobody has set a property by that. */
    private static final String NOT_SET = Hooks.VALID;

    private static final class Field { static final ComponentField HISTORY = new ComponentField("vantrel$changes"); }

    /** The running recorders. A change that two of them want is noted by the first one only. */
    private static final List<ChangeRecorder> RUNNING = new CopyOnWriteArrayList<>();

    private final Predicate<Component> which;
    private final BlockingQueue<Runnable> waiting = new ArrayBlockingQueue<>(MOST_PROPERTIES);
    private final ChangeListener listener = new ChangeListener() {
        @Override
        public void changing(Component component, String what) {
            note(component, what);
        }

        @Override
        public void moving(Component component, Container from, Container to) {
            // Where a component was added is always recorded, with the component.
        }
    };
    private Thread settler;

    /** @param which the components whose changes are of interest; asked on whatever thread changes one */
    public ChangeRecorder(Predicate<Component> which) {
        this.which = which;
    }

    /** Begins to note changes. */
    public synchronized void start() {
        if (settler == null) {
            settler = new Thread(this::settle, "vantrel-recorder");
            settler.setDaemon(true);
            settler.setContextClassLoader(null); // or the thread would keep the class loader of whichever thread of the
                                                 // program has started it
            settler.start();
            RUNNING.add(this);
            Hooks.add(listener);
        }
    }

    /** Notes no more changes. */
    public synchronized void stop() {
        if (settler != null) {
            Hooks.remove(listener);
            RUNNING.remove(this);
            settler.interrupt();
            settler = null;
        }
    }

    private void note(Component component, String what) {
        if (what == null || what.equals(NOT_SET) || Ours.isOurs(component) || !isForThisOne(component)) {
            return;
        }
        History history = history(component);
        int count = history.add(new Change(history, what, new Throwable()));
        boolean isTaken = count > 1 || waiting.offer(() -> history.settle(what));
        if (!isTaken || count >= MOST_CHANGES) {
            history.settle(what);
        }
    }

    private boolean isForThisOne(Component component) {
        for (ChangeRecorder running : RUNNING) {
            if (running.which.test(component)) {
                return running == this;
            }
        }
        return false;
    }

    private static History history(Component component) {
        Object history = Field.HISTORY.get(component);
        if (history == null) {
            synchronized (Field.class) {
                history = Field.HISTORY.get(component);
                if (history == null) {
                    history = new History();
                    Field.HISTORY.set(component, history);
                }
            }
        }
        return (History) history;
    }

    private void settle() {
        try {
            while (true) {
                waiting.take().run();
            }
        } catch (InterruptedException e) {
            for (Runnable task = waiting.poll(); task != null; task = waiting.poll()) {
                task.run();
            }
        }
    }

    /** The last change of a component's property; null if none was noted. */
    public static Change last(Component component, String what) {
        History history = (History) Field.HISTORY.get(component);
        return history == null ? null : history.last(what);
    }

    /** All changes of a component that are kept, five of each property at most, the last one first. */
    public static List<Change> of(Component component) {
        History history = (History) Field.HISTORY.get(component);
        return history == null ? Collections.<Change>emptyList() : history.all();
    }
}
