package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Rectangle;
import java.awt.Window;

import javax.swing.JComponent;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;

/** Of what lies, all of it, under one opaque component that the same container has in front. */
final class Covered {
    private Covered() {
    }

    static Sentence of(Component component) {
        Rectangle rest = Sight.of(component).rest; // in the window, and from there back to each container
        if (rest.isEmpty()) {
            return null;
        }
        for (Component at : Around.of(component)) {
            Container parent = Around.parent(at);
            if (parent == null) {
                continue;
            }
            Component over = over(at, parent, rest);
            if (over != null) {
                return Sentence.of(over, " covers it: it is opaque, and lies in front of ", at == component ? "it" : at,
                        " in ", parent, ".");
            }
            Rectangle bounds = Facts.bounds(at);
            rest.translate(-bounds.x, -bounds.y);
        }
        return null;
    }

    /** The opaque component before one, in the order from front to back, that has all of an area; null for none. */
    private static Component over(Component component, Container parent, Rectangle area) {
        for (Component other : Facts.children(parent)) {
            if (other == component) {
                return null;
            }
            if (Facts.isVisible(other) && Facts.bounds(other).contains(area) && isOpaque(other)) {
                return other;
            }
        }
        return null;
    }

    private static boolean isOpaque(Component component) {
        if (component instanceof JComponent) {
            return Code.overrider(component.getClass(), "isOpaque") == null && component.isOpaque();
        }
        return !(component instanceof Window) && Code.overrider(component.getClass(), "isLightweight") == null
                && !component.isLightweight();
    }
}
