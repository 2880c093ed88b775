/** Leaves methods by exceptions and says how many calls ended so: "left COUNT". */
public final class Leaving {
    private static int left;

    private Leaving(int n) {
        ++left;
        throw new IllegalArgumentException(Integer.toString(n));
    }

    private static int deep(int depth, boolean fails) {
        if (depth == 0) {
            if (fails) {
                ++left;
                throw new IllegalStateException();
            }
            return 0;
        }
        if (fails) {
            ++left;
        }
        return 1 + deep(depth - 1, fails);
    }

    private static int withFinally(int depth) {
        int before = left;
        try {
            return deep(depth, depth % 2 == 0);
        } finally {
            if (left != before) {
                ++left;
            }
        }
    }

    private static int quotient(int dividend, int divisor) {
        if (divisor == 0) {
            ++left;
        }
        return dividend / divisor;
    }

    public static void main(String[] arguments) throws InterruptedException {
        int caught = 0;
        for (int i = 0; i < 100; ++i) {
            try {
                caught += withFinally(i % 10);
            } catch (IllegalStateException thrown) {
                caught += 1000;
            }
            try {
                new Leaving(i);
            } catch (IllegalArgumentException thrown) {
                caught += Integer.parseInt(thrown.getMessage());
            }
            try {
                caught += quotient(i, i % 4);
            } catch (ArithmeticException thrown) {
                --caught;
            }
        }
        System.out.println(caught);
        System.out.println("left " + left);
    }
}
