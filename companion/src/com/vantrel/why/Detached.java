package com.vantrel.why;

import java.awt.Component;
import java.awt.Window;

import com.vantrel.model.AddedAt;

/** Of a component that is in no window: what it is in was never added to anything, or was removed. */
final class Detached {
    private Detached() {
    }

    static Sentence of(Component component) {
        Component top = Around.top(component);
        if (top instanceof Window) {
            return null;
        }
        // What is removed keeps the record of its addition.
        AddedAt added = AddedAt.of(top);
        if (added.stack().isEmpty()) {
            return Sentence.of(Around.subject(top, component), " was added to nothing.");
        }
        return Sentence.of(
                Around.subject(top, component), " was removed after ", Who.of(top, added.stack()), " had added it.");
    }
}
