import java.awt.EventQueue;
import java.awt.event.InputEvent;
import java.awt.event.MouseEvent;
import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.concurrent.CountDownLatch;

import javax.swing.JButton;
import javax.swing.JDialog;
import javax.swing.JFrame;
import javax.swing.Timer;

/**
 * Keeps its event thread busy in the ways that its arguments name, one after the other, then says so and waits for a
 * file "end" in its folder.
 */
public final class Blocking {
    private static final JFrame FRAME = new JFrame("Blocking");
    private static final JButton BUTTON = new JButton("Save");

    private Blocking() {
    }

    public static void main(String[] arguments) throws Exception {
        EventQueue.invokeAndWait(() -> {
            BUTTON.setName("save");
            BUTTON.addActionListener(event -> save());
            FRAME.add(BUTTON);
            FRAME.setSize(200, 100);
            FRAME.setVisible(true);
        });
        EventQueue.invokeAndWait(() -> {}); // the window is there
        for (String way : arguments) {
            if (way.equals("click")) {
                post(MouseEvent.MOUSE_PRESSED);
                post(MouseEvent.MOUSE_RELEASED);
                EventQueue.invokeAndWait(() -> {});
            } else if (way.equals("busy")) {
                for (int i = 0; i < 12; i++) {
                    EventQueue.invokeLater(() -> sleep(100));
                }
                EventQueue.invokeAndWait(() -> {});
            } else if (way.equals("dialog")) {
                EventQueue.invokeAndWait(() -> dialog(1_000));
            } else if (way.equals("after a dialog")) {
                EventQueue.invokeAndWait(Blocking::askAndWork);
            } else if (way.equals("waiting")) {
                for (int i = 0; i < 3; i++) {
                    EventQueue.invokeAndWait(Blocking::await);
                }
            } else if (way.equals("ticking")) {
                EventQueue.invokeLater(Blocking::tick);
            } else if (way.equals("for ever")) {
                EventQueue.invokeLater(() -> sleep(Integer.MAX_VALUE));
                Thread.sleep(500);
            }
        }
        System.out.println("done");
        while (!Files.exists(Path.of("end"))) {
            Thread.sleep(2);
        }
        System.exit(3);
    }

    private static void post(int id) {
        EventQueue queue = FRAME.getToolkit().getSystemEventQueue();
        queue.postEvent(new MouseEvent(
                BUTTON, id, System.currentTimeMillis(), InputEvent.BUTTON1_DOWN_MASK, 5, 5, 1, false, 1));
    }

    private static void save() {
        sleep(500);
        store();
    }

    private static void store() {
        sleep(1_500);
    }

    private static void dialog(int millis) {
        JDialog dialog = new JDialog(FRAME, true);
        Timer closing = new Timer(millis, event -> dialog.dispose());
        closing.setRepeats(false);
        closing.start();
        dialog.setVisible(true);
    }

    private static void askAndWork() {
        dialog(300);
        sleep(600);
    }

    /** One short event after the other, each of which takes processor time. */
    private static void tick() {
        ThreadMXBean threads = ManagementFactory.getThreadMXBean();
        long end = threads.getCurrentThreadCpuTime() + 40_000_000;
        while (threads.getCurrentThreadCpuTime() < end) {
            Thread.onSpinWait();
        }
        EventQueue.invokeLater(Blocking::tick);
    }

    /** In the state in which the thread also waits for events. */
    private static void await() {
        CountDownLatch over = new CountDownLatch(1);
        new Thread(() -> {
            sleep(400);
            over.countDown();
        }).start();
        try {
            over.await();
        } catch (InterruptedException e) {
            throw new IllegalStateException(e);
        }
    }

    private static void sleep(int millis) {
        try {
            Thread.sleep(millis);
        } catch (InterruptedException e) {
            throw new IllegalStateException(e);
        }
    }
}
