package com.vantrel.count.x0000000000000000;

import java.util.Arrays;
import java.util.List;
import java.util.Map;
import java.util.concurrent.atomic.AtomicLongArray;

/** A record's counts, summed over its threads: a row for each class, in the form of a thread's rows. */
final class Totals {
    private Totals() {
    }

    static long[][] of(Map<String, Object> record) {
        synchronized (record) {
            long[][] totals = new long[0][];
            for (Object thread : (List<?>) record.get(Counters.THREADS)) {
                long[][] table = (long[][]) ((Object[]) thread)[Counters.TABLE];
                for (int index = Calls.FIRST_CLASS; index < table.length; ++index) {
                    if (table[index] != null) {
                        totals = add(totals, index - Calls.FIRST_CLASS, 0, table[index]);
                    }
                }
            }
            AtomicLongArray[][] shared = (AtomicLongArray[][]) record.get(Counters.SHARED);
            for (int type = 0; shared != null && type < shared.length; ++type) {
                for (int block = 0; shared[type] != null && block < shared[type].length; ++block) {
                    if (shared[type][block] != null) {
                        totals = add(totals, type, block * Counters.BLOCK, values(shared[type][block]));
                    }
                }
            }
            boolean[][] ran = (boolean[][]) record.get(Counters.RAN);
            for (int type = 0; ran != null && type < ran.length; ++type) {
                if (ran[type] != null) {
                    totals = add(totals, type, 0, calls(ran[type]));
                }
            }
            return totals;
        }
    }

    /** Adds a method's counts to a row that has only these. */
    static void addMethod(long[][] totals, int type, int method, long[] row) {
        long[] all = type < totals.length ? totals[type] : null;
        for (int count = 0; all != null && count < Calls.COUNTS; ++count) {
            int at = Calls.COUNTS * method + count;
            row[count] += at < all.length ? all[at] : 0;
        }
    }

    private static long[][] add(long[][] totals, int type, int from, long[] counts) {
        long[][] grown = type < totals.length ? totals : Arrays.copyOf(totals, 2 * type + 1);
        long[] row = grown[type] == null ? new long[0] : grown[type];
        row = Arrays.copyOf(row, Math.max(row.length, from + counts.length));
        // Backwards, because a thread may be counting meanwhile: calls are read after returns, and so cannot be less.
        for (int at = counts.length - 1; at >= 0; --at) {
            row[from + at] += counts[at];
        }
        grown[type] = row;
        return grown;
    }

    private static long[] values(AtomicLongArray block) {
        long[] values = new long[block.length()];
        for (int at = values.length - 1; at >= 0; --at) {
            values[at] = block.get(at);
        }
        return values;
    }

    private static long[] calls(boolean[] ran) {
        long[] counts = new long[Calls.COUNTS * ran.length];
        for (int method = 0; method < ran.length; ++method) {
            counts[Calls.COUNTS * method + Calls.CALLS] = ran[method] ? 1 : 0;
        }
        return counts;
    }
}
