package com.vantrel.view;

import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.nio.file.StandardCopyOption;
import java.util.HashMap;
import java.util.Map;
import java.util.Properties;

/**
 * What the inspector remembers from one time to the next, in a small file in the user's home: where its window was, and
 * what somebody has set. The file is everybody's: several programs may be inspected at once, so that each writes only
 * what it has changed. Whatever is wrong with the file, or the home, only means that less is remembered. For the event
 * thread.
 */
public final class Memory {
    private static final String FILE = ".vantrel.properties";
    /** What is larger was not written by us. */
    private static final long LARGEST = 1 << 20;

    private final Path file;
    private final Map<String, String> changes = new HashMap<>();
    private Properties known = new Properties();

    private Memory(Path file) {
        this.file = file;
        known = read(file);
    }

    /** What was remembered so far. */
    public static Memory open() {
        return new Memory(fileInHome());
    }

    private static Path fileInHome() {
        try {
            return Paths.get(System.getProperty("user.home"), FILE);
        } catch (RuntimeException e) { // a home that is no path, or one that must not be asked for
            return null;
        }
    }

    private static Properties read(Path file) {
        Properties properties = new Properties();
        try {
            if (file != null && Files.isRegularFile(file) && Files.size(file) < LARGEST) {
                try (InputStream in = Files.newInputStream(file)) {
                    properties.load(in);
                }
            }
        } catch (IOException | RuntimeException e) {
            properties.clear();
        }
        return properties;
    }

    /** A text that was remembered, or a fallback. */
    public String text(String key, String fallback) {
        return known.getProperty(key, fallback);
    }

    public int number(String key, int fallback) {
        try {
            return Integer.parseInt(known.getProperty(key, ""));
        } catch (NumberFormatException e) {
            return fallback;
        }
    }

    public boolean flag(String key, boolean fallback) {
        return Boolean.parseBoolean(known.getProperty(key, String.valueOf(fallback)));
    }

    /** Remembers something, from the next {@link #save} on for other programs too. */
    public void put(String key, Object value) {
        String text = String.valueOf(value);
        if (!text.equals(known.setProperty(key, text))) {
            changes.put(key, text);
        }
    }

    /** Writes what has changed, on a thread of its own that keeps no program alive: a home may be slow to reach. */
    public void save() {
        if (changes.isEmpty() || file == null) {
            return;
        }
        Map<String, String> now = new HashMap<>(changes);
        changes.clear();
        Thread thread = new Thread(() -> write(file, now), "vantrel-memory");
        thread.setDaemon(true);
        thread.start();
    }

    private static synchronized void write(Path file, Map<String, String> changes) {
        try {
            Properties all = read(file);
            all.putAll(changes);
            Path whole = Files.createTempFile(file.toAbsolutePath().getParent(), FILE, ".new");
            try {
                try (OutputStream out = Files.newOutputStream(whole)) {
                    all.store(out, "What the Vantrel inspector remembers");
                }
                Files.move(whole, file, StandardCopyOption.REPLACE_EXISTING, StandardCopyOption.ATOMIC_MOVE);
            } finally {
                Files.deleteIfExists(whole);
            }
        } catch (IOException | RuntimeException e) {
            // Then it is not remembered.
        }
    }
}
