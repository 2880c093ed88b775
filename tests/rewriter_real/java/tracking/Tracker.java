package tracking;

import java.io.IOException;
import java.io.PrintWriter;
import java.util.Queue;
import java.util.concurrent.ConcurrentLinkedQueue;

/**
 * What rewritten classes call, on the boot class path so that each of them can. Nothing that it calls is ever
 * rewritten itself, so it is not called back.
 */
public final class Tracker {
    private static final Queue<Calls> THREADS = new ConcurrentLinkedQueue<>();
    private static final ThreadLocal<Calls> CALLS = new ThreadLocal<Calls>() {
        @Override
        protected Calls initialValue() {
            Calls calls = new Calls();
            THREADS.add(calls);
            return calls;
        }
    };

    private Tracker() {
    }

    public static void enter(int classNumber, int methodNumber) {
        Calls calls = locked();
        try {
            calls.enter(classNumber, methodNumber);
        } finally {
            calls.lock.unlock();
        }
    }

    public static void leave(int classNumber, int methodNumber) {
        Calls calls = locked();
        try {
            calls.leave(classNumber, methodNumber);
        } finally {
            calls.lock.unlock();
        }
    }

    private static Calls locked() {
        Calls calls = CALLS.get();
        calls.lock.lock();
        return calls;
    }

    public static void object(Object made) {
    }

    public static void array(Object made) {
        if (!made.getClass().isArray()) {
            throw new IllegalArgumentException("not an array: " + made.getClass());
        }
        Calls calls = locked();
        ++calls.arrays;
        calls.lock.unlock();
    }

    /** Called by the agent when an exception is thrown, on the thread that throws it. */
    static void thrown() {
        Calls calls = locked();
        calls.thrown();
        calls.lock.unlock();
    }

    /**
     * Called by the agent at the VM's end. A line a count, and a line a method: numbers, entries, returns. Other
     * threads may still be running; each waits at its next call once it has been counted.
     */
    static void report(String file) throws IOException {
        try (PrintWriter out = new PrintWriter(file, "UTF-8")) {
            long entries = 0;
            long returns = 0;
            long leftByException = 0;
            long leftWithoutException = 0;
            long openUnexposed = 0;
            long openExposed = 0;
            long strays = 0;
            long arrays = 0;
            long[][] allEntries = new long[0][];
            long[][] allReturns = new long[0][];
            for (Calls thread : THREADS) {
                thread.lock.lock();
                leftByException += thread.leftByException;
                leftWithoutException += thread.leftWithoutException;
                openExposed += Math.min(thread.exposed, thread.depth);
                openUnexposed += thread.depth - Math.min(thread.exposed, thread.depth);
                strays += thread.strays;
                arrays += thread.arrays;
                allEntries = sum(allEntries, thread.entries);
                allReturns = sum(allReturns, thread.returns);
            }
            for (int c = 0; c < allEntries.length; ++c) {
                for (int m = 0; allEntries[c] != null && m < allEntries[c].length; ++m) {
                    long left = at(allReturns, c, m);
                    entries += allEntries[c][m];
                    if (allEntries[c][m] != 0) {
                        out.println("method\t" + c + "\t" + m + "\t" + allEntries[c][m] + "\t" + left);
                    }
                }
            }
            for (long[] methods : allReturns) {
                for (int m = 0; methods != null && m < methods.length; ++m) {
                    returns += methods[m];
                }
            }
            out.println("entries\t" + entries);
            out.println("returns\t" + returns);
            out.println("left by exception\t" + leftByException);
            out.println("left without exception\t" + leftWithoutException);
            out.println("open with exception\t" + openExposed);
            out.println("open without exception\t" + openUnexposed);
            out.println("strays\t" + strays);
            out.println("arrays\t" + arrays);
        }
    }

    private static long at(long[][] counts, int classNumber, int methodNumber) {
        return classNumber < counts.length && counts[classNumber] != null && methodNumber < counts[classNumber].length
                ? counts[classNumber][methodNumber]
                : 0;
    }

    private static long[][] sum(long[][] left, long[][] right) {
        long[][] all = java.util.Arrays.copyOf(left, Math.max(left.length, right.length));
        for (int c = 0; c < right.length; ++c) {
            if (right[c] == null) {
                continue;
            }
            int methods = Math.max(right[c].length, all[c] == null ? 0 : all[c].length);
            long[] both = all[c] == null ? new long[methods] : java.util.Arrays.copyOf(all[c], methods);
            for (int m = 0; m < right[c].length; ++m) {
                both[m] += right[c][m];
            }
            all[c] = both;
        }
        return all;
    }
}
