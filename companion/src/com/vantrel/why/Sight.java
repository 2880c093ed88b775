package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Rectangle;
import java.awt.Window;

import com.vantrel.model.Facts;

/** How much of a component what is around it leaves to be seen. */
final class Sight {
    /** What can be seen of it, in the coordinates of its window; empty for nothing. */
    final Rectangle rest;
    /** What cuts something of it off: the innermost that leaves nothing, or else the innermost; null for none. */
    final Container cutter;
    /** All of it, in the coordinates of the cutter. */
    final Rectangle inCutter;

    private Sight(Rectangle rest, Container cutter, Rectangle inCutter) {
        this.rest = rest;
        this.cutter = cutter;
        this.inCutter = inCutter;
    }

    static Sight of(Component component) {
        Rectangle whole = new Rectangle(Facts.bounds(component).getSize());
        Rectangle rest = new Rectangle(whole);
        Container cutter = null;
        Rectangle inCutter = null;
        Component at = component;
        while (!(at instanceof Window) && Facts.parent(at) != null) {
            Rectangle bounds = Facts.bounds(at);
            whole.translate(bounds.x, bounds.y);
            rest.translate(bounds.x, bounds.y);
            at = Facts.parent(at);
            Rectangle seen = rest.intersection(new Rectangle(Facts.bounds(at).getSize()));
            boolean cuts = !seen.equals(rest);
            if (!rest.isEmpty() && cuts && (cutter == null || seen.isEmpty())) {
                cutter = (Container) at;
                inCutter = new Rectangle(whole);
            }
            rest = rest.isEmpty() ? rest : seen;
        }
        return new Sight(rest, cutter, inCutter);
    }
}
