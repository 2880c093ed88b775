package com.vantrel.command;

import java.nio.charset.StandardCharsets;

/** What is answered to a question from outside. Does not change. */
final class Answer {
    /** The bytes are what was asked for. */
    static final int WELL = 0;
    /** There is no such thing as was asked for; the bytes are a line that says what there is not. */
    static final int NOTHING = 1;
    /** There is no answer; the bytes are lines that say why. */
    static final int NONE = 2;

    private final int status;
    private final byte[] bytes;

    private Answer(int status, byte[] bytes) {
        this.status = status;
        this.bytes = bytes;
    }

    static Answer of(byte[] bytes) {
        return new Answer(WELL, bytes);
    }

    static Answer of(String text) {
        return of(text.getBytes(StandardCharsets.UTF_8));
    }

    /** @param why a line without its end, or several; the first one is for people who have read nothing else */
    static Answer refusal(int status, String why) {
        return new Answer(status, why.getBytes(StandardCharsets.UTF_8));
    }

    int status() {
        return status;
    }

    byte[] bytes() {
        return bytes;
    }
}
