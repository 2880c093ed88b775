package com.vantrel.count.x0000000000000000;

import java.io.BufferedReader;
import java.io.ByteArrayInputStream;
import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.InputStreamReader;
import java.nio.charset.StandardCharsets;
import java.util.zip.GZIPInputStream;

/**
 * The file "methods.gz" beside these classes, as vantrel-rewrite has written it: a line that says what is to be listed,
 * a line with the name of the jar or folder, and a line for each method that has code: class number, method number,
 * class, name and descriptor, with tabs between them. It is read and written as ISO 8859-1, which keeps all bytes as
 * they are, whatever encoding a name has. It stays packed while the program runs, which takes a tenth of the memory.
 */
final class MethodNames {
    private static final char TAB = '\t';

    private final BufferedReader lines;

    final boolean listsCalled;
    final boolean listsUnused;
    final String place;

    /**
     * What next() has read: the numbers of class and method, and class, name and descriptor with tabs between them.
     */
    int type;
    int method;
    String name;

    MethodNames(byte[] packed) throws IOException {
        InputStream bytes = new GZIPInputStream(new ByteArrayInputStream(packed));
        lines = new BufferedReader(new InputStreamReader(bytes, StandardCharsets.ISO_8859_1));
        String lists = lines.readLine();
        listsCalled = lists.contains("called");
        listsUnused = lists.contains("unused");
        place = lines.readLine();
    }

    boolean next() throws IOException {
        String line = lines.readLine();
        if (line == null) {
            return false;
        }
        int first = line.indexOf(TAB);
        int second = line.indexOf(TAB, first + 1);
        type = Integer.parseInt(line.substring(0, first));
        method = Integer.parseInt(line.substring(first + 1, second));
        name = line.substring(second + 1);
        return true;
    }

    /**
     * Reads the packed file. To be called early: at the end of the program, the class loader may be closed and its jar
     * removed.
     */
    static byte[] read() throws IOException {
        try (InputStream input = Calls.class.getResourceAsStream("methods.gz")) {
            if (input == null) {
                throw new IOException("the names of the methods are not beside " + Calls.class);
            }
            ByteArrayOutputStream bytes = new ByteArrayOutputStream();
            byte[] block = new byte[1 << 13];
            for (int count = input.read(block); count >= 0; count = input.read(block)) {
                bytes.write(block, 0, count);
            }
            return bytes.toByteArray();
        }
    }
}
