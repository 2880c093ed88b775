package com.vantrel.view;

import java.util.function.Consumer;

import javax.swing.SwingUtilities;

import com.vantrel.model.CallSite;
import com.vantrel.model.Editor;

/** Takes the user to a line of the program: in the editor, or where none is set by way of the clipboard. */
final class OpenLine {
    private OpenLine() {
    }

    /** @param told is told what became of it, on the event thread */
    static void open(StackTraceElement line, Consumer<Editor.Outcome> told) {
        if (Editor.isSet()) {
            Editor.open(line, outcome -> SwingUtilities.invokeLater(() -> told.accept(outcome)));
        } else {
            copy(CallSite.link(line), "no editor is set, so the line was copied", told);
        }
    }

    /** Copies a text. */
    static void copy(String text, String done, Consumer<Editor.Outcome> told) {
        boolean works = Clip.copy(text);
        told.accept(new Editor.Outcome(
                works ? done : "the clipboard is busy: another program holds it; try again", !works));
    }
}
