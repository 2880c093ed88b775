package com.vantrel;

import java.awt.Component;

/** Tasks in the application context that a component belongs to. */
public final class SwingContext {
    private SwingContext() {
    }

    /** Runs a task on the event thread of a component's application context. Returns before it has run. */
    public static native void safeRun1(Component component, Runnable task);
}
