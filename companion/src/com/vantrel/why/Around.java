package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Window;
import java.util.ArrayList;
import java.util.List;

import com.vantrel.model.Facts;

/** What a component is in. */
final class Around {
    private Around() {
    }

    /** The window that it is in, or else the topmost container, and so on down to the component itself. */
    static List<Component> of(Component component) {
        List<Component> around = new ArrayList<>();
        for (Component at = component; at != null; at = at instanceof Window ? null : Facts.parent(at)) {
            around.add(0, at);
        }
        return around;
    }

    static Component top(Component component) {
        return of(component).get(0);
    }

    /** "JPanel "form", which it is in," for something around a component; "It" for the component itself. */
    static Object[] subject(Component around, Component component) {
        return around == component ? new Object[] {"It"} : new Object[] {around, ", which it is in,"};
    }

    /** "Its window, JFrame titled "Orders","; "It" for the window itself. */
    static Object[] window(Window window, Component component) {
        return window == component ? new Object[] {"It"} : new Object[] {"Its window, ", window, ","};
    }

    /** The container of a component, where that is not the owner of a window; null for none. */
    static Container parent(Component component) {
        return component instanceof Window ? null : Facts.parent(component);
    }
}
