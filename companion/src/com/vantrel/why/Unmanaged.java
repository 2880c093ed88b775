package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Rectangle;

import com.vantrel.model.Facts;
import com.vantrel.model.Formats;

/** A container without a manager: the program sets the bounds of what is in it. */
final class Unmanaged {
    private Unmanaged() {
    }

    static Sentence of(Component component, Container parent) {
        Who who = Who.last(component, "bounds");
        return who == null ? Sentence.of(parent, " has no layout manager: its bounds were set, to ",
                       Formats.write(Facts.bounds(component)), ".")
                           : Sentence.of(parent, " has no layout manager: ", who, " set its bounds.");
    }

    /** Why it has no size: the end of a sentence. */
    static Object[] noSize(Component component, Container parent) {
        Rectangle bounds = Facts.bounds(component);
        if (bounds.equals(new Rectangle())) {
            return new Object[] {parent, " has no layout manager, and its bounds are not set."};
        }
        Who who = Who.last(component, "bounds");
        return new Object[] {parent, " has no layout manager, and ",
                who == null ? new Object[] {"its bounds were set to "} : new Object[] {who, " set its bounds to "},
                Formats.write(bounds), "."};
    }
}
