package com.vantrel.hooks;

import java.awt.AWTEvent;
import java.awt.Component;

/** Sees the events of all components before anybody else does, and can keep them from the program. */
public interface EventFilter {
    /**
     * An event that is about to be dispatched, on the thread that dispatches it: the event thread, as a rule.
     *
     * @param source whose {@code dispatchEvent} was called: a window for what its lightweight components will get, and
     *               then each of these
     * @return whether nobody else is to see the event
     */
    boolean keep(Component source, AWTEvent event);
}
