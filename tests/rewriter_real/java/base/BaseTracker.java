package base;

/** What a VM's own classes call, rewritten: before it can do much, so it does next to nothing. */
public final class BaseTracker {
    private static long calls;

    private BaseTracker() {
    }

    public static void entered(int classNumber, int methodNumber) {
        ++calls;
    }

    public static void left(int classNumber, int methodNumber) {
        ++calls;
    }

    public static void made(Object array) {
        ++calls;
    }
}
