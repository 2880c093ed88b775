import java.awt.EventQueue;
import java.io.OutputStream;
import java.io.PrintStream;

import javax.swing.JButton;
import javax.swing.JFrame;
import javax.swing.JLabel;
import javax.swing.JPanel;

/** Builds its window on the main thread, as many programs do, and changes it on others while it is shown. */
public final class OtherThreads {
    private static final JFrame FRAME = new JFrame("Other threads");
    private static final JPanel PANEL = new JPanel();
    private static final JLabel STATE = new JLabel("state");
    private static final JButton OK = new JButton("OK");
    private static final JLabel NEW = new JLabel("new");

    private OtherThreads() {
    }

    public static void main(String[] arguments) throws Exception {
        STATE.setName("state");
        OK.setName("ok");
        NEW.setName("new");
        PANEL.add(STATE);
        PANEL.add(OK);
        FRAME.add(PANEL);
        FRAME.setSize(200, 100);
        STATE.setText("state");
        FRAME.setVisible(true);
        EventQueue.invokeAndWait(() -> STATE.setText("changed where it should be"));
        add();
        System.setErr(new PrintStream(OutputStream.nullOutputStream())); // as a program does that has a log instead
        Thread worker = new Thread(OtherThreads::work, "worker");
        worker.start();
        worker.join();
        System.exit(3);
    }

    private static void work() {
        texts();
        html();
        enable();
        add();
        add();
        add();
        remove();
        FRAME.setVisible(false);
        STATE.setText("nobody sees it");
    }

    private static void texts() {
        for (int i = 0; i < 1_000; i++) {
            STATE.setText("state " + i);
        }
    }

    private static void html() {
        for (int i = 0; i < 200; i++) {
            STATE.setText("<html><b>state</b> " + i);
        }
    }

    private static void enable() {
        for (int i = 0; i < 30; i++) {
            OK.setEnabled(i % 2 == 0);
        }
    }

    private static void add() {
        PANEL.add(NEW);
    }

    private static void remove() {
        PANEL.remove(NEW);
    }
}
