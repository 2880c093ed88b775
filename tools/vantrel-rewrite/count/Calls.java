package com.vantrel.count.x0000000000000000;

/**
 * Called by classes that vantrel-rewrite has rewritten with --count or --unused. Each jar and folder gets a copy of
 * these classes, in a package with a name of its own. So each has its own counters, for the numbers of its own classes
 * and methods.
 *
 * <p>The calls come from any thread at any time: also while this class or the program's own classes are being
 * initialised, and from inside of the program's class loaders and security managers. So nothing here calls code of the
 * program. Whatever might do so is in {@link Counters}, which a thread calls about once for each class.
 *
 * <p>A thread counts in a table of its own. Finding that table is what costs most, so the thread that counts most is
 * remembered here with its table. There may be a million virtual threads, so these share one table.
 */
public final class Calls {
    /** What is counted of a method: where these numbers are among the COUNTS numbers that a row has for it. */
    static final int CALLS = 0;
    static final int RETURNS = 1;
    static final int ARRAYS = 2;
    static final int COUNTS = 3;

    /**
     * A thread's table. Row 0 has how often the table was looked for; then comes a row for each class, with the counts
     * of its methods. It is made of the JDK's types only, so that a thread that lives on does not hold this class's
     * loader.
     */
    static final ThreadLocal<long[][]> OWN = new ThreadLocal<>();
    static final int FIRST_CLASS = 1;
    /**
     * Whether a method has run, by class and method. The arrays are replaced as they grow, without a lock for readers:
     * a thread that sees an old one only marks a method once more.
     */
    static boolean[][] ran = new boolean[0][];
    private static Recent recent = new Recent(null, null);
    /** The class of virtual threads; null in a VM that has none. */
    private static final Class<?> VIRTUAL = classOfVirtualThreads();

    private Calls() {
    }

    public static void entered(int type, int method) {
        count(type, COUNTS * number(method) + CALLS);
    }

    public static void left(int type, int method) {
        count(type, COUNTS * number(method) + RETURNS);
    }

    public static void made(int type, int method) {
        count(type, COUNTS * number(method) + ARRAYS);
    }

    /** Called instead of the others where the program was rewritten with --unused only. */
    public static void ran(int type, int method) {
        boolean[][] known = ran;
        int at = number(method);
        boolean[] row;
        if (type >= known.length || (row = known[type]) == null || at >= row.length || !row[at]) {
            Counters.mark(type, at);
        }
    }

    /** Undoes the sign: the instruction that pushes a method's number takes 16 bits for a signed number. */
    private static int number(int pushed) {
        return pushed & 0xFFFF;
    }

    private static void count(int type, int at) {
        if (VIRTUAL != null && Thread.currentThread().getClass() == VIRTUAL) {
            Counters.countShared(type, at);
            return;
        }
        Recent known = recent;
        long[][] own = known.thread == Thread.currentThread() ? known.table : find();
        int index = FIRST_CLASS + type;
        long[] row;
        if (own == null || index >= own.length || (row = own[index]) == null || at >= row.length) {
            row = Counters.row(index, at);
        }
        ++row[at];
    }

    /**
     * The current thread's table; null if it has none. A thread that looks often becomes the one that is remembered.
     * Not at every look, because a write to memory that other threads read costs more than the look does.
     */
    private static long[][] find() {
        final int often = 4096;
        long[][] own = OWN.get();
        if (own != null && ++own[0][0] % often == 0) {
            recent = new Recent(Thread.currentThread(), own);
        }
        return own;
    }

    /**
     * Gives the current thread a new table, and remembers that: it must not find the old table any more, which gets no
     * longer rows.
     */
    static void setOwn(long[][] table) {
        OWN.set(table);
        recent = new Recent(Thread.currentThread(), table);
    }

    /** A thread and its table. The fields are final, so that other threads see either both or neither. */
    private static final class Recent {
        final Thread thread;
        final long[][] table;

        Recent(Thread thread, long[][] table) {
            this.thread = thread;
            this.table = table;
        }
    }

    private static Class<?> classOfVirtualThreads() {
        try {
            return Class.forName("java.lang.VirtualThread", false, null);
        } catch (ClassNotFoundException | SecurityException none) {
            return null;
        }
    }
}
