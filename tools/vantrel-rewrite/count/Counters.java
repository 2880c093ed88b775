package com.vantrel.count.x0000000000000000;

import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.concurrent.atomic.AtomicLongArray;

/**
 * Makes the counters longer as needed, and keeps the record through which they are found when the table is written.
 *
 * <p>The record is made of the JDK's types only: the {@link Watcher} of whichever jar came first reads it, and it
 * outlives a class loader that the program drops. Its monitor guards everything in it, with two exceptions: a thread
 * adds to its own rows, and marks are read, without it.
 */
final class Counters {
    /** Keys of the record. This one is for a byte array, the packed names of the methods. */
    static final String METHODS = "methods";
    /** For a list with an Object[] for each thread: a weak reference to the thread, and its table (long[][]). */
    static final String THREADS = "threads";
    /** For an AtomicLongArray[][], the table that virtual threads share: by class and block of methods. */
    static final String SHARED = "shared";
    /** For a boolean[][], the marks by class and method. */
    static final String RAN = "ran";

    static final int THREAD = 0;
    static final int TABLE = 1;

    /** The length of an array in the shared table: a class has one for each 64 methods, which never has to grow. */
    static final int BLOCK = 64 * Calls.COUNTS;

    private static final List<Object[]> threads = new ArrayList<>();
    private static final Map<String, Object> record = new HashMap<>();
    private static volatile AtomicLongArray[][] shared = new AtomicLongArray[0][];
    private static boolean begun;

    private Counters() {
    }

    /** A row of the current thread's table, made long enough. */
    static long[] row(int index, int at) {
        begin();
        synchronized (record) {
            long[][] table = tableOfThread(index);
            long[] row = table[index];
            if (row == null || at >= row.length) {
                row = row == null ? new long[longer(at, 0)] : Arrays.copyOf(row, longer(at, row.length));
                table[index] = row;
            }
            return row;
        }
    }

    private static long[][] tableOfThread(int index) {
        long[][] table = Calls.OWN.get();
        if (table != null && index < table.length) {
            return table;
        }
        Object[] owned = ownedByThread();
        table = (long[][]) owned[TABLE];
        if (index >= table.length) {
            table = Arrays.copyOf(table, longer(index, table.length));
            owned[TABLE] = table;
        }
        Calls.setOwn(table);
        return table;
    }

    /**
     * The current thread's entry in the list. When a thread has ended, the next new one takes over its table with the
     * counts in it, so that there are never more tables than threads have lived at one time.
     */
    private static Object[] ownedByThread() {
        Thread current = Thread.currentThread();
        Object[] found = null;
        for (Object[] each : threads) {
            Thread owner = (Thread) ((WeakReference<?>) each[THREAD]).get();
            if (owner == current) {
                return each;
            }
            if (found == null && (owner == null || !owner.isAlive())) {
                found = each;
            }
        }
        if (found == null) {
            found = new Object[] {null, new long[][] {new long[1]}};
            threads.add(found);
        }
        found[THREAD] = new WeakReference<>(current);
        return found;
    }

    static void countShared(int type, int at) {
        AtomicLongArray[][] all = shared;
        AtomicLongArray[] blocks = type < all.length ? all[type] : null;
        AtomicLongArray block = blocks != null && at / BLOCK < blocks.length ? blocks[at / BLOCK] : null;
        if (block == null) {
            block = sharedBlock(type, at / BLOCK);
        }
        block.incrementAndGet(at % BLOCK);
    }

    /** Replaces the arrays of references instead of changing them, because they are read without the monitor. */
    private static AtomicLongArray sharedBlock(int type, int number) {
        begin();
        synchronized (record) {
            AtomicLongArray[][] all = Arrays.copyOf(shared, Math.max(shared.length, longer(type, 0)));
            AtomicLongArray[] old = all[type] == null ? new AtomicLongArray[0] : all[type];
            AtomicLongArray[] blocks = Arrays.copyOf(old, Math.max(old.length, number + 1));
            if (blocks[number] == null) {
                blocks[number] = new AtomicLongArray(BLOCK);
            }
            all[type] = blocks;
            shared = all;
            record.put(SHARED, all);
            return blocks[number];
        }
    }

    static void mark(int type, int method) {
        begin();
        synchronized (record) {
            boolean[][] marks = Calls.ran;
            if (type >= marks.length) {
                marks = Arrays.copyOf(marks, longer(type, marks.length));
                Calls.ran = marks;
                record.put(RAN, marks);
            }
            boolean[] row = marks[type];
            if (row == null || method >= row.length) {
                row = row == null ? new boolean[longer(method, 0)] : Arrays.copyOf(row, longer(method, row.length));
                marks[type] = row;
            }
            row[method] = true;
        }
    }

    /** A new length for an array that is too short for an index. */
    private static int longer(int index, int length) {
        final int few = 12;
        return Math.max(Math.max(index + few, 2 * length), few);
    }

    /**
     * Registers the record, the first time. This may call code of the program (its class loader, for the file with the
     * methods' names), and so come back here: those calls are counted already.
     */
    private static void begin() {
        synchronized (record) {
            if (begun) {
                return;
            }
            begun = true;
            record.put(THREADS, threads);
        }
        try {
            byte[] methods = MethodNames.read();
            synchronized (record) {
                record.put(METHODS, methods);
            }
            Watcher.register(record);
        } catch (StackOverflowError deepInTheProgram) {
            synchronized (record) {
                begun = false;
            }
            throw deepInTheProgram;
        } catch (Exception | Error failure) {
            Message.print("there will be no table of one jar: " + failure);
        }
    }
}
