package com.vantrel.watch;

import java.io.File;
import java.util.ArrayList;
import java.util.List;

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
    private final File file;
    private long touched;

    private Watch(boolean watchesBlocks) {
        blocks = watchesBlocks ? new BlockWatch() : null;
        String name = System.getProperty(FILE, "");
        file = name.isEmpty() ? null : new File(name).getAbsoluteFile();
        touched = file == null ? 0 : file.lastModified();
    }

    /**
     * Begins to watch, for the rest of the program's life. Does nothing if that has been done.
     *
     * @param watchesBlocks whether to look for blocks of the event thread
     */
    public static synchronized void start(boolean watchesBlocks) {
        if (running == null) {
            running = new Watch(watchesBlocks);
            thread("vantrel-watch", running::look).start();
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
        return String.join(System.lineSeparator(), lines);
    }

    private void report() {
        String text = lines();
        if (!text.isEmpty()) {
            System.err.println("vantrel: " + text);
        }
    }

    private void look() {
        int looks = 0;
        while (true) {
            try {
                Thread.sleep(BlockWatch.PERIOD_MILLIS);
                if (blocks != null) {
                    blocks.look();
                }
                if (file != null && looks++ % LOOKS_AT_FILE == 0 && isTouched()) {
                    report();
                }
            } catch (InterruptedException e) {
                // Nobody has a reason to interrupt it: it goes on.
            }
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
