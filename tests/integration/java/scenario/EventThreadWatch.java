package scenario;

import java.util.concurrent.atomic.AtomicLong;

import javax.swing.SwingUtilities;

/** Measures how long the event thread leaves a task waiting, by posting one after the other. */
final class EventThreadWatch {
    private static final int MILLIS_BETWEEN_TASKS = 5;

    private final AtomicLong longest = new AtomicLong();
    private volatile boolean watching;

    String start() {
        longest.set(0);
        if (!watching) {
            watching = true;
            Thread watcher = new Thread(this::watch, "event thread watch");
            watcher.setDaemon(true);
            watcher.start();
        }
        return "";
    }

    /** The longest wait since the start, in milliseconds. */
    String stop() {
        watching = false;
        return String.valueOf(longest.get() / 1_000_000);
    }

    private void watch() {
        try {
            while (watching) {
                long posted = System.nanoTime();
                SwingUtilities.invokeAndWait(() -> {
                    long waited = System.nanoTime() - posted;
                    longest.accumulateAndGet(waited, Math::max);
                });
                Thread.sleep(MILLIS_BETWEEN_TASKS);
            }
        } catch (InterruptedException | java.lang.reflect.InvocationTargetException e) {
            e.printStackTrace();
        }
    }
}
