import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import java.util.TreeMap;
import java.util.function.Supplier;

/** Leaves no method by an exception, and says how often each was called: "calls NAME COUNT". */
public final class Balanced {
    private static final Map<String, Integer> CALLS = new TreeMap<>();

    private Balanced() {
        count("<init>");
    }

    static synchronized void count(String method) {
        CALLS.merge(method, 1, Integer::sum);
    }

    static void returnsNothing(int depth) {
        count("returnsNothing");
        if (depth > 0) {
            returnsNothing(depth - 1);
            return;
        }
        new Balanced();
    }

    static int returnsInt(int n) {
        count("returnsInt");
        return n < 2 ? n : returnsInt(n - 1) + returnsInt(n - 2);
    }

    static boolean returnsBoolean(int n) {
        count("returnsBoolean");
        while (true) {
            if (n % 7 == 0) {
                return true;
            }
            if (--n < 0) {
                return false;
            }
        }
    }

    static long returnsLong(long n) {
        count("returnsLong");
        return n == 0 ? 1 : n * returnsLong(n - 1);
    }

    static float returnsFloat(int kind) {
        count("returnsFloat");
        switch (kind) {
            case 0:
                return 0.5f;
            case 1:
                return 1.5f;
            case 2:
                break;
            case 3:
                return returnsFloat(1) + returnsFloat(0);
            default:
                return -1;
        }
        return 2.5f;
    }

    static double returnsDouble(int kind) {
        count("returnsDouble");
        switch (kind) {
            case -1000:
                return 1;
            case 0:
                return 2;
            case 1000:
                return 3;
            case 1000000:
                return returnsDouble(0) + returnsDouble(-1000);
            default:
                return returnsFloat(kind);
        }
    }

    static String returnsReference(String text) {
        count("returnsReference");
        switch (text) {
            case "Aa":
                return "one";
            case "BB":
                return "two";
            default:
                return text.isEmpty() ? null : returnsReference(text.substring(1)) + text.charAt(0);
        }
    }

    /** The catch and the finally run in the method that throws. */
    static int catchesItsOwn(int n) {
        count("catchesItsOwn");
        int result = 0;
        for (int i = 0; i < n; ++i) {
            try {
                if (i % 3 == 0) {
                    throw new IllegalStateException();
                }
                ++result;
            } catch (IllegalStateException thrown) {
                result += 10;
            } finally {
                result += 100;
            }
        }
        return result;
    }

    static int locked(Object lock, int n) {
        synchronized (lock) {
            count("locked");
            return n == 0 ? 0 : n + locked(lock, n - 1);
        }
    }

    static int summed(List<Supplier<Integer>> suppliers) {
        count("summed");
        int sum = 0;
        for (Supplier<Integer> supplier : suppliers) {
            sum += supplier.get();
        }
        return sum;
    }

    static int twice(int n) {
        count("twice");
        return 2 * n;
    }

    static String everything() {
        count("everything");
        returnsNothing(3);
        List<Supplier<Integer>> suppliers = new ArrayList<>();
        for (int i = 0; i < 10; ++i) {
            int n = i;
            suppliers.add(() -> twice(n));
        }
        return returnsInt(12) + " " + returnsBoolean(20) + " " + returnsBoolean(-1) + " " + returnsLong(15) + " "
                + returnsFloat(3) + " " + returnsFloat(2) + " " + returnsDouble(1000000) + " " + returnsDouble(9) + " "
                + returnsReference("xyzBB") + " " + catchesItsOwn(10) + " " + locked(new Object(), 4) + " "
                + summed(suppliers);
    }

    public static void main(String[] arguments) throws InterruptedException {
        List<Thread> threads = new ArrayList<>();
        for (int i = 0; i < 4; ++i) {
            Thread thread = new Thread(Balanced::everything);
            thread.start();
            threads.add(thread);
        }
        for (Thread thread : threads) {
            thread.join();
        }
        System.out.println(everything());
        new TreeMap<>(CALLS).forEach((method, calls) -> System.out.println("calls " + method + " " + calls));
    }
}
