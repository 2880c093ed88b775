package com.vantrel.pick;

import java.awt.Component;
import java.awt.Point;
import java.awt.Window;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

import com.vantrel.model.Facts;
import com.vantrel.model.Target;

/**
 * What the user can reach by keys and wheel while the pointer rests at one place of a window: the components there, one
 * below the other, and the parents of each. It begins with the foremost one. For the event thread; to be dropped when
 * the pointer moves on.
 */
final class Walk {
    private final Window window;
    private final List<Component> beneath;
    private final Point place;
    private int layer;
    private List<Target> chain;
    private int up;

    /** @param place in the window */
    Walk(Window window, Point place) {
        this.window = window;
        this.place = place;
        beneath = Places.at(window, place);
        enter(0);
    }

    private void enter(int newLayer) {
        layer = newLayer;
        up = 0;
        chain = beneath.isEmpty() ? Collections.<Target>emptyList() : chainOf(beneath.get(newLayer));
    }

    /** A cell, if there is one at the place; its owner; and the parents of that up to the window. */
    private List<Target> chainOf(Component innermost) {
        List<Target> all = new ArrayList<>();
        Point origin = Places.inWindow(innermost, new Point());
        if (origin != null) {
            Target first = Places.targetAt(innermost, new Point(place.x - origin.x, place.y - origin.y));
            if (first.isCell()) {
                all.add(first);
            }
        }
        for (Component at = innermost; at != null; at = at == window ? null : Facts.parent(at)) {
            all.add(Target.of(at));
        }
        return all;
    }

    /** Where the walk is now; null if nothing is there. */
    Target target() {
        return chain.isEmpty() ? null : chain.get(up);
    }

    void toParent() {
        up = Math.min(up + 1, chain.size() - 1);
    }

    void toChild() {
        up = Math.max(up - 1, 0);
    }

    /** To what lies underneath; with a negative number, back up again. */
    void under(int layers) {
        int to = layer + layers;
        if (to >= 0 && to < beneath.size()) {
            enter(to);
        }
    }

    /**
     * Whether a walk from another place begins with the same component or cell. Then the other one can go on, and need
     * not begin again.
     */
    boolean beginsLike(Walk other) {
        return other != null && window == other.window && !chain.isEmpty() && !other.beneath.isEmpty()
                && beneath.get(0) == other.beneath.get(0)
                && chainOf(beneath.get(0)).get(0).isSameAs(other.chainOf(other.beneath.get(0)).get(0));
    }
}
