package com.vantrel.model;

import java.awt.Component;
import java.awt.Window;

import com.vantrel.stacktrace.StackTraceManager;

/**
 * Where a component was added to its container: the recorded stack, and a summary of it in one line. Holds nothing of
 * the program. May be used by any thread.
 */
public final class AddedAt {
    private final CallStack stack;
    private final String withoutTrace;

    private AddedAt(CallStack stack, String withoutTrace) {
        this.stack = stack;
        this.withoutTrace = withoutTrace;
    }

    /** Where a component was last added; null is allowed. */
    public static AddedAt of(Component component) {
        return new AddedAt(CallStack.of(StackTraceManager.getStackTrace(component)), whyNoTrace(component));
    }

    private static String whyNoTrace(Component component) {
        if (component == null) {
            return "nothing is selected";
        }
        if (component instanceof Window) {
            return "a window, which is added to nothing";
        }
        return Facts.parent(component) == null ? "not yet added to anything" : "its addition was not recorded";
    }

    /** The stack of the addition; empty if none was recorded. */
    public CallStack stack() {
        return stack;
    }

    /** The program's innermost line, the one that put the component where it is; null if there is none. */
    public StackTraceElement where() {
        return stack.where();
    }

    /** One line that says where, or why nobody knows. */
    public String line() {
        StackTraceElement where = where();
        if (where != null) {
            return CallSite.summary(where);
        }
        return stack.isEmpty() ? withoutTrace : "added by the toolkit, by no line of the program";
    }

    /** Whether both say the same. */
    public boolean isSameAs(AddedAt other) {
        return other != null && stack.equals(other.stack) && withoutTrace.equals(other.withoutTrace);
    }
}
