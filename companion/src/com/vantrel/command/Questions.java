package com.vantrel.command;

import java.util.List;

/** The questions that can be asked from outside, by their first word. Run on a thread of ours. */
final class Questions {
    private Questions() {
    }

    /** A word that may be empty, and is not there then if it would be the last. */
    private static String word(List<String> words, int at) {
        return words.size() > at ? words.get(at) : "";
    }

    /** @param words the question's name, and what it needs to know */
    static Answer answer(List<String> words) {
        try {
            switch (words.get(0)) {
                case "about":
                    return About.program();
                case "tree":
                    return Trees.answer(words.get(1).equals("json"), Integer.parseInt(words.get(2)), word(words, 3));
                case "show":
                    return Shown.answer(word(words, 1));
                case "picture":
                    return Pictures.answer(word(words, 1));
                case "select":
                    return Selected.select(word(words, 1));
                case "selection":
                    return Selected.answer();
                case "snapshot":
                    return Snapshots.answer();
                default:
                    throw new Refusal(Answer.NONE,
                            "the program's agent does not know the question '" + words.get(0)
                                    + "'; it is of another version");
            }
        } catch (Refusal refusal) {
            return refusal.answer();
        } catch (Throwable thrown) {
            return EventThread.failure(thrown).answer();
        }
    }
}
