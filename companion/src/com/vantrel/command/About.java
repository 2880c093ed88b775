package com.vantrel.command;

import java.awt.Component;
import java.awt.Window;
import java.util.ArrayList;
import java.util.List;

import com.vantrel.model.Facts;
import com.vantrel.model.ProgramWindows;

/** The program in one line: its VM, and its windows. */
final class About {
    private static final int LONGEST_TITLE = 60;

    private About() {
    }

    /** Two fields with a tab between them. A program whose event thread hangs has no windows that could be told of. */
    static Answer program() {
        String vm = System.getProperty("java.version") + " " + System.getProperty("java.vm.name");
        return Answer.of(vm + "\t" + windows() + "\n");
    }

    private static String windows() {
        try {
            List<String> titles = hasWindows() ? EventThread.ask(About::titles) : new ArrayList<>();
            return titles.isEmpty() ? "no windows" : String.join(", ", titles);
        } catch (Refusal refusal) {
            return refusal.getMessage().split("\n")[0];
        }
    }

    /**
     * Whether the program has ever had a window. If not, it may not have the toolkit started either, and asking must
     * not do that.
     */
    static boolean hasWindows() {
        return Window.getWindows().length > 0;
    }

    private static List<String> titles() {
        List<String> titles = new ArrayList<>();
        for (Component window : ProgramWindows.withoutOwner()) {
            addTitles(window, titles);
        }
        return titles;
    }

    private static void addTitles(Component window, List<String> titles) {
        if (Facts.isVisible(window)) {
            String title = Facts.text(window);
            titles.add(title == null                         ? "(untitled)"
                            : title.length() > LONGEST_TITLE ? '"' + title.substring(0, LONGEST_TITLE) + "\u2026\""
                                                             : '"' + title + '"');
        }
        for (Component child : Facts.children(window)) {
            if (child instanceof Window) {
                addTitles(child, titles);
            }
        }
    }
}
