package linking;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import javax.tools.ToolProvider;

/**
 * Compiles a class whose branches fit until the arrays that they jump over are tracked, and at whose branches locals
 * and stack have types of all kinds: uninitialised objects, this before its constructor is called, null, arrays, and
 * values of two slots, as they come out of fields, calls, constants and arithmetic.
 */
public final class GrowingClasses {
    /** One is five bytes of code with its addition, and nine when it is tracked. Calls would take javac longer. */
    private static final String ARRAY = "new int[1].length";
    /** 20,000 bytes of code, and 36,000. */
    private static final int ARRAYS = 4000;

    private GrowingClasses() {
    }

    /** FOLDER RELEASE */
    public static void main(String[] arguments) throws IOException {
        Path folder = Files.createDirectories(Path.of(arguments[0]));
        Path source = folder.resolve("Growing.java");
        Files.writeString(source, source());
        List<String> options = List.of("--release", arguments[1], "-Xlint:-options", "-nowarn", "-g", "-parameters",
                "-d", folder.toString(), source.toString());
        System.exit(ToolProvider.getSystemJavaCompiler().run(null, null, null, options.toArray(new String[0])));
    }

    private static String source() {
        String big = big(0, ARRAYS);
        // With the casts javac does not try what they hold for each method that it may be an argument of.
        String choice = "(int) (c ? " + big + " : 1)";
        String nested = "(int) (c ? d < 1 ? " + big + " : 2 : 1)";
        StringBuilder locals = new StringBuilder();
        StringBuilder sum = new StringBuilder("0");
        for (int i = 0; i < 260; ++i) {
            locals.append("int v").append(i).append(" = ").append(i).append("; ");
            sum.append(i % 50 == 0 ? " + v" + i : "");
        }
        return String.join("\n", "class Growing extends Exception {", "    static int f(int[] a) { return a.length; }",
                "    static int pick(Object a, int b) { return b; }",
                "    static int pick(int a, double b, long c, float e, int d) { return d; }",
                "    long field; static double[] numbers = {1, 2};", "    Growing(int x) { super(\"text\"); }",
                "    Growing(boolean c, double d) { this(" + nested + "); }",
                "    Growing(boolean c, long l) { super(\"text\" + l + " + choice + "); field = l; }",
                "    static Object fresh(boolean c, double d) { return new StringBuilder(" + nested + "); }",
                "    static Object inner(boolean c) { return new Growing(new StringBuilder(" + choice
                        + ").length()); }",
                "    static int locals(boolean c, long l, double d, float e, Object o, String[] s, int[][] m) {",
                "        Object n = null; long l2 = l * 2; double d2 = d / l2; float e2 = -e; byte b = (byte) l2;",
                "        Object[][] oo = {s}; Class<?> k = String.class; int[] x = m[0]; char h = s[0].charAt(0);",
                "        int r = " + choice + "; return r + (n == null ? 1 : 0) + (int) l2 + b + x.length + h; }",
                "    int fields(boolean c, Number[] p) { long q = field += (long) " + choice + "; return (int) q; }",
                "    static int stack(boolean c, int[] m) { return pick(m[0]++, m[0] * 2.5, m.length + 1L, 2f, "
                        + choice + "); }",
                "    int i; static int pick(long a, int b) { return b; }",
                "    int again(boolean c, double q) { q = -q * 2; field = -field; Object fresh = new StringBuilder();",
                "        Object n = Thread.currentThread().getThreadGroup(), ch = new char[5];",
                "        return pick(i++, 1.5, field++, 2f, " + choice + ") + (int) q + fresh.hashCode()",
                "            + n.hashCode() + ch.hashCode(); }",
                "    static int early(double q, boolean c) { q = -q; int r = " + choice + "; return r + (int) q; }",
                "    static int chopped(long l, boolean c, double d) {",
                "        if (c) { long k = l; if (k > 3) { double e = d; String s = e > k ? \"a\" : \"b\"; l = s.length(); } }",
                "        int r = " + choice + "; return r + (int) l + (int) d; }",
                "    static int arrays(boolean c, String[][] s) { return pick(s[0], " + choice + "); }",
                "    static int multi(boolean c) { return pick(new long[2][3], " + choice + "); }",
                "    static int primitive(boolean c) { return pick(new char[5], " + choice + "); }",
                "    static int cast(boolean c, Object o) { return pick((Number[]) o, " + choice + "); }",
                "    static int constant(boolean c) { return pick(Integer[].class, " + choice + "); }",
                "    static int nothing(boolean c) { return pick(null, " + choice + "); }",
                "    static int element(boolean c, Object[] a) { return pick(a[0] = \"t\", " + choice + "); }",
                "    static double compound(boolean c, double[] a) { return a[1] += " + choice + "; }",
                "    static int call(boolean c, String s) { return pick(s.trim().split(\",\"), " + choice + "); }",
                "    static int lambda(boolean c, int i) { return pick((Runnable) () -> f(new int[i]), " + choice
                        + "); }",
                "    static int comparison(boolean c, long l, Object o) {",
                "        return l < 3 && o instanceof String && c ? " + big + " : 1; }",
                "    static int locked(boolean c, Object o) { synchronized (o) { return " + choice + "; } }",
                "    static int caught(boolean c, double d) { int r = 7;",
                "        try { r = " + nested + "; } catch (RuntimeException e) { r = e.hashCode(); } return r; }",
                "    static int loop(boolean c) { int r = 0; do { r += " + choice + "; } while (r < 2); return r; }",
                "    static int many(boolean c) { " + locals + " int r = " + choice + "; return r + " + sum + "; }",
                "    static int big(boolean c) { long w = 1; " + locals + " w += v259; int r = " + choice
                        + "; v259 += 1000; return r + (int) w + v259; }",
                "}");
    }

    /** A sum of so many arrays, as deep as its logarithm. */
    private static String big(int from, int to) {
        int middle = (from + to) / 2;
        return to - from == 1 ? ARRAY : "(" + big(from, middle) + " + " + big(middle, to) + ")";
    }
}
