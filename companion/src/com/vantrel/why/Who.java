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
    private static final Set<String> SETTERS = new HashSet<>(Arrays.asList(
            "reshape", "setBounds", "setSize", "resize", "setLocation", "move", "setVisible", "setLocationRelativeTo"));
    private static final Set<String> LAYOUTS = new HashSet<>(Arrays.asList("layoutContainer", "doLayout"));

    private final CallStack stack;
    private final boolean isOurs;

    private Who(CallStack stack, boolean isOurs) {
        this.stack = stack;
        this.isOurs = isOurs;
    }

    /** @param stack of the thread that has done it */
    static Who of(CallStack stack) {
        return new Who(stack, false);
    }

    static Who of(Change change) {
        return new Who(change.stack(), change.isOurs());
    }

    /** Who has set a property last; null if that was not recorded. */
    static Who last(Component component, String property) {
        Change change = ChangeRecorder.last(component, property);
        return change == null ? null : of(change);
    }

    /** Parts that add to a sentence who has done it, such as ": X hid it"; none if it was not recorded. */
    static Object[] did(Component component, String property, String what) {
        Who who = last(component, property);
        return who == null ? new Object[0] : new Object[] {": ", who, " " + what};
    }

    /** The line of the program; null if it was somebody else's doing. */
    StackTraceElement line() {
        return isOurs ? null : stack.where();
    }

    /** Whether the program has set bounds itself, as against a layout that it has had done. */
    boolean isSetter() {
        List<StackTraceElement> calls = stack.lines();
        if (line() == null || calls.stream().anyMatch(call -> LAYOUTS.contains(call.getMethodName()))) {
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
        return line() != null ? CallSite.summary(line()) : isOurs ? "you, in this window," : "the toolkit";
    }
}
