package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.FlowLayout;

import com.vantrel.model.Facts;
import com.vantrel.model.Formats;

/** FlowLayout, which gives each component what it prefers, and begins a new line where one is full. */
final class Flows {
    private Flows() {
    }

    static Sentence of(Component component, Container parent, FlowLayout layout) {
        Dimension preferred = Wants.PREFERRED.of(component);
        boolean isOther = preferred != null && !preferred.equals(Extent.size(component));
        if (isOther && !Wants.PREFERRED.isSet(component) && Facts.isValid(parent)) {
            // Such as a text that is folded: what it prefers depends on the size that it was given.
            return Sentence.of(Managed.of(layout, parent), "gave it the size that it preferred then, ",
                    Extent.text(component), "; now it prefers ", Formats.write(preferred), ".");
        }
        if (isOther) {
            return Sentence.of(Managed.of(layout, parent), "has not laid it out since it prefers ",
                    Formats.write(preferred), Wants.PREFERRED.origin(component), "; revalidate() has that done.");
        }
        return Sentence.of(Managed.of(layout, parent), "gives it its preferred size, ", Extent.text(component),
                Wants.PREFERRED.origin(component), ".");
    }
}
