package tracking;

import java.util.Arrays;
import java.util.concurrent.locks.ReentrantLock;

/** What a thread has entered and left. Only its thread changes it, while it holds the lock. */
final class Calls {
    /** The report takes this and keeps it: the thread's next call waits until the VM has ended. */
    final ReentrantLock lock = new ReentrantLock();

    /** The methods that are entered and not left, class number in the upper half, the innermost last. */
    long[] open = new long[64];
    int depth;
    /** How many of the outermost open methods were open when an exception was thrown: it may leave them. */
    int exposed;

    /** By class number and method number. */
    long[][] entries = new long[0][];
    long[][] returns = new long[0][];
    /** Methods that never returned: the method around them did, and an exception had been thrown before. */
    long leftByException;
    /** The same without an exception. */
    long leftWithoutException;
    /** Returns from a method that was not entered. */
    long strays;
    long arrays;

    void enter(int classNumber, int methodNumber) {
        entries = counted(entries, classNumber, methodNumber);
        if (depth == open.length) {
            open = Arrays.copyOf(open, 2 * depth);
        }
        exposed = Math.min(exposed, depth);
        open[depth++] = id(classNumber, methodNumber);
    }

    void leave(int classNumber, int methodNumber) {
        returns = counted(returns, classNumber, methodNumber);
        long id = id(classNumber, methodNumber);
        int entered = depth - 1;
        while (entered >= 0 && open[entered] != id) {
            --entered;
        }
        if (entered < 0) {
            ++strays;
            return;
        }
        for (int i = entered + 1; i < depth; ++i) {
            if (i < exposed) {
                ++leftByException;
            } else {
                ++leftWithoutException;
            }
        }
        depth = entered;
    }

    void thrown() {
        exposed = depth;
    }

    private static long id(int classNumber, int methodNumber) {
        return (long) classNumber << 32 | methodNumber;
    }

    private static long[][] counted(long[][] counts, int classNumber, int methodNumber) {
        long[][] all = classNumber < counts.length ? counts : Arrays.copyOf(counts, 2 * classNumber + 1);
        long[] methods = all[classNumber];
        if (methods == null || methodNumber >= methods.length) {
            methods = methods == null ? new long[methodNumber + 1] : Arrays.copyOf(methods, methodNumber + 1);
            all[classNumber] = methods;
        }
        ++methods[methodNumber];
        return all;
    }
}
