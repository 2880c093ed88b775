package com.vantrel.command;

/**
 * Texts in one line, as answers have them: a backslash is written twice, and what would end the line, is not to be
 * seen, or cannot be written as UTF-8 is {@code \n}, {@code \r}, {@code \t} or {@code \u0000}.
 */
final class Escapes {
    private Escapes() {
    }

    static String line(String value) {
        StringBuilder text = new StringBuilder();
        for (int i = 0; i < value.length(); i++) {
            char c = value.charAt(i);
            boolean isPair = Character.isHighSurrogate(c) && i + 1 < value.length()
                    && Character.isLowSurrogate(value.charAt(i + 1));
            if (isPair) {
                text.append(c).append(value.charAt(++i));
            } else if (c == '\\') {
                text.append("\\\\");
            } else if (c == '\n' || c == '\t' || c == '\r') {
                text.append('\\').append(c == '\n' ? 'n' : c == '\t' ? 't' : 'r');
            } else if (isUnseen(c)) {
                text.append(String.format("\\u%04x", (int) c));
            } else {
                text.append(c);
            }
        }
        return text.toString();
    }

    private static boolean isUnseen(char c) {
        int type = Character.getType(c);
        return Character.isISOControl(c) || Character.isSurrogate(c) || type == Character.FORMAT
                || type == Character.LINE_SEPARATOR || type == Character.PARAGRAPH_SEPARATOR;
    }

    /** The text that a line stands for; a backslash before any other character is left out. */
    static String read(String line) {
        StringBuilder value = new StringBuilder();
        for (int i = 0; i < line.length(); i++) {
            char c = line.charAt(i);
            if (c != '\\' || i + 1 == line.length()) {
                value.append(c);
                continue;
            }
            c = line.charAt(++i);
            if (c == 'u' && line.substring(i + 1).matches("(?s)[0-9a-fA-F]{4}.*")) {
                value.append((char) Integer.parseInt(line.substring(i + 1, i + 5), 16));
                i += 4;
            } else {
                value.append(c == 'n' ? '\n' : c == 't' ? '\t' : c == 'r' ? '\r' : c);
            }
        }
        return value.toString();
    }
}
