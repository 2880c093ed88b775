package com.vantrel.hooks;

import java.awt.Component;
import java.awt.Container;

/**
 * Hears of components that are about to change, on the thread that changes them, which may hold the AWT's tree lock. So
 * a listener only takes a note, and looks at the component later, on the event thread. It also hears of calls that in
 * the end change nothing, such as setting the value that is there.
 */
public interface ChangeListener {
    /**
     * A property of a component is being set.
     *
     * @param what the name under which the component fires it, or one of the names that {@link Hooks} has
     */
    void changing(Component component, String what);

    /**
     * A component is being added to a container, or removed from one.
     *
     * @param from the parent that it has; null for none
     * @param to   the parent that it will have; null for none
     */
    void moving(Component component, Container from, Container to);
}
