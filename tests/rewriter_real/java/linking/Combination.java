package linking;

/** A choice of trackers, class numbers and the system flag. */
enum Combination {
    ALL_SMALL(Rewriter.ALL, 0, false),
    ALL_LARGE(Rewriter.ALL, 0x8000, false),
    ALL_IN_SYSTEM_CLASS(Rewriter.ALL, 0, true),
    CALL(Rewriter.CALL, 0, false),
    RETURN(Rewriter.RETURN, 0, false),
    NEW_ARRAY(Rewriter.NEW_ARRAY, 0, false),
    NOTHING(0, 0, false);

    private final int trackers;
    private final int firstNumber;
    private final boolean systemClass;

    Combination(int trackers, int firstNumber, boolean systemClass) {
        this.trackers = trackers;
        this.firstNumber = firstNumber;
        this.systemClass = systemClass;
    }

    /** Every other class's name is left for the rewriter to find. Throws a Refusal. */
    byte[] rewrite(String name, byte[] image, boolean modern) {
        int hash = name.hashCode() & 0x7FFF;
        String known = hash % 2 == 0 ? name.replace('.', '/') : null;
        return Rewriter.rewrite(image, known, trackers, firstNumber + hash, systemClass, modern);
    }
}
