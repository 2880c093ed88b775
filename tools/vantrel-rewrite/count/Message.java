package com.vantrel.count.x0000000000000000;

import java.io.FileDescriptor;
import java.io.FileOutputStream;
import java.io.IOException;
import java.nio.charset.StandardCharsets;

/** Lines for the user. */
final class Message {
    private Message() {
    }

    /** On stderr, but not through System.err, which the program may have replaced by something of its own. */
    @SuppressWarnings("resource")
    static void print(String line) {
        byte[] bytes = ("vantrel-count: " + line + "\n").getBytes(StandardCharsets.UTF_8);
        try {
            new FileOutputStream(FileDescriptor.err).write(bytes);
        } catch (IOException closed) {
            return; // there is nobody to tell
        }
    }
}
