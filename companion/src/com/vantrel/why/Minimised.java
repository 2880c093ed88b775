package com.vantrel.why;

import java.awt.Component;
import java.awt.Frame;

import com.vantrel.model.Code;

/** Of what is in a window that is minimised. */
final class Minimised {
    private Minimised() {
    }

    static Sentence of(Component component) {
        Component top = Around.top(component);
        boolean canTell = top instanceof Frame && Code.overrider(top.getClass(), "getExtendedState") == null;
        return canTell && (((Frame) top).getExtendedState() & Frame.ICONIFIED) != 0
                ? Sentence.of(Around.window((Frame) top, component), " is minimised.")
                : null;
    }
}
