package com.vantrel.command;

/** Why a question has no answer, as a status of {@link Answer} and lines to print. */
final class Refusal extends Exception {
    private static final long serialVersionUID = 1L;

    private final int status;

    Refusal(int status, String why) {
        super(why, null, false, false);
        this.status = status;
    }

    Answer answer() {
        return Answer.refusal(status, getMessage());
    }
}
