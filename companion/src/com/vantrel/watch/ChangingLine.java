package com.vantrel.watch;

import java.util.HashMap;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Map;
import java.util.Set;

import com.vantrel.model.CallSite;
import com.vantrel.model.SetBy;

/**
 * A line of the program that changes components on a thread that it should not: what it changes, on which threads, and
 * how often.
 *
 * <p>One call of a setter may be reported several times, because a setter calls others, and a change has changes in its
 * wake. Each of these reports comes by a way of its own through the toolkit. So a call is counted by the way that was
 * taken most often. Guarded by its owner's lock.
 */
final class ChangingLine {
    /** Of what there may be many: how many are told of a line. */
    private static final int MOST_TOLD = 3;
    private static final int MOST_WAYS = 50;

    private final StackTraceElement line;
    /** How often each way was taken, from a method of the toolkit that the line calls; by the method's name. */
    private final Map<String, Map<List<StackTraceElement>, Integer>> ways = new HashMap<>();
    private final Map<String, Integer> calls = new HashMap<>();
    private final Set<String> changes = new LinkedHashSet<>();
    private final Set<String> threads = new LinkedHashSet<>();
    private int wayCount;
    private long lastMillis;

    ChangingLine(StackTraceElement line) {
        this.line = line;
    }

    /**
     * Adds a report, on the thread that makes the change.
     *
     * @param inside the calls within the line's, innermost first; not empty
     * @return whether it is the first report of a method that the line calls, so that its change should be described
     */
    boolean add(List<StackTraceElement> inside) {
        lastMillis = System.currentTimeMillis();
        tell(threads, Thread.currentThread().getName());
        StackTraceElement called = inside.get(inside.size() - 1);
        String method = called.getClassName() + "." + called.getMethodName();
        Map<List<StackTraceElement>, Integer> ofMethod = ways.computeIfAbsent(method, name -> new HashMap<>());
        boolean isFirst = ofMethod.isEmpty();
        if (ofMethod.containsKey(inside) || wayCount < MOST_WAYS) {
            wayCount += ofMethod.containsKey(inside) ? 0 : 1;
            calls.merge(method, ofMethod.merge(inside, 1, Integer::sum), Integer::max);
        }
        return isFirst;
    }

    void describe(String change) {
        tell(changes, change);
    }

    private static void tell(Set<String> all, String one) {
        if (all.size() < MOST_TOLD || all.contains(one)) {
            all.add(one);
        } else {
            all.add("others");
        }
    }

    int times() {
        return calls.values().stream().mapToInt(Integer::intValue).sum();
    }

    String text() {
        return (times() == 1 ? "once" : times() + " times") + " at " + CallSite.summary(line) + ": "
                + String.join(", ", changes) + ", on " + String.join(", ", threads) + ", the last at "
                + SetBy.time(lastMillis);
    }
}
