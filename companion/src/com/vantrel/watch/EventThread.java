package com.vantrel.watch;

import java.awt.AWTEvent;
import java.awt.EventQueue;
import java.lang.ref.Reference;
import java.lang.reflect.Field;
import java.util.concurrent.locks.LockSupport;

import com.vantrel.model.Members;

/**
 * One event thread, seen from outside: whether it waits for an event, and which one it is at work on. Looking at it
 * reads a few private fields of its queue. It posts nothing, takes no lock and makes no objects, so that it may be done
 * all the time, and while the thread hangs. For one thread at a time.
 */
final class EventThread {
    /** The class of event threads, which the toolkit keeps to itself. */
    static final String CLASS = "java.awt.EventDispatchThread";

    /** Fields of a VM's toolkit. In a class of its own, so that they are looked for when there is an event thread. */
    private static final class Fields {
        static final Field EVENT = Members.field(EventQueue.class, "currentEvent");
        static final Field CONDITION = Members.field(EventQueue.class, "pushPopCond");
    }

    private final Thread thread;
    private final Field queueField;

    EventThread(Thread thread) {
        this.thread = thread;
        queueField = Members.field(thread.getClass(), "theQueue");
    }

    /** Whether this VM's toolkit has the fields that are read here, and lets them be read. */
    boolean canBeSeen() {
        return queueField != null && Fields.EVENT != null && Fields.CONDITION != null;
    }

    Thread thread() {
        return thread;
    }

    /**
     * Whether the thread waits in its queue for an event, in whichever of several nested loops: that of a modal dialog
     * does it as the outermost one does. It is told by what the thread waits for, which costs nothing to ask, while its
     * stack would have to be taken.
     */
    boolean isIdle() throws IllegalAccessException {
        Object queue = queueField.get(thread);
        return queue != null && LockSupport.getBlocker(thread) == Fields.CONDITION.get(queue);
    }

    /**
     * Stands for the event that is being dispatched, or was last: the queue makes another reference for each event, and
     * for each component that an event is passed on to. Null before the first one.
     */
    @SuppressWarnings("unchecked")
    Reference<AWTEvent> current() throws IllegalAccessException {
        Object queue = queueField.get(thread);
        return queue == null ? null : (Reference<AWTEvent>) Fields.EVENT.get(queue);
    }
}
