/**
 * What old compilers make of old sources: subroutines for finally, switches, wide instructions, nested handlers. Fit
 * for compilers that know Java 1.3 at most. Prints what it computes.
 */
public class OldCode {
    static StringBuffer trace = new StringBuffer();

    static int finallyAfterReturn(int n) {
        try {
            if (n == 1) {
                return 1;
            }
            if (n == 2) {
                throw new IllegalArgumentException("two");
            }
            trace.append('t');
        } catch (IllegalArgumentException e) {
            trace.append(e.getMessage());
            return 2;
        } finally {
            trace.append("f").append(n);
        }
        return 3;
    }

    static long nestedFinally(int n) {
        long result = 0;
        for (int i = 0; i < n; i++) {
            try {
                try {
                    if (i % 3 == 0) {
                        continue;
                    }
                    if (i % 5 == 0) {
                        break;
                    }
                    result += i;
                } finally {
                    result *= 3;
                    try {
                        result -= 1000 / (i - 4);
                    } catch (ArithmeticException e) {
                        trace.append('z');
                    } finally {
                        result++;
                    }
                }
            } finally {
                result ^= i;
            }
        }
        return result;
    }

    static String table(int n) {
        switch (n) {
            case 0:
                return "zero";
            case 1:
                return "one";
            case 2:
            case 3:
                break;
            case 6:
                return "six";
            default:
                return "none";
        }
        switch (n * 1000) {
            case 2000:
                return "two";
            case -5:
                return "never";
            case 3000:
                return "three";
            default:
                return "none";
        }
    }

    static double manyLocals(double seed) {
        double a00 = seed, a01 = a00 + 1, a02 = a01 + 1, a03 = a02 + 1, a04 = a03 + 1, a05 = a04 + 1, a06 = a05 + 1;
        double b00 = a06, b01 = b00 * 2, b02 = b01 * 2, b03 = b02 - 7, b04 = b03 * 2, b05 = b04 + a00, b06 = b05 + a01;
        long count = 0;
        for (int i = 0; i < 1000; i += 300) {
            count += i;
        }
        return a02 + a03 + a04 + a05 + b02 + b03 + b06 + count;
    }

    static int locked(Object lock, int n) {
        synchronized (lock) {
            if (n == 0) {
                return 0;
            }
            synchronized (trace) {
                return n + locked(lock, n - 1);
            }
        }
    }

    static int arrays(int n) {
        int[][] table = new int[n][n + 1];
        String[] names = {"a", "b"};
        boolean[] flags = new boolean[n];
        int sum = 0;
        for (int i = 0; i < n; i++) {
            flags[i] = (i & 1) == 0;
            sum += table[i].length + (flags[i] ? names[0].length() : 100);
        }
        return sum;
    }

    public static void main(String[] arguments) {
        for (int i = 0; i < 8; i++) {
            System.out.println(finallyAfterReturn(i) + " " + table(i) + " " + nestedFinally(i) + " " + locked("", i)
                    + " " + arrays(i) + " " + manyLocals(i));
        }
        System.out.println(trace);
    }
}
