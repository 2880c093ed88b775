package com.vantrel.model;

import java.io.IOException;
import java.io.Reader;
import java.io.Writer;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.nio.file.StandardCopyOption;
import java.util.Properties;

/**
 * What the inspector remembers from one program to the next, by name. A value is what was set since this VM started, or
 * else the system property {@code vantrel.NAME}, or else what the settings file has.
 *
 * <p>The file is the user's {@code .config/vantrel/settings}, or the one that {@code -Dvantrel.settings} names. A file
 * that cannot be read remembers nothing. May be used by any thread.
 */
public final class Settings {
    private static final Properties NEW = new Properties();

    private Settings() {
    }

    /** A setting; the fallback if there is none. */
    public static synchronized String get(String name, String fallback) {
        String value = NEW.getProperty(name);
        if (value == null) {
            value = System.getProperty("vantrel." + name);
        }
        return value != null ? value : read().getProperty(name, fallback);
    }

    /** A whole number; the fallback if there is none. */
    public static int get(String name, int fallback) {
        try {
            return Integer.parseInt(get(name, ""));
        } catch (NumberFormatException e) {
            return fallback;
        }
    }

    /** Sets and remembers a setting. Returns whether it could be remembered; it holds for this VM in any case. */
    public static synchronized boolean set(String name, String value) {
        NEW.setProperty(name, value);
        // What another program's inspector has remembered meanwhile stays.
        Properties all = read();
        if (value.equals(all.getProperty(name))) {
            return true;
        }
        all.setProperty(name, value);
        return write(all);
    }

    private static Properties read() {
        Properties all = new Properties();
        Path file = file();
        if (file != null && Files.isRegularFile(file)) {
            try (Reader reader = Files.newBufferedReader(file, StandardCharsets.UTF_8)) {
                all.load(reader);
            } catch (IOException | IllegalArgumentException e) {
                // Half of a damaged file is no better than none.
                all.clear();
            }
        }
        return all;
    }

    /** Writes another file and moves it into place, so that no other program ever reads half of one. */
    private static boolean write(Properties all) {
        Path file = file();
        if (file == null) {
            return false;
        }
        Path whole = null;
        try {
            Files.createDirectories(file.getParent());
            whole = Files.createTempFile(file.getParent(), "settings", null);
            try (Writer writer = Files.newBufferedWriter(whole, StandardCharsets.UTF_8)) {
                all.store(writer, "What the Vantrel inspector remembers.");
            }
            Files.move(whole, file, StandardCopyOption.REPLACE_EXISTING, StandardCopyOption.ATOMIC_MOVE);
            return true;
        } catch (IOException e) {
            if (whole != null) {
                whole.toFile().delete();
            }
            return false;
        }
    }

    /** The settings file; null where the user has no home. */
    private static Path file() {
        String given = System.getProperty("vantrel.settings");
        if (given != null) {
            return Paths.get(given).toAbsolutePath();
        }
        String config = System.getenv("XDG_CONFIG_HOME");
        Path folder = config == null || config.isEmpty() ? Paths.get(System.getProperty("user.home", ""), ".config")
                                                         : Paths.get(config);
        // A VM that knows of no home calls it "?".
        return folder.isAbsolute() ? folder.resolve("vantrel").resolve("settings") : null;
    }
}
