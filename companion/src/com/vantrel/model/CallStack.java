package com.vantrel.model;

import java.util.ArrayList;
import java.util.Arrays;
import java.util.Collections;
import java.util.List;

/**
 * A recorded stack, innermost call first: tells the program's line in it, and folds the rest. Holds nothing of the
 * program. Does not change. May be used by any thread.
 */
public final class CallStack {
    /**
     * How many parts a recursion may have between one call and its repetition, for repetitions to be found and folded.
     */
    private static final int LONGEST_ROUND = 12;

    /** What a part of the stack is. */
    public enum Kind {
        /** One line of the program. */
        PROGRAM,
        /** Calls of the toolkit in a row. */
        TOOLKIT,
        /** The lines above, of the program and the toolkit, once or several times more: a recursion. */
        REPEAT
    }

    /** A part of a folded stack. */
    public static final class Part {
        private final Kind kind;
        private final List<StackTraceElement> lines;
        private final int times;

        Part(Kind kind, List<StackTraceElement> lines, int times) {
            this.kind = kind;
            this.lines = Collections.unmodifiableList(lines);
            this.times = times;
        }

        public Kind kind() {
            return kind;
        }

        /** What the part stands for, innermost call first; one line if it is the program's. */
        public List<StackTraceElement> lines() {
            return lines;
        }

        /** How many times more the lines above occur; 1 where nothing repeats. */
        public int times() {
            return times;
        }

        boolean looksLike(Part other) {
            return kind == other.kind && lines.equals(other.lines);
        }
    }

    private final StackTraceElement[] trace;

    private CallStack(StackTraceElement[] trace) {
        this.trace = trace;
    }

    /** @param trace innermost call first; not to be changed any more; empty where nothing was recorded */
    public static CallStack of(StackTraceElement... trace) {
        return new CallStack(trace);
    }

    public boolean isEmpty() {
        return trace.length == 0;
    }

    /** The program's innermost line; null if there is none. */
    public StackTraceElement where() {
        for (StackTraceElement line : trace) {
            if (CallSite.isProgram(line)) {
                return line;
            }
        }
        return null;
    }

    /** All of it, innermost call first. */
    public List<StackTraceElement> lines() {
        return Collections.unmodifiableList(Arrays.asList(trace));
    }

    /** The whole stack as a program would print it, a line each; empty if there is none. */
    public String text() {
        StringBuilder text = new StringBuilder();
        for (StackTraceElement line : trace) {
            text.append(text.length() == 0 ? "" : "\n").append('\t').append(CallSite.link(line));
        }
        return text.toString();
    }

    @Override
    public boolean equals(Object other) {
        return other instanceof CallStack && Arrays.equals(trace, ((CallStack) other).trace);
    }

    @Override
    public int hashCode() {
        return Arrays.hashCode(trace);
    }

    /** The stack, innermost call first: lines of the program, and between them what is folded. */
    public List<Part> parts() {
        return foldRepeats(foldToolkit());
    }

    private List<Part> foldToolkit() {
        List<Part> parts = new ArrayList<>();
        for (int at = 0; at < trace.length;) {
            int end = at + 1;
            boolean isProgram = CallSite.isProgram(trace[at]);
            while (!isProgram && end < trace.length && !CallSite.isProgram(trace[end])) {
                end++;
            }
            parts.add(new Part(isProgram ? Kind.PROGRAM : Kind.TOOLKIT, Arrays.asList(trace).subList(at, end), 1));
            at = end;
        }
        return parts;
    }

    private static List<Part> foldRepeats(List<Part> parts) {
        List<Part> folded = new ArrayList<>();
        for (int at = 0; at < parts.size();) {
            int round = roundAt(parts, at);
            if (round == 0) {
                folded.add(parts.get(at++));
                continue;
            }
            int end = endOfRepeats(parts, at, round);
            folded.addAll(parts.subList(at, at + round));
            folded.add(repeat(parts.subList(at + round, end), (end - at) / round - 1));
            at = end;
        }
        return folded;
    }

    /**
     * How many parts one round of a recursion has that begins at a place. If there are several such lengths, the one
     * whose folding saves the most lines; 0 if none saves any.
     */
    private static int roundAt(List<Part> parts, int at) {
        int best = 0;
        int mostSaved = 0;
        for (int round = 1; round <= LONGEST_ROUND; round++) {
            int saved = endOfRepeats(parts, at, round) - at - round - 1; // a line is needed to say how often it repeats
            if (saved > mostSaved) {
                best = round;
                mostSaved = saved;
            }
        }
        return best;
    }

    private static int endOfRepeats(List<Part> parts, int at, int round) {
        int same = at + round;
        while (same < parts.size() && parts.get(same).looksLike(parts.get(same - round))) {
            same++;
        }
        return same - (same - at) % round;
    }

    private static Part repeat(List<Part> parts, int times) {
        List<StackTraceElement> lines = new ArrayList<>();
        for (Part part : parts) {
            lines.addAll(part.lines);
        }
        return new Part(Kind.REPEAT, lines, times);
    }
}
