package com.vantrel.why;

import java.awt.Component;
import java.awt.Dialog;
import java.awt.Window;

import com.vantrel.model.Modality;

/** Of what is in a window that waits for a modal dialog. */
final class Modal {
    private Modal() {
    }

    static Sentence of(Component component) {
        Component top = Around.top(component);
        Dialog blocker = top instanceof Window ? Modality.blocker((Window) top) : null;
        if (blocker == null) {
            return null;
        }
        return Sentence.of("The modal ", blocker, " keeps mouse and keys from ",
                top == component ? "it" : new Object[] {"its window, ", top}, ".");
    }
}
