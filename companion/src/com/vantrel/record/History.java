package com.vantrel.record;

import java.util.ArrayList;
import java.util.Comparator;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

/**
 * The last changes of one component's properties: of each property the last five that differ in their stacks, for what
 * a loop or a layout does over and over is one. Lies in the component, and goes with it. May be used by any thread.
 */
final class History {
    private static final int MOST = 5;

    /** Of each property the last change, which leads to those before it. */
    private final Map<String, Change> last = new HashMap<>(8);

    synchronized void add(Change change) {
        change.before = last.put(change.what(), change);
    }

    /** Tidies up after a change whose stack has taken its final form: until then it cannot be compared. */
    synchronized void settled(Change change) {
        int kept = 1;
        for (Change at = last.get(change.what()); at != null; at = at.before) {
            while (at.before != null && at.isSameAs(at.before)) {
                at.times += at.before.times;
                at.before = at.before.before;
            }
            if (kept++ == MOST && isSettled(at)) {
                at.before = null;
            }
        }
    }

    /** Those before a change may still be the same. */
    private static boolean isSettled(Change change) {
        for (Change at = change.before; at != null; at = at.before) {
            if (!at.isSettled()) {
                return false;
            }
        }
        return true;
    }

    /** The last change of a property; null if none was seen. */
    synchronized Change last(String what) {
        return last.get(what);
    }

    /** All changes that are kept, the last one first. */
    synchronized List<Change> all() {
        List<Change> all = new ArrayList<>();
        for (Change newest : last.values()) {
            for (Change at = newest; at != null; at = at.before) {
                all.add(at);
            }
        }
        all.sort(Comparator.comparingLong(Change::millis).reversed());
        return all;
    }

    synchronized int timesOf(Change change) {
        return change.times;
    }
}
