import java.awt.AWTEvent;
import java.awt.Component;
import java.awt.Container;
import java.awt.EventQueue;
import java.awt.GridLayout;
import java.awt.Toolkit;
import java.awt.Window;
import java.awt.event.ActionEvent;
import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.util.Arrays;
import java.util.concurrent.Callable;
import java.util.concurrent.FutureTask;
import java.util.concurrent.TimeUnit;
import java.util.concurrent.atomic.AtomicLong;

import javax.swing.JComponent;
import javax.swing.JFrame;
import javax.swing.JLabel;
import javax.swing.JList;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.SwingUtilities;
import javax.swing.text.JTextComponent;

import com.vantrel.Vantrel;

/**
 * The inspector's window on a program with 20,000 components: how long it takes to open, search and expand, and how
 * long one event holds the event thread, which is the program's, too. The first round runs code that no compiler has
 * seen yet; of its longest event, it also tells what of it was computing and not waiting for a processor.
 */
public final class InspectorBench {
    private static final int PANELS = 2_000;
    private static final int LABELS = 9;
    private static final int ROUNDS = 5;
    private static final int MILLIS_TO_SETTLE = 400;

    private static final String[] STEPS = {"open", "search label", "search enabled=false", "search font.size>99",
            "clear search", "expand all", "half a second of looking"};

    /** The longest event since the last step: nanoseconds on the clock, and of computing. */
    private static final AtomicLong HELD = new AtomicLong();
    private static final AtomicLong COMPUTED = new AtomicLong();

    private InspectorBench() {
    }

    public static void main(String[] arguments) throws Exception {
        SwingUtilities.invokeAndWait(InspectorBench::showProgram);
        Toolkit.getDefaultToolkit().getSystemEventQueue().push(new MeasuringQueue());
        long[][] took = new long[STEPS.length][ROUNDS];
        long[][] held = new long[STEPS.length][ROUNDS];
        long[][] computed = new long[STEPS.length][ROUNDS];
        for (int round = 0; round < ROUNDS; round++) {
            for (int step = 0; step < STEPS.length; step++) {
                Thread.sleep(MILLIS_TO_SETTLE);
                HELD.set(0);
                COMPUTED.set(0);
                took[step][round] = run(step);
                Thread.sleep(MILLIS_TO_SETTLE);
                held[step][round] = TimeUnit.NANOSECONDS.toMillis(HELD.get());
                computed[step][round] = TimeUnit.NANOSECONDS.toMillis(COMPUTED.get());
            }
            Vantrel.showVantrel(null);
        }
        System.out.printf("%,d components; milliseconds    first  median   one event: first  median  computing%n",
                PANELS * (LABELS + 1));
        for (int step = 0; step < STEPS.length; step++) {
            System.out.printf("%-30s %6d  %6d              %6d  %6d     %6d%n", STEPS[step], took[step][0],
                    median(took[step]), held[step][0], median(held[step]), computed[step][0]);
        }
        System.exit(0);
    }

    private static long median(long[] values) {
        long[] sorted = values.clone();
        Arrays.sort(sorted);
        return sorted[sorted.length / 2];
    }

    private static void showProgram() {
        JPanel all = new JPanel(new GridLayout(0, 1));
        for (int panel = 0; panel < PANELS; panel++) {
            JPanel row = new JPanel(new GridLayout(1, LABELS));
            row.setName("row " + panel);
            for (int label = 0; label < LABELS; label++) {
                row.add(new JLabel("label " + panel + "." + label));
            }
            row.getComponent(0).setEnabled(panel % 100 != 0);
            all.add(row);
        }
        JFrame frame = new JFrame("Large");
        frame.add(new JScrollPane(all));
        frame.setSize(400, 300);
        frame.setVisible(true);
    }

    /** Milliseconds until a step's result is on the screen. */
    private static long run(int step) throws Exception {
        long start = System.nanoTime();
        switch (step) {
            case 0:
                Vantrel.showVantrel(null);
                await(() -> rows() > 1);
                break;
            case 1:
                search("label", PANELS * LABELS);
                break;
            case 2:
                search("enabled=false", PANELS / 100);
                break;
            case 3:
                search("font.size>99", 0);
                break;
            case 4:
                search("", -1);
                break;
            case 5:
                on(InspectorBench::expandAll);
                await(() -> rows() > PANELS * LABELS);
                break;
            default:
                Thread.sleep(500);
                break;
        }
        on(InspectorBench::nothing); // what is painted by now is on the screen
        return TimeUnit.NANOSECONDS.toMillis(System.nanoTime() - start);
    }

    private static Void expandAll() {
        JComponent pane = (JComponent) find("vantrel.tree");
        while (pane.getActionMap().get("Expand All") == null) {
            pane = (JComponent) pane.getParent();
        }
        pane.getActionMap().get("Expand All").actionPerformed(new ActionEvent(pane, 0, ""));
        return null;
    }

    private static void search(String text, int finds) throws Exception {
        on(() -> {
            ((JTextComponent) find("vantrel.search")).setText(text);
            return null;
        });
        String said = finds < 0 ? "components" : finds + " of ";
        await(() -> count().contains(said));
    }

    /** What is said beside the search field. */
    private static String count() {
        for (Component sibling : find("vantrel.search").getParent().getComponents()) {
            if (sibling instanceof JLabel && ((JLabel) sibling).getText() != null) {
                return ((JLabel) sibling).getText();
            }
        }
        return "";
    }

    private static int rows() {
        Component tree = find("vantrel.tree");
        return tree == null ? 0 : ((JList<?>) tree).getModel().getSize();
    }

    private static Component find(String name) {
        for (Window window : Window.getWindows()) {
            Component found = "vantrel".equals(window.getName()) ? find(window, name) : null;
            if (found != null) {
                return found;
            }
        }
        return null;
    }

    private static Component find(Component component, String name) {
        if (name.equals(component.getName())) {
            return component;
        }
        if (component instanceof Container) {
            for (Component child : ((Container) component).getComponents()) {
                Component found = find(child, name);
                if (found != null) {
                    return found;
                }
            }
        }
        return null;
    }

    private static Void nothing() {
        return null;
    }

    private static <T> T on(Callable<T> task) throws Exception {
        FutureTask<T> future = new FutureTask<>(task);
        SwingUtilities.invokeLater(future);
        return future.get();
    }

    private static void await(Callable<Boolean> condition) throws Exception {
        long deadline = System.nanoTime() + TimeUnit.SECONDS.toNanos(20);
        while (!on(condition)) {
            if (System.nanoTime() > deadline) {
                throw new IllegalStateException("it never came to that");
            }
            Thread.sleep(1);
        }
    }

    /** Measures each event, on the clock and in what it computes: the clock counts other programs' work, too. */
    private static final class MeasuringQueue extends EventQueue {
        private final ThreadMXBean threads = ManagementFactory.getThreadMXBean();

        @Override
        protected void dispatchEvent(AWTEvent event) {
            long start = System.nanoTime();
            long computed = threads.getCurrentThreadCpuTime();
            super.dispatchEvent(event);
            COMPUTED.accumulateAndGet(threads.getCurrentThreadCpuTime() - computed, Math::max);
            HELD.accumulateAndGet(System.nanoTime() - start, Math::max);
        }
    }
}
