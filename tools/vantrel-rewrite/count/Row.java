package com.vantrel.count.x0000000000000000;

/** A line of the table: a method's name and counts. Methods that were called most come first. */
final class Row implements Comparable<Row> {
    /** Class, name, descriptor and the jar or folder, with tabs between them. */
    final String name;
    final long[] counts = new long[Calls.COUNTS];
    /**
     * Whether the table has the method if it was called, and if it was not: that depends on the options of
     * vantrel-rewrite.
     */
    boolean isListedIfCalled;
    boolean isListedIfUnused;

    Row(String name) {
        this.name = name;
    }

    boolean ran() {
        return counts[Calls.CALLS] > 0;
    }

    boolean isListed() {
        return ran() ? isListedIfCalled : isListedIfUnused;
    }

    @Override
    public int compareTo(Row other) {
        int byCalls = Long.compare(other.counts[Calls.CALLS], counts[Calls.CALLS]);
        return byCalls != 0 ? byCalls : name.compareTo(other.name);
    }

    @Override
    public String toString() {
        long calls = counts[Calls.CALLS];
        long returns = counts[Calls.RETURNS];
        return calls + "\t" + returns + '\t' + Math.max(calls - returns, 0) + '\t' + counts[Calls.ARRAYS] + '\t' + name;
    }
}
