package com.vantrel.count.x0000000000000000;

import java.io.File;
import java.io.IOException;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import java.util.function.Consumer;

/**
 * The one thread in a VM that knows all counters, whichever jars and class loaders they are in. It writes the table
 * when a file asks for it, and has another thread write it at the end of the program.
 *
 * <p>The copies of this class from several jars and class loaders share no types but the JDK's. So the second one finds
 * the first one's watcher by its name among the VM's threads, and passes its record to it as a
 * java.util.function.Consumer.
 */
final class Watcher extends Thread implements Consumer<Map<String, Object>> {
    /** The number is the version of the record's form. */
    private static final String NAME = "vantrel-count-1";
    /** One object in the whole VM, as every string literal is, so that the copies of this class can lock it. */
    private static final Object VM_WIDE = NAME;
    private static final int PAUSE_MS = 500;

    private final List<Map<String, Object>> records = new ArrayList<>();
    private final File file = TableFile.fromProperties();
    private final File request = new File(file + ".now");
    private long answered;

    private Watcher(ThreadGroup group) {
        super(group, NAME);
        setDaemon(true);
        setContextClassLoader(null);
    }

    /** Adds a record to those that the table is written from. */
    static void register(Map<String, Object> record) throws IOException {
        synchronized (VM_WIDE) {
            // Not one of the program's own groups, which it may destroy, and whose threads it may count.
            ThreadGroup top = Thread.currentThread().getThreadGroup();
            while (top.getParent() != null) {
                top = top.getParent();
            }
            Consumer<Map<String, Object>> watcher = find(top);
            if (watcher == null) {
                Table.rehearse();
                Watcher own = new Watcher(top);
                Runtime.getRuntime().addShutdownHook(new AtEnd(top, own));
                own.start();
                watcher = own;
            }
            watcher.accept(record);
        }
    }

    @SuppressWarnings("unchecked")
    private static Consumer<Map<String, Object>> find(ThreadGroup top) {
        final int more = 16;
        Thread[] threads = new Thread[top.activeCount() + more];
        int count = top.enumerate(threads, false);
        for (int index = 0; index < count; ++index) {
            if (threads[index].getName().equals(NAME) && threads[index] instanceof Consumer) {
                return (Consumer<Map<String, Object>>) threads[index];
            }
        }
        return null;
    }

    @Override
    public synchronized void accept(Map<String, Object> record) {
        records.add(record);
    }

    @Override
    public void run() {
        while (true) {
            try {
                Thread.sleep(PAUSE_MS);
                answerRequest();
            } catch (InterruptedException nobodys) {
                continue;
            } catch (Exception | Error failure) {
                Message.print("cannot look for " + request + ": " + failure);
            }
        }
    }

    private void answerRequest() throws IOException {
        long asked = request.lastModified(); // 0 where there is none
        if (asked == 0 || asked == answered) {
            return;
        }
        answered = asked; // or it would be answered again and again if it cannot be removed
        write();
        if (request.delete()) {
            answered = 0;
        }
    }

    /** Writes the table, and returns it; null if that was not possible, which has been reported then. */
    synchronized Table write() throws IOException {
        Table table = new Table();
        for (Map<String, Object> record : records) {
            table.add(record);
        }
        return TableFile.write(file, table) ? table : null;
    }

    /** Writes the table when the program ends: after its last thread, by System.exit, or by a signal. */
    private static final class AtEnd extends Thread {
        private final Watcher watcher;

        AtEnd(ThreadGroup group, Watcher watcher) {
            super(group, NAME + "-end");
            setContextClassLoader(null);
            this.watcher = watcher;
        }

        @Override
        public void run() {
            try {
                Table table = watcher.write();
                if (table != null) {
                    Message.print(table.summary() + ": " + watcher.file);
                }
            } catch (Exception | Error failure) {
                Message.print("there is no table: " + failure);
            }
        }
    }
}
