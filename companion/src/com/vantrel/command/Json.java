package com.vantrel.command;

/** Writes a JSON value into a text, with a line for each object that is in an array. */
final class Json {
    private final StringBuilder text = new StringBuilder();
    private boolean needsComma;
    private int depth;

    /** Begins an object: the value of what {@link #key} has named, an array's next, or all of it. */
    Json object() {
        return begin('{');
    }

    Json array() {
        return begin('[');
    }

    private Json begin(char bracket) {
        separate();
        boolean isElement = bracket == '{' && text.length() > 0 && text.charAt(text.length() - 1) != ':';
        if (isElement) {
            text.append('\n');
            for (int i = 0; i < depth; i++) {
                text.append(' ');
            }
        }
        text.append(bracket);
        depth++;
        needsComma = false;
        return this;
    }

    /** Ends the object or array that was begun last. */
    Json end(char bracket) {
        text.append(bracket);
        depth--;
        needsComma = true;
        return this;
    }

    Json key(String name) {
        separate();
        string(name);
        text.append(':');
        needsComma = false;
        return this;
    }

    /** A member of an object; left out if the value is null. Numbers and truth values are written as such. */
    Json member(String name, Object value) {
        return value == null ? this : key(name).value(value);
    }

    Json value(Object value) {
        separate();
        if (value instanceof Number || value instanceof Boolean) {
            text.append(value);
        } else {
            string(value.toString());
        }
        needsComma = true;
        return this;
    }

    private void separate() {
        if (needsComma) {
            text.append(',');
        }
    }

    private void string(String value) {
        text.append('"');
        for (int i = 0; i < value.length(); i++) {
            char c = value.charAt(i);
            boolean isPair = Character.isHighSurrogate(c) && i + 1 < value.length()
                    && Character.isLowSurrogate(value.charAt(i + 1));
            if (isPair) {
                text.append(c).append(value.charAt(++i));
            } else if (c == '"' || c == '\\') {
                text.append('\\').append(c);
            } else if (c < ' ' || c >= 0x7F && c <= 0x9F || Character.isSurrogate(c)) {
                text.append(String.format("\\u%04x", (int) c)); // half of a pair cannot be written as UTF-8
            } else {
                text.append(c);
            }
        }
        text.append('"');
    }

    @Override
    public String toString() {
        return text.toString();
    }
}
