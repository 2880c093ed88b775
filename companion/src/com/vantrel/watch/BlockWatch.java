package com.vantrel.watch;

import java.awt.AWTEvent;
import java.lang.ref.Reference;
import java.util.ArrayList;
import java.util.Iterator;
import java.util.List;

/**
 * Looks at the event threads again and again, from a thread of its own, and notes where one is that has been at the
 * same event for too long. {@link #look} is to be called every {@link #PERIOD_MILLIS} by one thread; what was found may
 * be asked for on any.
 *
 * <p>A thread that waits for an event is not blocked, also in the loop of a modal dialog, nor is one that works off
 * many short events. Time in which the watch itself did not get on does not count: then all of the VM or the machine
 * stood still, as under a debugger.
 */
final class BlockWatch {
    static final int BLOCK_MILLIS = 200;
    static final int PERIOD_MILLIS = 25;

    private static final long NANOS_PER_MILLI = 1_000_000;
    /** How much later than expected a look may come: a busy machine is not one that stands still. */
    private static final long MOST_DELAY = 200 * NANOS_PER_MILLI;
    /** After how many looks the event threads are looked for: often at first, while there is none. */
    private static final int LOOKS_UNTIL_FIRST = 4;
    private static final int LOOKS_UNTIL_OTHERS = 40;

    private static final class Watched {
        final EventThread thread;
        /** The event that it was seen with; compared only. */
        Reference<AWTEvent> current;

        /** Whether it has been idle since it had that event: what it is at work on now is another one. */
        boolean wasIdle;
        boolean isBusy;
        /** Since when it has been busy with it. */
        long since;
        /** What keeps it, once that takes too long; and whether that is an event of the inspector's windows. */
        Block block;
        boolean isOurs;

        Watched(EventThread thread) {
            this.thread = thread;
        }
    }

    private final List<Watched> watched = new ArrayList<>();
    private final Blocks blocks = new Blocks();
    private boolean isReported;
    private boolean hasSeenAny;
    private int looks;
    private long lastLook = System.nanoTime();

    /** Looks at all event threads. */
    synchronized void look() {
        long now = System.nanoTime();
        long late = now - lastLook - PERIOD_MILLIS * NANOS_PER_MILLI;
        lastLook = now;
        if (looks++ % (watched.isEmpty() ? LOOKS_UNTIL_FIRST : LOOKS_UNTIL_OTHERS) == 0) {
            find();
        }
        for (Iterator<Watched> each = watched.iterator(); each.hasNext();) {
            Watched one = each.next();
            if (late > MOST_DELAY) {
                one.since += late;
                if (one.block != null) {
                    one.block.skip(late);
                }
            }
            if (!one.thread.thread().isAlive()) {
                end(one, now);
                each.remove();
            } else {
                look(one, now);
            }
        }
    }

    private void find() {
        for (Thread thread : EventThreads.find()) {
            if (watched.stream().noneMatch(one -> one.thread.thread() == thread)) {
                EventThread found = new EventThread(thread);
                if (found.canBeSeen()) {
                    watched.add(new Watched(found));
                    hasSeenAny = true;
                } else if (!isReported) {
                    isReported = true;
                    System.err.println(
                            "vantrel: in this Java VM it cannot be told whether the event thread is blocked");
                }
            }
        }
    }

    private void look(Watched one, long now) {
        try {
            Reference<AWTEvent> current = one.thread.current();
            boolean isIdle = one.thread.isIdle();
            if (isIdle || current != one.current) {
                end(one, now);
                one.wasIdle = isIdle;
                one.current = current;
                one.isBusy = false;
            }
            if (!isIdle && !one.isBusy) {
                one.isBusy = true;
                one.since = now;
            }
            if (one.isBusy && now - one.since >= BLOCK_MILLIS * NANOS_PER_MILLI) {
                sample(one, now);
            }
        } catch (IllegalAccessException e) {
            throw new IllegalStateException(e); // the fields have been opened
        }
    }

    private static void sample(Watched one, long now) {
        if (one.block == null || one.block.isSampleDue(now)) {
            StackTraceElement[] stack = one.thread.thread().getStackTrace();
            if (one.block == null) {
                AWTEvent event = one.wasIdle || one.current == null ? null : one.current.get();
                one.isOurs = event != null && EventWords.isOurs(event);
                one.block = new Block(one.thread.thread().getName(), words(event, stack), now - one.since);
            }
            one.block.lasts(now - one.since, now);
            one.block.add(stack, now);
        } else {
            one.block.lasts(now - one.since, now);
        }
    }

    private static String words(AWTEvent event, StackTraceElement[] stack) {
        for (StackTraceElement line : stack) {
            if (line.getMethodName().equals("dispatchEvent")) { // of whichever queue
                return "with " + EventWords.of(event);
            }
        }
        return "between two events";
    }

    /** That a block has begun was seen late, and so it may be with its end: on average, its time is right. */
    private void end(Watched one, long now) {
        if (one.block != null) {
            one.block.lasts(now - one.since, now);
            if (isOfInterest(one)) {
                blocks.add(one.block);
            }
        }
        one.block = null;
    }

    /** Not what the inspector does by itself; but a change of its user's may well run code of the program. */
    private static boolean isOfInterest(Watched one) {
        CallTimes calls = one.block.calls();
        return calls.where() != null || !one.isOurs && !calls.hasOurs();
    }

    /** What was found so far, in lines; none where there was no event thread to look at. */
    synchronized List<String> text() {
        look(); // or what has just ended would be told as going on
        List<Block> goingOn = new ArrayList<>();
        for (Watched one : watched) {
            if (one.block != null && isOfInterest(one)) {
                goingOn.add(one.block);
            }
        }
        return hasSeenAny ? blocks.text(goingOn) : new ArrayList<>();
    }
}
