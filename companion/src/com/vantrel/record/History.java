package com.vantrel.record;

import java.util.ArrayList;
import java.util.Comparator;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

/**
 * The last changes of one component's properties: of each property the last five that differ in their stacks, for what
 * a loop or a layout does over and over is one. Lies in the component, and goes with it. May be used by any thread.
 *
 * <p>A change is compared with the one before as soon as its stack is known in full. That takes a while; until somebody
 * finds the time, it waits.
 */
final class History {
    private static final int MOST = 5;

    private static final class Property {
        /** The last change whose stack is known, which leads to those before it; null for none. */
        Change last;
        /** Those that wait, in the order in which they were made. */
        Change firstWaiting;
        Change lastWaiting;
        int waiting;
    }

    private final Map<String, Property> properties = new HashMap<>(8);

    /**
     * Has a change wait for its turn.
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

    /** Takes in the changes of a property that wait. */
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

    /** In their order, up to the first one whose stack is not known yet: it may have come since. */
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
