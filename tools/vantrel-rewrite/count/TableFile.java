package com.vantrel.count.x0000000000000000;

import java.io.BufferedOutputStream;
import java.io.File;
import java.io.FileOutputStream;
import java.io.IOException;
import java.io.OutputStream;

/** The file that the table is written to. */
final class TableFile {
    private static final String PROPERTY = "vantrel.count.file";
    private static final String USUAL = "vantrel-count-%p.txt";

    private static final String PROCESS = processNumber();

    private TableFile() {
    }

    /**
     * The file that the property names. In the name, %p stands for the number of the process, so that several programs,
     * or one that runs again, do not replace each other's table.
     */
    static File fromProperties() {
        String name = System.getProperty(PROPERTY, USUAL);
        return new File(name.replace("%p", PROCESS)).getAbsoluteFile();
    }

    private static String processNumber() {
        try {
            Class<?> type = Class.forName("java.lang.ProcessHandle", false, null);
            Object current = type.getMethod("current").invoke(null);
            return String.valueOf(type.getMethod("pid").invoke(current));
        } catch (ReflectiveOperationException javaEight) {
            return String.valueOf(System.currentTimeMillis());
        }
    }

    /**
     * Writes the whole table or nothing, and replaces an older one. If that is not possible it says why, and returns
     * false.
     */
    static boolean write(File file, Table table) {
        boolean isFile = file.isFile() || !file.exists(); // otherwise it is a pipe or a device
        File part = isFile ? new File(file + "." + PROCESS + ".part") : file;
        try {
            try (OutputStream output = new BufferedOutputStream(new FileOutputStream(part))) {
                table.write(output);
            }
            if (isFile && !part.renameTo(file)) {
                throw new IOException(part + " cannot be renamed to " + file);
            }
            return true;
        } catch (IOException failure) {
            Message.print("cannot write the table: " + failure.getMessage() + "; name another file with -D" + PROPERTY
                    + "=FILE");
            if (isFile) {
                part.delete();
            }
            return false;
        }
    }
}
