package linking;

/** The rewriter, and what the VM made of its images. The library is loaded by whoever uses this. */
final class Rewriter {
    static final int CALL = 1;
    static final int RETURN = 2;
    static final int OBJECT_INIT = 4;
    static final int NEW_ARRAY = 8;
    static final int ALL = 15;

    private Rewriter() {
    }

    /** Throws a Refusal. The name may be null. If modern, by the function that takes the class files of today. */
    static native byte[] rewrite(
            byte[] image, String name, int trackers, int classNumber, boolean systemClass, boolean modern);

    /** In internal form. Throws a Refusal. */
    static native String className(byte[] image);

    static native boolean isLinked(Class<?> type);
}
