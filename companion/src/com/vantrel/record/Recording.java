package com.vantrel.record;

import java.awt.Component;
import java.util.ArrayList;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Set;
import java.util.function.Predicate;
import java.util.regex.Pattern;

import com.vantrel.model.Facts;
import com.vantrel.watch.Watch;

/**
 * What is recorded from the program's start, whether the inspector's window is open or not, if the system property
 * {@code vantrel.record} asks for it. Its value is one or several of these, with commas between them: {@code changes},
 * or {@code changes:PATTERN} with a pattern for class names such as {@code com.acme.*}, for which only components of
 * such classes, and what is in them, are recorded; {@code blocks}, of the event thread; {@code threads}, for changes on
 * other threads than that.
 */
public final class Recording {
    private static final String PROPERTY = "vantrel.record";
    private static final String CHANGES = "changes";
    private static final String BLOCKS = "blocks";
    private static final String THREADS = "threads";

    private Recording() {
    }

    /** Begins to record what is asked for; says on stderr, in one line each, what cannot be asked for. */
    public static void start() {
        Set<String> wanted = new LinkedHashSet<>();
        for (String word : System.getProperty(PROPERTY, "").split(",")) {
            wanted.add(word.trim());
        }
        for (String word : wanted) {
            if (word.equals(CHANGES)) {
                new ChangeRecorder(component -> true).start();
            } else if (word.startsWith(CHANGES + ":")) {
                new ChangeRecorder(within(word.substring(CHANGES.length() + 1))).start();
            } else if (!word.isEmpty() && !word.equals(BLOCKS) && !word.equals(THREADS)) {
                System.err.println("vantrel: -D" + PROPERTY + "=" + word + " is not known; it may be " + CHANGES + ", "
                        + CHANGES + ":com.acme.*, " + BLOCKS + " or " + THREADS
                        + ", or several with commas between them");
            }
        }
        if (wanted.contains(BLOCKS) || wanted.contains(THREADS)) {
            Watch.start(wanted.contains(BLOCKS), wanted.contains(THREADS));
        }
    }

    /** Accepts components of a class whose name matches, and components in one of those. */
    public static Predicate<Component> within(String pattern) {
        List<String> parts = new ArrayList<>();
        for (String part : pattern.split("\\*", -1)) {
            parts.add(Pattern.quote(part));
        }
        Pattern names = Pattern.compile(String.join(".*", parts));
        ClassValue<Boolean> matches = new ClassValue<Boolean>() {
            @Override
            protected Boolean computeValue(Class<?> type) {
                return names.matcher(type.getName()).matches();
            }
        };
        return component -> {
            for (Component at = component; at != null; at = Facts.parent(at)) {
                if (matches.get(at.getClass())) {
                    return true;
                }
            }
            return false;
        };
    }
}
