package com.vantrel.record;

import java.util.Arrays;
import java.util.List;

import com.vantrel.model.CallStack;

/**
 * One setting of a property of a component: when, on which thread, and by which calls. Holds nothing of the program.
 * May be used by any thread.
 */
public final class Change {
    private static final String OURS = "com.vantrel.";
    private static final int MOST_CALLS = 100_000;
    private static final CallTree CALLS = new CallTree(MOST_CALLS);

    private final String what;
    private final String thread;
    private final long millis;
    /**
     * First a Throwable that is never thrown, in which the VM has noted the stack; later the CallTree.Call made from
     * it, or null for an empty stack.
     */
    private Object stack;
    private final History history;
    /**
     * How many changes in a row this one stands for. This field and the next two are guarded by the history's lock.
     */
    int times = 1;
    /** Among the changes that are kept: the one before it, of the same property. */
    Change before;
    /** Among the changes that wait: the one after it, of the same property. */
    Change after;

    /**
     * @param history where it will be kept
     * @param frames  made where the property is set
     */
    Change(History history, String what, Throwable frames) {
        this.history = history;
        this.what = what;
        this.thread = Thread.currentThread().getName();
        this.millis = System.currentTimeMillis();
        this.stack = frames;
    }

    /** The name under which the component reports the change, which mostly is the property's. */
    public String what() {
        return what;
    }

    public String thread() {
        return thread;
    }

    /** How many times in a row the same calls have set it. */
    public int times() {
        return history.timesOf(this);
    }

    /** When it was set (if several times in a row, the last time), in milliseconds since 1970. */
    public long millis() {
        return millis;
    }

    /** The stack of the thread that has set it, from the component's own method outwards. */
    public CallStack stack() {
        CallTree.Call call = call();
        return call == null ? CallStack.of() : CallStack.of(call.stack());
    }

    /** Whether it was set in the inspector's window. */
    public boolean isOurs() {
        return Arrays.stream(call() == null ? new StackTraceElement[0] : call().stack())
                .anyMatch(line -> line.getClassName().startsWith(OURS));
    }

    /**
     * Brings the stack into the form in which it is kept, which is far smaller. This takes some ten times as long as
     * noting the stack did, so the thread that sets the property should not do it.
     */
    void findStack() {
        call();
    }

    synchronized boolean isStackKnown() {
        return !(stack instanceof Throwable);
    }

    /** Whether the same calls on the same thread have made another change. */
    boolean isLike(Change other) {
        return call() == other.call() && thread.equals(other.thread);
    }

    private synchronized CallTree.Call call() {
        if (stack instanceof Throwable) {
            stack = CALLS.branch(withoutHooks(((Throwable) stack).getStackTrace()));
        }
        return (CallTree.Call) stack;
    }

    /**
     * Leaves out our own calls, which are innermost: those from the component's method to where the throwable was made.
     */
    private static List<StackTraceElement> withoutHooks(StackTraceElement[] all) {
        int hooks = 0;
        while (hooks < all.length && all[hooks].getClassName().startsWith(OURS)) {
            hooks++;
        }
        return Arrays.asList(all).subList(hooks, all.length);
    }
}
