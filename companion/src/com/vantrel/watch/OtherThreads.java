package com.vantrel.watch;

import java.awt.Component;
import java.awt.Container;
import java.awt.Window;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Comparator;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;

import com.vantrel.hooks.ChangeListener;
import com.vantrel.hooks.Hooks;
import com.vantrel.model.Code;
import com.vantrel.model.Facts;
import com.vantrel.model.Ours;

/**
 * Notes which lines of the program change, on other threads than an event thread, components that are on the screen:
 * their properties, and what is in them. Windows that are still being built do not count, nor does what the toolkit
 * does by itself. Holds names and lines only, nothing of the program.
 *
 * <p>It is called on the thread that makes the change, which pays for its stack; the event thread pays for next to
 * nothing.
 */
final class OtherThreads implements ChangeListener {
    /** Lines of the program beyond so many are counted only. */
    private static final int MOST_LINES = 200;

    /**
     * Not noted, because nobody has set a property by that: that a layout holds no longer, which nearly every change
     * brings about, and that a component was added or removed, which is noted as such.
     */
    private static final Set<String> NOT_SET = new HashSet<>(Arrays.asList(Hooks.VALID, "ancestor"));

    private final Map<StackTraceElement, ChangingLine> lines = new LinkedHashMap<>();
    private int leftOut;
    private volatile boolean hasHeard;

    @Override
    public void changing(Component component, String what) {
        if (isForeign() && what != null && !NOT_SET.contains(what) && isOnScreen(component)) {
            note(component, what);
        }
    }

    @Override
    public void moving(Component component, Container from, Container to) {
        if (isForeign() && isOnScreen(to == null ? from : to)) {
            note(component, to == null ? "removal" : "addition");
        }
    }

    private boolean isForeign() {
        if (!hasHeard) {
            hasHeard = true;
        }
        return !Thread.currentThread().getClass().getName().equals(EventThread.CLASS);
    }

    /** Asks for no lock: this thread may hold any. */
    private static boolean isOnScreen(Component component) {
        Component at = component;
        while (at != null && !(at instanceof Window) && Facts.isVisible(at)) {
            at = Facts.parent(at);
        }
        return at instanceof Window && Facts.isVisible(at) && !Ours.isOurs(at);
    }

    private void note(Component changed, String what) {
        StackTraceElement[] stack = new Throwable().getStackTrace();
        int programs = ProgramLine.in(stack);
        if (programs == stack.length) {
            return;
        }
        List<StackTraceElement> inside = new ArrayList<>(Arrays.asList(stack).subList(0, programs));
        inside.removeIf(ProgramLine::isGlue);
        ChangingLine line = line(stack[programs]);
        if (line != null && isFirst(line, inside)) {
            // Without the lock: to look at the program's classes may load some, which takes locks of the program.
            String component = Code.describe(changed);
            synchronized (this) {
                line.describe(what + " of " + component);
            }
        }
    }

    private synchronized boolean isFirst(ChangingLine line, List<StackTraceElement> inside) {
        return line.add(inside);
    }

    /** Returns null if there are too many. */
    private synchronized ChangingLine line(StackTraceElement where) {
        ChangingLine line = lines.get(where);
        if (line == null && lines.size() == MOST_LINES) {
            leftOut++;
        } else if (line == null) {
            line = new ChangingLine(where);
            lines.put(where, line);
        }
        return line;
    }

    /** What was found so far, for people, most frequent first; none where nothing has changed on any thread. */
    synchronized List<String> text() {
        List<String> text = new ArrayList<>();
        if (!hasHeard) {
            return text;
        }
        if (lines.isEmpty()) {
            text.add("no component on the screen was changed on another thread than the event thread.");
            return text;
        }
        text.add("components on the screen were changed on other threads than the event thread:");
        List<ChangingLine> sorted = new ArrayList<>(lines.values());
        sorted.sort(Comparator.comparingInt(ChangingLine::times).reversed());
        for (ChangingLine line : sorted) {
            text.add("  " + line.text());
        }
        if (leftOut > 0) {
            text.add("  (" + leftOut + " changes at other lines are left out.)");
        }
        return text;
    }
}
