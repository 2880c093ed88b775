package com.vantrel.model;

import java.time.Instant;
import java.time.ZoneId;
import java.time.format.DateTimeFormatter;

/** Who has set a property last, as the inspector says it. Holds nothing of the program. Does not change. */
public final class SetBy {
    private static final DateTimeFormatter TIME = DateTimeFormatter.ofPattern("HH:mm:ss.SSS");

    private final String place;
    private final String sentence;

    private SetBy(String place, String sentence) {
        this.place = place;
        this.sentence = sentence;
    }

    /**
     * @param stack  of the thread that has set it
     * @param isOurs whether it was set in the inspector's window
     * @param times  how many times in a row these calls have set it
     */
    public static SetBy of(CallStack stack, boolean isOurs, String thread, long millis, int times) {
        StackTraceElement where = isOurs ? null : stack.where();
        String place = where != null ? CallSite.place(where) : isOurs ? "this window" : "the toolkit";
        String who = where != null ? CallSite.summary(where) : isOurs ? "you, in this window" : "the toolkit";
        String again = times > 1 ? ", " + times + " times in a row" : "";
        return new SetBy(place, "Set by " + who + " at " + time(millis) + " on " + thread + again + ".");
    }

    /** A time of the day, to the millisecond. */
    public static String time(long millis) {
        return TIME.format(Instant.ofEpochMilli(millis).atZone(ZoneId.systemDefault()));
    }

    /** File and line; or, if it was not the program, who else in two words. */
    public String place() {
        return place;
    }

    /** Who, where, when and on which thread, in one sentence. */
    public String sentence() {
        return sentence;
    }

    @Override
    public boolean equals(Object other) {
        return other instanceof SetBy && sentence.equals(((SetBy) other).sentence);
    }

    @Override
    public int hashCode() {
        return sentence.hashCode();
    }
}
