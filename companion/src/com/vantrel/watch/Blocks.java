package com.vantrel.watch;

import java.util.ArrayList;
import java.util.Comparator;
import java.util.List;
import java.util.Objects;

import com.vantrel.model.CallSite;
import com.vantrel.model.SetBy;

/**
 * The blocks that were seen. Those with the same event at the same line of the program are one entry: a table that is
 * sorted too slowly is sorted often. Keeps the entries that took longest, and counts the others. Not safe for use from
 * several threads.
 */
final class Blocks {
    private static final int MOST = 50;

    /** All blocks of one line and event. */
    private static final class Entry {
        final StackTraceElement where;
        final String event;
        final CallTimes calls = new CallTimes();
        int times;
        long nanos;
        long longest;
        long lastStart;
        String lastThread;
        boolean isGoingOn;

        Entry(StackTraceElement where, String event) {
            this.where = where;
            this.event = event;
        }

        Entry(Entry other) {
            this(other.where, other.event);
            calls.add(other.calls);
            times = other.times;
            nanos = other.nanos;
            longest = other.longest;
            lastStart = other.lastStart;
            lastThread = other.lastThread;
        }

        void add(Block block) {
            times++;
            nanos += block.nanos();
            calls.add(block.calls());
            longest = Math.max(longest, block.nanos());
            lastStart = block.startMillis();
            lastThread = block.thread();
        }
    }

    private final List<Entry> entries = new ArrayList<>();
    private int times;
    private long nanos;

    void add(Block block) {
        add(entries, block);
        times++;
        nanos += block.nanos();
        if (entries.size() > MOST) {
            entries.remove(entries.stream().min(Comparator.comparingLong(entry -> entry.nanos)).get());
        }
    }

    private static Entry add(List<Entry> entries, Block block) {
        StackTraceElement where = block.calls().where();
        for (Entry entry : entries) {
            if (Objects.equals(where, entry.where) && block.event().equals(entry.event)) {
                entry.add(block);
                return entry;
            }
        }
        Entry entry = new Entry(where, block.event());
        entry.add(block);
        entries.add(entry);
        return entry;
    }

    /**
     * What was seen, for people: what took longest first.
     *
     * @param goingOn blocks that have not ended
     */
    List<String> text(List<Block> goingOn) {
        List<Entry> all = new ArrayList<>();
        for (Entry entry : entries) {
            all.add(goingOn.isEmpty() ? entry : new Entry(entry));
        }
        long sum = nanos;
        for (Block block : goingOn) {
            add(all, block).isGoingOn = true;
            sum += block.nanos();
        }
        all.sort(Comparator.comparingLong((Entry entry) -> entry.nanos).reversed());

        int count = times + goingOn.size();
        List<String> lines = new ArrayList<>();
        lines.add("the event thread was " + (count == 0 ? "never blocked" : "blocked " + times(count))
                + " for more than " + BlockWatch.BLOCK_MILLIS + " ms"
                + (count == 0 ? "." : ", " + CallTimesText.seconds(sum) + " in all:"));
        for (Entry entry : all) {
            lines.add(headline(entry));
            lines.addAll(entry.calls.text());
        }
        if (all.size() == MOST && count > all.stream().mapToInt(entry -> entry.times).sum()) {
            lines.add("  (Lines of the program that took less are left out.)");
        }
        return lines;
    }

    private static String times(int count) {
        return count == 1 ? "once" : count + " times";
    }

    private static String headline(Entry entry) {
        boolean isOne = entry.times == 1;
        String where = entry.where == null ? "no line of the program" : CallSite.summary(entry.where);
        return "  " + CallTimesText.seconds(entry.nanos) + " at " + where + ", " + entry.event
                + (isOne ? ""
                         : ", " + times(entry.times) + ", at most " + CallTimesText.seconds(entry.longest)
                                        + ", the last")
                + ", from " + SetBy.time(entry.lastStart) + " on " + entry.lastThread
                + (entry.isGoingOn ? ", and it has not ended" : "") + ":";
    }
}
