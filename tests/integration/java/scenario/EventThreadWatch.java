package scenario;

import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.util.concurrent.atomic.AtomicLong;

import javax.swing.SwingUtilities;

/** Measures how long the event thread leaves a task waiting, by posting one after the other, and how busy it is. */
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

    static void hold(int millis) {
        try {
            Thread.sleep(millis);
        } catch (InterruptedException e) {
            Thread.currentThread().interrupt();
        }
    }

    /** How much of a second the event thread computes, in percent. */
    static String busy() throws InterruptedException {
        long before = computed();
        Thread.sleep(1000);
        return String.valueOf((computed() - before) / 10_000_000);
    }

    private static long computed() {
        ThreadMXBean threads = ManagementFactory.getThreadMXBean();
        return Thread.getAllStackTraces()
                .keySet()
                .stream()
                .filter(thread -> thread.getName().startsWith("AWT-EventQueue"))
                .mapToLong(thread -> threads.getThreadCpuTime(thread.getId()))
                .sum();
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
