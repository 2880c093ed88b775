/** Does what its numbers say, so that a tracker's counts are known. */
public final class Program {
    private Program() {
    }

    static int[] array(int length) {
        return new int[length];
    }

    static int sum(int depth) {
        return depth == 0 ? 0 : depth + sum(depth - 1);
    }

    static void fail() {
        throw new IllegalStateException("on purpose");
    }

    interface Shape {
        int corners();
    }

    static final class Square implements Shape {
        private static final Integer CORNERS = Integer.valueOf(4);

        @Override
        public int corners() {
            return CORNERS;
        }
    }

    public static void main(String[] arguments) {
        int cells = 0;
        for (int length = 0; length < 7; ++length) {
            cells += array(length).length;
        }
        cells += new String[2][3].length;
        try {
            fail();
        } catch (IllegalStateException expected) {
            cells += 1;
        }
        System.out.println(cells + " " + sum(10) + " " + new Square().corners());
    }
}
