package com.vantrel.command;

import java.util.ArrayList;
import java.util.List;

/**
 * One step of a path as somebody typed it: a kind of component or a class, with a number among its like from 0 on, or
 * with a name or text in brackets; or dots, which stand for any steps or none. A backslash in brackets takes the
 * meaning from the character after it, and begins {@code \n}, {@code \t}, {@code \r} and {@code \u0000}.
 */
final class Step {
    private static final String NAME = "name";
    private static final String TEXT = "text";

    private final String typed;
    private final String word;
    private final String key;
    private final String value;

    private Step(String typed) throws Refusal {
        this.typed = typed;
        int bracket = typed.indexOf('[');
        word = bracket < 0 ? typed : typed.substring(0, bracket);
        if (bracket < 0) {
            key = null;
            value = null;
            return;
        }
        int equals = typed.indexOf('=', bracket);
        key = equals < 0 ? "" : typed.substring(bracket + 1, equals);
        if (!typed.endsWith("]") || !key.equals(NAME) && !key.equals(TEXT)) {
            throw new Refusal(Answer.NOTHING,
                    "the step '" + typed + "' makes no sense; it may be button0, button[text=OK] or button[name=ok]");
        }
        value = Escapes.read(typed.substring(equals + 1, typed.length() - 1));
    }

    /** The steps of a path; slashes in brackets separate none. */
    static List<Step> of(String path) throws Refusal {
        List<Step> steps = new ArrayList<>();
        StringBuilder step = new StringBuilder();
        boolean inside = false;
        for (int i = 0; i < path.length(); i++) {
            char c = path.charAt(i);
            if (c == '/' && !inside) {
                addTo(steps, step);
                continue;
            }
            step.append(c);
            if (c == '\\' && inside && i + 1 < path.length()) {
                step.append(path.charAt(++i));
            }
            inside = c == '[' || inside && c != ']';
        }
        addTo(steps, step);
        return steps;
    }

    private static void addTo(List<Step> steps, StringBuilder step) throws Refusal {
        if (step.length() > 0) {
            steps.add(new Step(step.toString()));
            step.setLength(0);
        }
    }

    boolean isAnything() {
        return typed.equals("...") || typed.equals("\u2026");
    }

    boolean leadsTo(Place place) {
        return (word.isEmpty() || place.isKind(word)) && (key == null || holds(place));
    }

    private boolean holds(Place place) {
        return key.equals(NAME) ? place.hasName(value) : place.hasText(value);
    }

    /** A value as it stands in brackets. */
    static String escaped(String value) {
        return Escapes.line(value).replace("]", "\\]");
    }

    @Override
    public String toString() {
        return typed;
    }
}
