package com.vantrel.watch;

import java.util.ArrayList;
import java.util.Collections;
import java.util.Comparator;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;

import com.vantrel.model.CallSite;

/**
 * Samples of a thread's stack as a tree: at its root the outermost call, in each call those that it made, each with the
 * time that was spent in it. Holds names and lines only, nothing of the program, and no more than so many calls. Not
 * safe for use from several threads.
 */
final class CallTimes {
    /** A tree that has this many calls gets no more: what is deeper counts for the innermost call that it has. */
    private static final int MOST_CALLS = 1_000;

    /** A call, with all that was called from it. */
    static final class Call {
        private final StackTraceElement line;
        private final Map<StackTraceElement, Call> calls = new LinkedHashMap<>(2);
        private long nanos;

        private Call(StackTraceElement line) {
            this.line = line;
        }

        StackTraceElement line() {
            return line;
        }

        long nanos() {
            return nanos;
        }

        /** The calls that it made, the one that took longest first. */
        List<Call> calls() {
            List<Call> sorted = new ArrayList<>(calls.values());
            sorted.sort(Comparator.comparingLong(Call::nanos).reversed());
            return sorted;
        }
    }

    /** Stands for the thread, and has no line. */
    private final Call root = new Call(null);
    private int count;

    /** All calls that began the thread: one, as a rule. */
    List<Call> outermost() {
        return root.calls();
    }

    long nanos() {
        return root.nanos;
    }

    /**
     * Adds a sample.
     *
     * @param stack innermost call first
     * @param nanos how much time it stands for
     */
    void add(StackTraceElement[] stack, long nanos) {
        Call at = root;
        at.nanos += nanos;
        for (int i = stack.length - 1; i >= 0; i--) {
            if (ProgramLine.isGlue(stack[i])) {
                continue;
            }
            Call call = at.calls.get(stack[i]);
            if (call == null) {
                if (count == MOST_CALLS) {
                    return;
                }
                count++;
                call = new Call(stack[i]);
                at.calls.put(stack[i], call);
            }
            call.nanos += nanos;
            at = call;
        }
    }

    /** Adds all of another tree. */
    void add(CallTimes other) {
        add(root, other.root);
    }

    private void add(Call to, Call from) {
        to.nanos += from.nanos;
        for (Call call : from.calls.values()) {
            Call same = to.calls.get(call.line);
            if (same == null && count < MOST_CALLS) {
                count++;
                same = new Call(call.line);
                to.calls.put(call.line, same);
            }
            if (same != null) {
                add(same, call);
            }
        }
    }

    /** The program's innermost line on the way from the root along which most time was spent; null for none. */
    StackTraceElement where() {
        StackTraceElement where = null;
        for (List<Call> calls = root.calls(); !calls.isEmpty(); calls = calls.get(0).calls()) {
            if (CallSite.isProgram(calls.get(0).line)) {
                where = calls.get(0).line;
            }
        }
        return where;
    }

    /** Whether a call of the inspector is in it. */
    boolean hasOurs() {
        return hasOurs(root);
    }

    private static boolean hasOurs(Call call) {
        boolean isOurs = call.line != null && call.line.getClassName().startsWith("com.vantrel.");
        return isOurs || call.calls.values().stream().anyMatch(CallTimes::hasOurs);
    }

    /** The lines of a tree, for people. */
    List<String> text() {
        return Collections.unmodifiableList(CallTimesText.of(this));
    }
}
