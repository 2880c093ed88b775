package com.vantrel.command;

import java.awt.EventQueue;
import java.util.Map;
import java.util.concurrent.Callable;
import java.util.concurrent.CountDownLatch;
import java.util.concurrent.ExecutionException;
import java.util.concurrent.FutureTask;
import java.util.concurrent.TimeUnit;
import java.util.concurrent.TimeoutException;

import com.vantrel.model.CallSite;
import com.vantrel.model.CallStack;

/**
 * Asks components where they may be asked, on the event thread, and does not wait for ever: a program whose event
 * thread hangs gets an answer all the same, which says where it hangs. Nothing is read off components on another thread
 * in that case, because that may wait for a lock which the event thread holds.
 */
final class EventThread {
    /** How long the event thread may take to get to a question, so that there is an answer within three seconds. */
    private static final long MILLIS_TO_BEGIN = 2_500;
    /** How long it may take for one task; questions that take longer by themselves are made of several. */
    private static final long MILLIS_TO_END = 20_000;

    private EventThread() {
    }

    /**
     * Runs a task on the event thread, and returns what it returns.
     *
     * @throws Refusal if the event thread does not get to it in time, does not come to its end, or the task throws one
     */
    static <T> T ask(Callable<T> task) throws Refusal {
        CountDownLatch begun = new CountDownLatch(1);
        FutureTask<T> asked = new FutureTask<>(() -> {
            begun.countDown();
            return task.call();
        });
        EventQueue.invokeLater(asked);
        try {
            if (!begun.await(MILLIS_TO_BEGIN, TimeUnit.MILLISECONDS) && asked.cancel(false)) {
                throw busy("has not come to this question for " + MILLIS_TO_BEGIN / 1000.0 + " s");
            }
            return asked.get(MILLIS_TO_END, TimeUnit.MILLISECONDS);
        } catch (TimeoutException e) {
            throw busy("has been at this question for " + MILLIS_TO_END / 1000 + " s");
        } catch (InterruptedException e) {
            throw new Refusal(Answer.NONE, "the program has interrupted the thread that was to answer");
        } catch (ExecutionException e) {
            if (e.getCause() instanceof Refusal) {
                throw(Refusal) e.getCause();
            }
            throw failure(e.getCause());
        }
    }

    /** What is answered when the program, or we, have thrown something that nobody expected. */
    static Refusal failure(Throwable thrown) {
        StackTraceElement[] trace = thrown.getStackTrace();
        return new Refusal(Answer.NONE,
                "the answer failed with " + thrown.getClass().getName() + "\n" + CallStack.of(trace).text());
    }

    private static Refusal busy(String what) {
        for (Map.Entry<Thread, StackTraceElement[]> each : Thread.getAllStackTraces().entrySet()) {
            if (each.getKey().getClass().getName().equals("java.awt.EventDispatchThread")) {
                CallStack stack = CallStack.of(each.getValue());
                String where = stack.where() == null ? "" : ", and is at " + CallSite.summary(stack.where());
                return new Refusal(Answer.NONE, "the event thread " + what + where + "\n" + stack.text());
            }
        }
        return new Refusal(Answer.NONE, "the event thread " + what + ", and cannot be found");
    }
}
