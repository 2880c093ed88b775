package com.vantrel.record;

import java.awt.Component;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Predicate;
import java.util.regex.Pattern;

import com.vantrel.model.Facts;

/**
 * Recording from the program's start, whether the inspector's window is open or not, if the system property {@code
 * vantrel.record} asks for it. Its value is {@code changes}, or {@code changes:PATTERN} with a pattern for class names
 * such as {@code com.acme.*}: then only components of such classes, and what is in them, are recorded.
 */
public final class Recording {
    private static final String PROPERTY = "vantrel.record";
    private static final String CHANGES = "changes";

    private Recording() {
    }

    /** Begins to record what is asked for; says on stderr, in one line, what cannot be asked for. */
    public static void start() {
        String wanted = System.getProperty(PROPERTY, "");
        if (wanted.equals(CHANGES)) {
            new ChangeRecorder(component -> true).start();
        } else if (wanted.startsWith(CHANGES + ":")) {
            new ChangeRecorder(within(wanted.substring(CHANGES.length() + 1))).start();
        } else if (!wanted.isEmpty()) {
            System.err.println("vantrel: -D" + PROPERTY + "=" + wanted + " is not known; it may be " + CHANGES + " or "
                    + CHANGES + ":com.acme.*");
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
