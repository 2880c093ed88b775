package com.vantrel.util;

import java.io.ByteArrayOutputStream;
import java.nio.ByteBuffer;

/** A growing class file: appends big-endian numbers, and ranges copied from another one. */
final class ByteSink extends ByteArrayOutputStream {
    ByteSink u1(int value) {
        write(value);
        return this;
    }

    ByteSink u2(int value) {
        write(value >>> 8);
        write(value);
        return this;
    }

    ByteSink u4(int value) {
        return u2(value >>> 16).u2(value);
    }

    ByteSink bytes(byte[] bytes) {
        write(bytes, 0, bytes.length);
        return this;
    }

    /** Appends the bytes between two positions of a buffer whose positions are those of its array. */
    ByteSink copy(ByteBuffer from, int start, int end) {
        write(from.array(), start, end - start);
        return this;
    }
}
