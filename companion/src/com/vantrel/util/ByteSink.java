package com.vantrel.util;

import java.io.ByteArrayOutputStream;
import java.nio.ByteBuffer;

/** Big-endian numbers, and ranges of another class file, appended. */
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

    /** Appends what lies between two positions of a buffer that an array backs from its beginning. */
    ByteSink copy(ByteBuffer from, int start, int end) {
        write(from.array(), start, end - start);
        return this;
    }
}
