package com.vantrel.watch;

/**
 * One time that an event thread does not get on with an event: since when, with which event, and samples of its stack
 * so far. Not safe for use from several threads.
 */
final class Block {
    private static final long NANOS_PER_MILLI = 1_000_000;
    /** Samples are taken this far apart at first, and then after each hundredth of the time that has passed. */
    private static final long SHORTEST_PAUSE = 40 * NANOS_PER_MILLI;
    private static final long LONGEST_PAUSE = 1_000 * NANOS_PER_MILLI;
    private static final int SHARE_OF_PAUSE = 100;

    private final String thread;
    private final String event;
    private final long startMillis;
    private final CallTimes calls = new CallTimes();
    private StackTraceElement[] sample;
    private long sampledAt;
    /** Up to when the time is in the tree. */
    private long countedTo;
    private long nanos;

    /**
     * @param event in words: what the thread was at
     * @param nanos for how long it has been going on
     */
    Block(String thread, String event, long nanos) {
        this.thread = thread;
        this.event = event;
        this.nanos = nanos;
        startMillis = System.currentTimeMillis() - nanos / NANOS_PER_MILLI;
    }

    boolean isSampleDue(long now) {
        long pause = Math.min(LONGEST_PAUSE, Math.max(SHORTEST_PAUSE, nanos / SHARE_OF_PAUSE));
        return now - sampledAt >= pause;
    }

    /**
     * Notes where the thread is.
     *
     * @param stack innermost call first
     * @param now   as System.nanoTime has it
     */
    void add(StackTraceElement[] stack, long now) {
        sample = stack;
        sampledAt = now;
        countedTo = now;
    }

    /**
     * Notes that the thread is still at it.
     *
     * @param total for how long it has been going on
     */
    void lasts(long total, long now) {
        nanos = total;
        if (sample != null) {
            calls.add(sample, now - countedTo);
            countedTo = now;
        }
    }

    /** Leaves out time in which nothing in the VM went on. */
    void skip(long pause) {
        countedTo += pause;
    }

    long nanos() {
        return nanos;
    }

    long startMillis() {
        return startMillis;
    }

    String thread() {
        return thread;
    }

    String event() {
        return event;
    }

    CallTimes calls() {
        return calls;
    }
}
