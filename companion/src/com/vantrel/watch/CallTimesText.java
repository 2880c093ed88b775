package com.vantrel.watch;

import java.util.ArrayList;
import java.util.List;

import com.vantrel.model.CallSite;

/**
 * A tree of calls in lines, the outermost call first, each with its time. Calls of the toolkit in a row are one line
 * that names the first of them, which is the one that the program made. What follows is indented only where calls part,
 * for a stack is deep and a line is short.
 *
 * <pre>
 *     1.82 s    EventDispatchThread.run and 24 calls in it
 *     1.82 s  > Orders.save(Orders.java:31)
 *     1.21 s      > Orders.write(Orders.java:40)
 *     1.21 s        Thread.sleep
 *     0.61 s      > Orders.check(Orders.java:52)
 * </pre>
 */
final class CallTimesText {
    private static final String PROGRAM = "> ";
    private static final String TOOLKIT = "  ";
    private static final int INDENT = 4;
    /** Branches in which less than this part of all was spent are left out, and so are lines beyond so many. */
    private static final double SMALLEST_SHARE = 0.05;
    private static final int MOST_LINES = 40;

    private final CallTimes tree;
    private final List<String> lines = new ArrayList<>();
    private boolean isCut;

    private CallTimesText(CallTimes tree) {
        this.tree = tree;
    }

    static List<String> of(CallTimes tree) {
        CallTimesText text = new CallTimesText(tree);
        text.addAll(tree.outermost(), 0);
        if (text.isCut) {
            text.lines.add("        (shorter branches are left out)");
        }
        return text.lines;
    }

    /** A time as all reports have it: seconds, to the hundredth. */
    static String seconds(long nanos) {
        return String.format(java.util.Locale.ROOT, "%.2f s", nanos / 1e9);
    }

    private void addAll(List<CallTimes.Call> calls, int indent) {
        for (CallTimes.Call call : calls) {
            if (call.nanos() >= SMALLEST_SHARE * tree.nanos() && lines.size() < MOST_LINES) {
                add(call, indent);
            } else {
                isCut = true;
            }
        }
    }

    /** Adds a call, and those in it for as long as there is one only. */
    private void add(CallTimes.Call first, int indent) {
        CallTimes.Call at = first;
        while (true) {
            int folded = 0;
            CallTimes.Call last = at;
            while (!CallSite.isProgram(at.line()) && isOnlyToolkit(last.calls())) {
                last = last.calls().get(0);
                folded++;
            }
            addLine(at, folded, indent);
            List<CallTimes.Call> inside = last.calls();
            if (inside.size() != 1 || lines.size() >= MOST_LINES) {
                isCut |= !inside.isEmpty() && lines.size() >= MOST_LINES;
                addAll(inside, indent + INDENT);
                return;
            }
            at = inside.get(0);
        }
    }

    private static boolean isOnlyToolkit(List<CallTimes.Call> calls) {
        return calls.size() == 1 && !CallSite.isProgram(calls.get(0).line());
    }

    private void addLine(CallTimes.Call call, int folded, int indent) {
        boolean isProgram = CallSite.isProgram(call.line());
        StringBuilder line = new StringBuilder(String.format("%10s  ", seconds(call.nanos())));
        for (int i = 0; i < indent; i++) {
            line.append(' ');
        }
        line.append(isProgram ? PROGRAM : TOOLKIT);
        line.append(isProgram ? CallSite.summary(call.line()) : CallSite.method(call.line()));
        line.append(folded == 0 ? "" : folded == 1 ? " and a call in it" : " and " + folded + " calls in it");
        lines.add(line.toString());
    }
}
