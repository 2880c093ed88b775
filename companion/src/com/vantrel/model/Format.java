package com.vantrel.model;

import java.util.Arrays;
import java.util.Collections;
import java.util.List;

/**
 * How the values of an editable property are written as text, and read back. Its messages are for whoever typed the
 * text. Stateless, for any thread.
 */
public final class Format {
    /**
     * Makes a value of a text that the user has typed; throws IllegalArgumentException with what it should have been.
     */
    interface Parser {
        Object parse(String text, Object old);
    }

    /** Writes a value that is not null. */
    interface Writer {
        String write(Object value);
    }

    private final Writer writer;
    private final Parser parser;
    private final String expects;
    private final List<String> choices;

    private Format(Writer writer, Parser parser, String expects, List<String> choices) {
        this.writer = writer;
        this.parser = parser;
        this.expects = expects;
        this.choices = choices;
    }

    /**
     * A text that is typed.
     *
     * @param expects what must be typed, as the end of a sentence
     */
    static Format typed(String expects, Writer writer, Parser parser) {
        return new Format(writer, parser, expects, Collections.<String>emptyList());
    }

    /** One of a few values, each with its name in the same place. */
    static Format chosen(List<?> values, List<String> names) {
        return chosen(values, names, value -> {
            if (values.contains(value)) {
                return names.get(values.indexOf(value));
            }
            return value instanceof Number ? value.toString() : Values.object(value);
        });
    }

    /** As above, for a property that may have other values than those to choose from; the writer writes those, too. */
    static Format chosen(List<?> values, List<String> names, Writer writer) {
        Parser parser = (text, old) -> {
            int at = names.indexOf(text);
            if (at < 0) {
                throw new IllegalArgumentException();
            }
            return values.get(at);
        };
        return new Format(writer, parser, "one of " + String.join(", ", names), names);
    }

    static Format flag() {
        return chosen(Arrays.asList(true, false), Arrays.asList("true", "false"));
    }

    /** The values to choose from; empty where the text is typed. */
    public List<String> choices() {
        return choices;
    }

    /** What may be typed, as the end of a sentence. */
    public String expects() {
        return expects;
    }

    public String write(Object value) {
        return value == null ? "" : writer.write(value);
    }

    /**
     * Reads a text that the user has typed.
     *
     * @param old the value that is there: what the text leaves open stays as it is
     * @throws IllegalArgumentException whose message says in one sentence what is wrong and what to type
     */
    public Object parse(String text, Object old) {
        try {
            return parser.parse(text, old);
        } catch (IllegalArgumentException e) {
            // A parser that can say more than what is expected does so in its message. That of a NumberFormatException
            // is of no use to a user.
            boolean own = e.getMessage() != null && !(e instanceof NumberFormatException);
            throw new IllegalArgumentException(
                    own ? e.getMessage() : "\u201c" + text + "\u201d is not " + expects + ".", e);
        }
    }
}
