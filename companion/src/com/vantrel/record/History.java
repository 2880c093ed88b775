package com.vantrel.record;

import java.util.ArrayList;
import java.util.Comparator;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

/**
 * The last changes of one component's properties: of each property the last five. Changes in a row by the same calls,
 * as a loop or a layout makes them, count as one. Lies in a field of the component, and lives as long. May be used by
 * any thread.
 *
 * <p>Two changes can only be compared when their stacks are in the form in which they are kept, which takes time to
 * make. Until that has been done, by {@link #settle}, a change waits.
 */
final class History {
    private static final int MOST = 5;

    private static final class Property {
        /** The last change that does not wait, which links to those before it; null for none. */
        Change last;
        /** Those that wait, in the order in which they were made. */
        Change firstWaiting;
        Change lastWaiting;
        int waiting;
    }

    private final Map<String, Property> properties = new HashMap<>(8);

    /**
     * Adds a change to those that wait.
     *
     * @return how many changes of this property wait now
     */
    synchronized int add(Change change) {
        Property property = properties.computeIfAbsent(change.what(), name -> new Property());
        if (property.lastWaiting == null) {
            property.firstWaiting = change;
        } else {
            property.lastWaiting.after = change;
        }
        property.lastWaiting = change;
        return ++property.waiting;
    }

    /** Works off the changes of a property that wait. */
    void settle(String what) {
        for (Change change : waiting(what)) {
            change.findStack();
        }
        takeIn(what);
    }

    private synchronized List<Change> waiting(String what) {
        List<Change> waiting = new ArrayList<>();
        Property property = properties.get(what);
        for (Change at = property == null ? null : property.firstWaiting; at != null; at = at.after) {
            waiting.add(at);
        }
        return waiting;
    }

    /**
     * Takes in the changes that wait, in order, up to the first one whose stack is not known: it has been added
     * meanwhile.
     */
    private synchronized void takeIn(String what) {
        Property property = properties.get(what);
        while (property != null && property.firstWaiting != null && property.firstWaiting.isStackKnown()) {
            Change change = property.firstWaiting;
            property.firstWaiting = change.after;
            property.lastWaiting = change.after == null ? null : property.lastWaiting;
            property.waiting--;
            change.after = null;
            takeIn(property, change);
        }
    }

    private static void takeIn(Property property, Change change) {
        Change last = property.last;
        boolean isSame = last != null && change.isLike(last);
        change.times = isSame ? last.times + 1 : 1;
        change.before = isSame ? last.before : last;
        property.last = change;
        Change oldest = change;
        for (int i = 1; i < MOST && oldest.before != null; i++) {
            oldest = oldest.before;
        }
        oldest.before = null;
    }

    /** The last change of a property; null if none was seen. */
    Change last(String what) {
        settle(what);
        synchronized (this) {
            Property property = properties.get(what);
            return property == null ? null : property.last;
        }
    }

    /** All changes that are kept, the last one first. */
    List<Change> all() {
        List<String> names;
        synchronized (this) {
            names = new ArrayList<>(properties.keySet());
        }
        List<Change> all = new ArrayList<>();
        for (String name : names) {
            Change last = last(name);
            synchronized (this) {
                for (Change at = last; at != null; at = at.before) {
                    all.add(at);
                }
            }
        }
        all.sort(Comparator.comparingLong(Change::millis).reversed());
        return all;
    }

    synchronized int timesOf(Change change) {
        return change.times;
    }
}
