package com.vantrel.why;

import java.awt.Component;
import java.util.Arrays;
import java.util.HashSet;
import java.util.List;
import java.util.Set;

import com.vantrel.model.CallSite;
import com.vantrel.model.CallStack;
import com.vantrel.record.Change;
import com.vantrel.record.ChangeRecorder;

/** Who has changed something, as far as that was recorded: a line of the program, the toolkit, or the inspector. */
final class Who {
    /** The methods of the toolkit through which all calls that set bounds go. */
    private static final Set<String> SETTERS =
            new HashSet<>(Arrays.asList("reshape", "setBounds", "setSize", "resize", "setLocation", "move"));
    private static final Set<String> LAYING_OUT = new HashSet<>(Arrays.asList("layoutContainer", "doLayout"));

    private final Class<?> type;
    private final CallStack stack;
    private final boolean isOurs;

    private Who(Component of, CallStack stack, boolean isOurs) {
        type = of.getClass();
        this.stack = stack;
        this.isOurs = isOurs;
    }

    /** @param stack of the thread that has done it */
    static Who of(Component component, CallStack stack) {
        return new Who(component, stack, false);
    }

    static Who of(Component component, Change change) {
        return new Who(component, change.stack(), change.isOurs());
    }

    /** Who has set a property last; null if that was not recorded. */
    static Who last(Component component, String property) {
        Change change = ChangeRecorder.last(component, property);
        return change == null ? null : of(component, change);
    }

    /** Parts that add to a sentence who has done it, such as ": X hid it"; none if it was not recorded. */
    static Object[] did(Component component, String property, String what) {
        Who who = last(component, property);
        return who == null ? new Object[0] : new Object[] {": ", who, " " + what};
    }

    /**
     * The line of the program; null if it was somebody else's doing, or that of a layout which the program had done.
     */
    StackTraceElement line() {
        if (isOurs || manager() != null) {
            return null;
        }
        String inner = "";
        for (StackTraceElement call : stack.lines()) {
            if (CallSite.isProgram(call) && !(call.getMethodName().equals(inner) && isOwn(call))) {
                return call;
            }
            inner = call.getMethodName();
        }
        return stack.where();
    }

    /**
     * Whether a call is of the component's own class: a setter there that hands on to the one that it overrides has not
     * thought of it itself.
     */
    private boolean isOwn(StackTraceElement call) {
        for (Class<?> at = type; at != null; at = at.getSuperclass()) {
            if (at.getName().equals(call.getClassName())) {
                return true;
            }
        }
        return false;
    }

    /** The call of the toolkit's manager that has done it while it laid out; null for none. */
    private StackTraceElement manager() {
        for (StackTraceElement call : stack.lines()) {
            if (CallSite.isProgram(call)) {
                return null;
            }
            if (LAYING_OUT.contains(call.getMethodName())) {
                return call;
            }
        }
        return null;
    }

    /** Whether the program has set bounds itself, as against a layout that it has had done. */
    boolean isSetter() {
        List<StackTraceElement> calls = stack.lines();
        if (line() == null || calls.stream().anyMatch(call -> LAYING_OUT.contains(call.getMethodName()))) {
            return false;
        }
        for (StackTraceElement call : calls) {
            if (CallSite.isProgram(call)) {
                return true;
            }
            if (!SETTERS.contains(call.getMethodName())) {
                return false;
            }
        }
        return false;
    }

    /** Whether the size is that to which a window was packed. */
    boolean isPacking() {
        return stack.lines().stream().anyMatch(
                call -> call.getMethodName().equals("pack") && call.getClassName().equals("java.awt.Window"));
    }

    @Override
    public String toString() {
        if (isOurs) {
            return "you, in this window,";
        }
        if (manager() != null) {
            String type = manager().getClassName();
            return type.substring(type.lastIndexOf('.') + 1).replace('$', '.');
        }
        return line() != null ? CallSite.summary(line()) : "the toolkit";
    }
}
