package com.vantrel.count.x0000000000000000;

import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.OutputStream;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.Collections;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.zip.GZIPOutputStream;

/**
 * The counts of all methods, with their names. Counts of methods of the same name are added up: those of classes that
 * several class loaders have loaded from one jar, and those of the versions of a class in a multi-release jar.
 */
final class Table {
    private final Map<String, Row> rows = new HashMap<>();

    void add(Map<String, Object> record) throws IOException {
        byte[] methods;
        synchronized (record) {
            methods = (byte[]) record.get(Counters.METHODS);
        }
        MethodNames names = new MethodNames(methods);
        long[][] totals = Totals.of(record);
        while (names.next()) {
            String name = names.name + '\t' + names.place;
            Row row = rows.get(name);
            if (row == null) {
                row = new Row(name);
                rows.put(name, row);
            }
            row.isListedIfCalled |= names.listsCalled;
            row.isListedIfUnused |= names.listsUnused;
            Totals.addMethod(totals, names.type, names.method, row.counts);
        }
    }

    /** How many methods there are, and how many of them ran. */
    String summary() {
        int ran = 0;
        for (Row row : rows.values()) {
            ran += row.ran() ? 1 : 0;
        }
        return ran + " of " + rows.size() + " methods ran";
    }

    void write(OutputStream output) throws IOException {
        List<Row> listed = new ArrayList<>();
        for (Row row : rows.values()) {
            if (row.isListed()) {
                listed.add(row);
            }
        }
        Collections.sort(listed);
        write(output, "# " + summary());
        write(output, "# calls\treturns\tunreturned\tarrays\tclass\tmethod\tdescriptor\tfrom");
        for (Row row : listed) {
            write(output, row.toString());
        }
    }

    private static void write(OutputStream output, String line) throws IOException {
        output.write((line + '\n').getBytes(StandardCharsets.ISO_8859_1));
    }

    /**
     * Has all classes loaded that writing a table needs, because at the end of the program their class loader may be
     * closed.
     */
    static void rehearse() throws IOException {
        ByteArrayOutputStream methods = new ByteArrayOutputStream();
        try (OutputStream packer = new GZIPOutputStream(methods)) {
            write(packer, "called unused\n\n0\t0\tclass\tmethod\t()V");
        }
        Map<String, Object> record = new HashMap<>();
        record.put(Counters.METHODS, methods.toByteArray());
        record.put(Counters.THREADS, new ArrayList<>());
        Table table = new Table();
        table.add(record);
        table.write(new ByteArrayOutputStream());
    }
}
