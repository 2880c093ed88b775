package com.vantrel.model;

import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;

/**
 * The command that opens a line in the user's editor, such as {@code idea --line %line %file}. It is split into words
 * here, and no shell sees it: blanks separate words, single and double quotes keep them together and have no escapes.
 * {@code %file} and {@code %line} are put in after that, so that a file's name needs no quotes; {@code %%} is a percent
 * sign. A command that does not say where the file goes gets it as its last word.
 */
public final class EditorCommand {
    private final List<String> words;

    /** @throws IllegalArgumentException with a line for the user, if the command makes no sense */
    public EditorCommand(String command) {
        words = split(command);
        if (words.isEmpty() || words.get(0).isEmpty()) {
            throw new IllegalArgumentException("there is no editor command");
        }
    }

    /** The words of the command for a line of a file. */
    public List<String> words(Path file, int line) {
        List<String> filled = new ArrayList<>();
        boolean namesFile = false;
        for (String word : words) {
            namesFile |= word.replace("%%", "").contains("%file");
            filled.add(fill(word, file.toString(), String.valueOf(Math.max(1, line))));
        }
        if (!namesFile) {
            filled.add(file.toString());
        }
        return filled;
    }

    private static String fill(String word, String file, String line) {
        StringBuilder filled = new StringBuilder();
        for (int at = 0; at < word.length();) {
            if (word.startsWith("%%", at)) {
                filled.append('%');
                at += 2;
            } else if (word.startsWith("%file", at)) {
                filled.append(file);
                at += "%file".length();
            } else if (word.startsWith("%line", at)) {
                filled.append(line);
                at += "%line".length();
            } else {
                filled.append(word.charAt(at++));
            }
        }
        return filled.toString();
    }

    private static List<String> split(String command) {
        List<String> words = new ArrayList<>();
        StringBuilder word = null;
        char quote = 0;
        for (char c : command.toCharArray()) {
            if (quote == 0 && Character.isWhitespace(c)) {
                if (word != null) {
                    words.add(word.toString());
                    word = null;
                }
                continue;
            }
            if (word == null) {
                word = new StringBuilder(); // also for a pair of quotes with nothing in it
            }
            if (c == quote) {
                quote = 0;
            } else if (quote == 0 && (c == '"' || c == '\'')) {
                quote = c;
            } else {
                word.append(c);
            }
        }
        if (quote != 0) {
            throw new IllegalArgumentException("the editor command has a quote (" + quote + ") that nothing closes");
        }
        if (word != null) {
            words.add(word.toString());
        }
        return words;
    }
}
