package com.vantrel.record;

import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.ConcurrentMap;

/**
 * Stacks as branches of one tree, from the outermost call inwards: a loop that sets a thousand texts takes a thousand
 * stacks, which share their memory here. Holds names and lines only, and nothing of the program. May be used by any
 * thread.
 */
final class CallTree {
    /** A call and, through its callers, the whole stack from there outwards. */
    static final class Call {
        private final Call caller;
        private final StackTraceElement line;

        private Call(Call caller, StackTraceElement line) {
            this.caller = caller;
            this.line = line;
        }

        /** The stack, innermost call first. */
        StackTraceElement[] stack() {
            List<StackTraceElement> lines = new ArrayList<>();
            for (Call at = this; at != null; at = at.caller) {
                lines.add(at.line);
            }
            return lines.toArray(new StackTraceElement[0]);
        }

        @Override
        public boolean equals(Object other) {
            return other instanceof Call && ((Call) other).caller == caller && ((Call) other).line.equals(line);
        }

        @Override
        public int hashCode() {
            return 31 * System.identityHashCode(caller) + line.hashCode();
        }
    }

    private final int most;
    private final ConcurrentMap<Call, Call> known = new ConcurrentHashMap<>();

    /**
     * @param most how many calls are remembered at most; with more, all are forgotten, and the same calls may then be
     *             in memory twice
     */
    CallTree(int most) {
        this.most = most;
    }

    /**
     * The branch of the tree that stands for a stack.
     *
     * @param stack innermost call first
     * @return its innermost call; null for an empty stack
     */
    Call branch(List<StackTraceElement> stack) {
        List<StackTraceElement> inwards = new ArrayList<>(stack);
        Collections.reverse(inwards);
        Call at = null;
        for (StackTraceElement line : inwards) {
            Call call = new Call(at, line);
            Call before = known.putIfAbsent(call, call);
            at = before == null ? call : before;
        }
        if (known.size() > most) {
            known.clear();
        }
        return at;
    }
}
