package com.vantrel.model;

import java.util.HashMap;
import java.util.Map;
import java.util.WeakHashMap;

/**
 * Remembers which properties of which classes took long to read, so that they are not read unasked any more. The user
 * waits for each of them once, and not with every component of the class. Belongs to the event thread; holds no class.
 */
public final class Patience {
    /** Longer than this is slow. The JDK's own getters take a thousandth of it. */
    private static final long SLOW_NANOS = 50_000_000;

    /** What is slow gets a second chance up to here, for the machine may have been collecting garbage or been busy. */
    private static final long TOO_SLOW_NANOS = 400_000_000;
    private static final int CHANCES = 2;

    private static final Map<Class<?>, Map<String, Integer>> STRIKES = new WeakHashMap<>();

    private Patience() {
    }

    /** Whether a property is not to be read unasked. */
    public static boolean isLost(Class<?> type, String property) {
        Map<String, Integer> strikes = STRIKES.get(type);
        return strikes != null && strikes.getOrDefault(property, 0) >= CHANCES;
    }

    /**
     * Notes how long it took to read a property.
     *
     * @return whether it is not to be read unasked from now on
     */
    public static boolean took(Class<?> type, String property, long nanos) {
        if (nanos > SLOW_NANOS) {
            int strikes = nanos > TOO_SLOW_NANOS ? CHANCES : 1;
            STRIKES.computeIfAbsent(type, key -> new HashMap<>()).merge(property, strikes, Integer::sum);
        } else if (STRIKES.containsKey(type)) {
            STRIKES.get(type).remove(property);
        }
        return isLost(type, property);
    }
}
