package com.vantrel.watch;

import java.util.ArrayList;
import java.util.List;

/**
 * Finds the VM's event threads without starting one: asking the toolkit for its queue would start the toolkit. There is
 * one for each application context, and the toolkit ends and replaces them as windows come and go.
 */
final class EventThreads {
    private EventThreads() {
    }

    /** Those that are alive and in a thread group, as they are at this moment. */
    static List<Thread> find() {
        ThreadGroup top = Thread.currentThread().getThreadGroup();
        while (top.getParent() != null) {
            top = top.getParent();
        }
        // Leaves room for threads that start meanwhile; one that is overlooked is seen the next time.
        Thread[] threads = new Thread[top.activeCount() + 16];
        int count = top.enumerate(threads);
        List<Thread> found = new ArrayList<>();
        for (int i = 0; i < count; i++) {
            if (threads[i].getClass().getName().equals(EventThread.CLASS)) {
                found.add(threads[i]);
            }
        }
        return found;
    }
}
