package com.vantrel.command;

import java.util.List;

/** The questions that can be asked from outside, by their first word. Run on a thread of ours. */
final class Questions {
    private Questions() {
    }

    /** @param words the question's name, and what it needs to know */
    static Answer answer(List<String> words) {
        try {
            switch (words.get(0)) {
                case "about":
                    return About.program();
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
