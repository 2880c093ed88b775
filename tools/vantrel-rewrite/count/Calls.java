package com.vantrel.count.x0000000000000000;

/**
 * What classes call that vantrel-rewrite has rewritten with --count or --unused. Each jar and folder gets these classes
 * under a package name of its own, and so its own counters: the numbers of classes and methods are those of that jar.
 *
 * <p>The calls come from any thread at any time, also while this class or the program's own are being initialised, and
 * from the program's class loaders and security managers. So nothing here calls back into the program, and whatever
 * might is in {@link Counters}, which a thread reaches once for each class or so.
 *
 * <p>A thread counts in a table of its own. What costs most is to find it; so the thread that counts most is known, and
 * finds it at once. Virtual threads may be a million, and share one table.
 */
public final class Calls {
    /** What is counted of a method: a number for each of these in a row. */
    static final int CALLS = 0;
    static final int RETURNS = 1;
    static final int ARRAYS = 2;
    static final int COUNTS = 3;

    /**
     * A thread's table. In row 0 is how often it was looked for, then follows a row for each class with the counts of
     * its methods. Nothing but the JDK's classes, so that a thread that lives on does not hold the class loader of this
     * one.
     */
    static final ThreadLocal<long[][]> OWN = new ThreadLocal<>();
    static final int FIRST_CLASS = 1;
    /** By class and method, whether it has run. It is replaced as it grows; what is seen late is marked once more. */
    static boolean[][] ran = new boolean[0][];
    private static Recent recent = new Recent(null, null);
    /** The class of virtual threads; null where the VM has none, and then it costs nothing to ask. */
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

    /** In the place of the others where nobody wants to know more than that. */
    public static void ran(int type, int method) {
        boolean[][] known = ran;
        int at = number(method);
        boolean[] row;
        if (type >= known.length || (row = known[type]) == null || at >= row.length || !row[at]) {
            Counters.mark(type, at);
        }
    }

    /** An instruction pushes the numbers of methods as if they had a sign. */
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
     * The current thread's table, and null if it has none. Whoever looks for it often becomes the one that is known.
     * Threads write nothing that others read but then: it would cost them more than to look.
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
     * Gives the current thread a new table. From now on it must not find the old one, whose rows are no longer grown.
     */
    static void setOwn(long[][] table) {
        OWN.set(table);
        recent = new Recent(Thread.currentThread(), table);
    }

    /** A thread and its table, which do not change, so that others see either both or neither. */
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
