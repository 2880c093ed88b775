package com.vantrel.record;

import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.ConcurrentMap;

/**
 * Stacks as branches of one tree, from the outermost call inwards: a loop that sets a thousand texts has a thousand
 * stacks, which are one here. Holds names and lines only, and nothing of the program. May be used by any thread.
 */
final class CallTree {
    /** The innermost call of a stack, and through its callers the whole of it. */
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
     * @param most how many calls are known at most; when there are more all are forgotten, and some will be kept twice
     */
    CallTree(int most) {
        this.most = most;
    }

    /**
     * The branch that a stack is.
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
