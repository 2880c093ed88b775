/** Makes arrays of all kinds and says how many instructions of its own made one: "arrays COUNT". */
public final class MakesArrays {
    private static int made;

    private MakesArrays() {
    }

    private static <T> T counted(T array) {
        ++made;
        return array;
    }

    private static int sum(int... numbers) {
        int sum = 0;
        for (int number : numbers) {
            sum += number;
        }
        return sum;
    }

    private static Object primitive(int kind) {
        switch (kind) {
            case 0:
                return counted(new boolean[3]);
            case 1:
                return counted(new byte[3]);
            case 2:
                return counted(new char[3]);
            case 3:
                return counted(new short[3]);
            case 4:
                return counted(new int[3]);
            case 5:
                return counted(new long[3]);
            case 6:
                return counted(new float[3]);
            default:
                return counted(new double[0]);
        }
    }

    /** One instruction, whatever the number of arrays that it makes. */
    private static int several(int n) {
        int[][][] all = counted(new int[2][n][n + 1]);
        String[][] open = counted(new String[n][]);
        return all[1][n - 1].length + open.length;
    }

    /** The array is on the stack beside other values when it is reported. */
    private static long amongOthers(long left, double right) {
        return left + counted(new long[] {left, 2 * left})[1] + (long) (right * counted(new double[7]).length);
    }

    private static int failing() {
        int caught = 0;
        for (int length = -2; length < 2; ++length) {
            try {
                caught += counted(new int[length]).length;
            } catch (NegativeArraySizeException thrown) {
                caught += 100;
            }
        }
        return caught;
    }

    public static void main(String[] arguments) {
        long result = 0;
        for (int round = 0; round < 1000; ++round) {
            primitive(round % 8);
            result += several(1 + round % 5) + amongOthers(round, 0.5) + failing();
            result += sum(1, 2, round);
            ++made; // for the variable arguments
            result += counted(new Object[round % 3]).length;
            int[] branched = round % 2 == 0 ? counted(new int[1]) : null;
            result += branched == null ? 5 : branched.length;
        }
        System.out.println(result);
        System.out.println("arrays " + made);
    }
}
