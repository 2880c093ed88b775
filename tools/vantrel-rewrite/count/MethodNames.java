package com.vantrel.count.x0000000000000000;

import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.InputStream;

/**
 * The file "methods" beside these classes, as vantrel-rewrite has written it: a line that says what is to be listed, a
 * line with the name of the jar or folder, and a line for each method that has code: class number, method number,
 * class, name and descriptor, with tabs between them. It is taken for characters of one byte each and comes out as it
 * went in, whatever is in a name.
 */
final class MethodNames {
    private static final char TAB = '\t';

    private final String text;
    private int at;

    final boolean listsCalled;
    final boolean listsUnused;
    final String place;

    /** The number of the class and the method that next() has come to, and class, name and descriptor as they stand. */
    int type;
    int method;
    String name;

    MethodNames(byte[] bytes) {
        text = Message.textOf(bytes);
        String lists = line();
        listsCalled = lists.contains("called");
        listsUnused = lists.contains("unused");
        place = line();
    }

    boolean next() {
        if (at >= text.length()) {
            return false;
        }
        String line = line();
        int first = line.indexOf(TAB);
        int second = line.indexOf(TAB, first + 1);
        type = Integer.parseInt(line.substring(0, first));
        method = Integer.parseInt(line.substring(first + 1, second));
        name = line.substring(second + 1);
        return true;
    }

    private String line() {
        int end = text.indexOf('\n', at);
        String line = text.substring(at, end);
        at = end + 1;
        return line;
    }

    /** Early, for at the end of the program the class loader may be closed and its jar removed. */
    static byte[] read() throws IOException {
        try (InputStream input = Calls.class.getResourceAsStream("methods")) {
            if (input == null) {
                throw new IOException("the names of the methods are not beside " + Calls.class);
            }
            ByteArrayOutputStream bytes = new ByteArrayOutputStream();
            byte[] block = new byte[1 << 16];
            for (int count = input.read(block); count >= 0; count = input.read(block)) {
                bytes.write(block, 0, count);
            }
            return bytes.toByteArray();
        }
    }
}
