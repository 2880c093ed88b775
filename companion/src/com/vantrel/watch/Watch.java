package com.vantrel.watch;

import java.io.File;
import java.io.PrintStream;
import java.util.ArrayList;
import java.util.List;

import com.vantrel.hooks.Hooks;

/**
 * What is watched from the program's start to its end: a daemon that looks, and the report on stderr. It is made at the
 * end of the program, however that comes about in Java, and whenever a file is touched. A file, because asking must
 * neither cost anything while nobody asks, nor do any harm: a signal ends programs that do not expect it.
 */
public final class Watch {
    private static final String FILE = "vantrel.report";
    private static final int LOOKS_AT_FILE = 20;

    private static Watch running;

    private final BlockWatch blocks;
    private final OtherThreads threads;
    private final File file;
    private long touched;
    private boolean hasFailed;
    /** As it was at the start: a program may have its own in its place by now, and write that to a log. */
    private final PrintStream stderr = System.err;

    private Watch(boolean watchesBlocks, boolean watchesThreads) {
        blocks = watchesBlocks ? new BlockWatch() : null;
        threads = watchesThreads ? new OtherThreads() : null;
        String name = System.getProperty(FILE, "");
        file = name.isEmpty() ? null : new File(name).getAbsoluteFile();
        touched = file == null ? 0 : file.lastModified();
    }

    /**
     * Begins to watch, for the rest of the program's life. Does nothing if that has been done.
     *
     * @param watchesBlocks  whether to look for blocks of the event thread
     * @param watchesThreads whether to look for changes on other threads
     */
    public static synchronized void start(boolean watchesBlocks, boolean watchesThreads) {
        if (running == null) {
            running = new Watch(watchesBlocks, watchesThreads);
            if (running.threads != null) {
                Hooks.add(running.threads);
            }
            thread("vantrel-watch", running::watch).start();
            Runtime.getRuntime().addShutdownHook(thread("vantrel-watch-end", running::report));
        }
    }

    private static Thread thread(String name, Runnable task) {
        ThreadGroup top = Thread.currentThread().getThreadGroup();
        while (top.getParent() != null) {
            top = top.getParent();
        }
        Thread thread = new Thread(top, task, name); // in no group of the program's, which it may end
        thread.setDaemon(true);
        thread.setContextClassLoader(null);
        return thread;
    }

    /** What was found so far, in lines; empty if nothing is watched, or there was nothing to look at. */
    public static String text() {
        Watch watch;
        synchronized (Watch.class) {
            watch = running;
        }
        return watch == null ? "" : watch.lines();
    }

    private String lines() {
        List<String> lines = new ArrayList<>();
        if (blocks != null) {
            lines.addAll(blocks.text());
        }
        if (threads != null) {
            lines.addAll(threads.text());
        }
        return String.join(System.lineSeparator(), lines);
    }

    private void report() {
        String text = lines();
        if (!text.isEmpty()) {
            // The first line of each part is the one that is not indented.
            stderr.println(text.replaceAll("(?m)^(?=\\S)", "vantrel: "));
        }
    }

    private void watch() {
        for (int looks = 0;; looks++) {
            try {
                Thread.sleep(BlockWatch.PERIOD_MILLIS);
                look(looks);
            } catch (InterruptedException e) {
                // Nobody has a reason to interrupt it: it goes on.
            } catch (Throwable e) {
                if (!hasFailed) {
                    hasFailed = true; // only once, for what fails forty times a second
                    stderr.println("vantrel: a part of the watch of the event thread failed:");
                    e.printStackTrace(stderr);
                }
            }
        }
    }

    private void look(int looks) {
        if (blocks != null) {
            blocks.look();
        }
        if (file != null && looks % LOOKS_AT_FILE == 0 && isTouched()) {
            report();
        }
    }

    /** Whether the file was made, or written to, since this was asked last. */
    private boolean isTouched() {
        long now = file.lastModified(); // 0 where there is none
        boolean isTouched = now != 0 && now != touched;
        touched = now;
        return isTouched;
    }
}
