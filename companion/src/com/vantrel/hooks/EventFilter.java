package com.vantrel.hooks;

import java.awt.AWTEvent;
import java.awt.Component;

/** Sees the events of all components before anybody else does, and can keep them from the program. */
public interface EventFilter {
    /**
     * An event that is about to be dispatched, on the thread that dispatches it: the event thread, as a rule.
     *
     * @param source whose {@code dispatchEvent} was called. An event for a lightweight component comes more than once:
     *               first with its window, which passes it on, then with the component itself
     * @return true if nobody else is to see the event
     */
    boolean keep(Component source, AWTEvent event);
}
