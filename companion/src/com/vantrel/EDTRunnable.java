package com.vantrel;

import javax.swing.SwingUtilities;

/**
 * Posts a task to the event queue of the application context that the running thread's group belongs to. The agent runs
 * one on a thread of another context's group to get a task onto that context's event thread.
 */
public final class EDTRunnable implements Runnable {
    private final Runnable task;

    public EDTRunnable(Runnable task) {
        this.task = task;
    }

    @Override
    public void run() {
        SwingUtilities.invokeLater(task);
    }
}
