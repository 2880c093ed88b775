package com.vantrel.command;

import java.util.List;

/** The questions that can be asked from outside, by their first word. Run on a thread of ours. */
final class Questions {
    private Questions() {
    }

    private static String query(List<String> words, int at) {
        return words.size() > at ? words.get(at) : "";
    }

    /** @param words the question's name, and what it needs to know */
    static Answer answer(List<String> words) {
        try {
            switch (words.get(0)) {
                case "about":
                    return About.program();
                case "tree":
                    return Trees.answer(words.get(1).equals("json"), Integer.parseInt(words.get(2)), query(words, 3));
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
