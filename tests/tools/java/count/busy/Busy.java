package busy;

import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.List;

/** Does what can be counted, by the words of the command line, with numbers that are known beforehand. */
public final class Busy {
    interface Part {
        int size();
    }

    private Busy() {
    }

    static void step() {
    }

    static int[][] arrays(int count) {
        int[][] all = new int[count][2];
        for (int index = 0; index < count; ++index) {
            all[index] = new int[index];
        }
        return all;
    }

    static void fail() {
        throw new IllegalStateException();
    }

    static void never() {
    }

    static native void outside();

    static void steps(int count) {
        for (int done = 0; done < count; ++done) {
            step();
        }
    }

    /** Eight threads at once, and three hundred one after the other. */
    static void onThreads() throws InterruptedException {
        List<Thread> threads = new ArrayList<>();
        for (int index = 0; index < 308; ++index) {
            int count = index < 8 ? 50_000 : 10;
            Thread thread = new Thread(() -> steps(count));
            thread.start();
            if (index < 8) {
                threads.add(thread);
            } else {
                thread.join();
            }
        }
        for (Thread thread : threads) {
            thread.join();
        }
    }

    static void onVirtualThreads() throws Exception {
        Method start = Thread.class.getMethod("startVirtualThread", Runnable.class);
        List<Thread> threads = new ArrayList<>();
        for (int index = 0; index < 2_000; ++index) {
            threads.add((Thread) start.invoke(null, (Runnable) () -> steps(100)));
        }
        for (Thread thread : threads) {
            thread.join();
        }
    }

    /** Waits until somebody takes the file away. */
    static void waitFor(String file) throws InterruptedException {
        while (new java.io.File(file).exists()) {
            Thread.sleep(20);
        }
    }

    public static void main(String[] words) throws Exception {
        for (String word : words) {
            switch (word) {
                case "steps" -> steps(7);
                case "arrays" -> arrays(3);
                case "fail" -> {
                    try {
                        fail();
                    } catch (IllegalStateException expected) {
                        System.out.println("failed");
                    }
                }
                case "threads" -> onThreads();
                case "virtual" -> onVirtualThreads();
                case "daemon" -> {
                    Thread daemon = new Thread(() -> {
                        while (true) {
                            step();
                        }
                    });
                    daemon.setDaemon(true);
                    daemon.start();
                }
                case "exit" -> System.exit(3);
                case "throw" -> throw new IllegalStateException("thrown");
                default -> waitFor(word);
            }
        }
    }
}
