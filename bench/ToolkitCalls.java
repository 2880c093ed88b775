import java.awt.event.ComponentEvent;
import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.util.Arrays;

import javax.swing.JLabel;
import javax.swing.JPanel;

/**
 * What the replaced classes cost a program while the inspector listens to nothing: 100,000 texts set, additions, and
 * events. Run under two agents, or with the agent and without it, to compare. Times are this thread's own on a
 * processor, so that neither a busy machine nor the VM's compilers beside it count.
 */
public final class ToolkitCalls {
    private static final int CALLS = 100_000;
    private static final int ROUNDS = 15;
    private static final int ROUNDS_TO_WARM_UP = 4;

    private ToolkitCalls() {
    }

    public static void main(String[] arguments) {
        JLabel label = new JLabel();
        String[] texts = {"one", "other"};
        time("setText", () -> {
            for (int i = 0; i < CALLS; i++) {
                label.setText(texts[i & 1]);
            }
        });
        JLabel[] labels = new JLabel[CALLS];
        Arrays.setAll(labels, n -> new JLabel());
        time("additions", () -> {
            JPanel panel = new JPanel(null);
            for (JLabel each : labels) {
                panel.add(each);
            }
            panel.removeAll();
        });
        ComponentEvent event = new ComponentEvent(label, ComponentEvent.COMPONENT_MOVED);
        time("events", () -> {
            for (int i = 0; i < CALLS; i++) {
                label.dispatchEvent(event);
            }
        });
    }

    private static void time(String what, Runnable calls) {
        ThreadMXBean threads = ManagementFactory.getThreadMXBean();
        double[] millis = new double[ROUNDS];
        for (int round = -ROUNDS_TO_WARM_UP; round < ROUNDS; round++) {
            long start = threads.getCurrentThreadCpuTime();
            calls.run();
            if (round >= 0) {
                millis[round] = (threads.getCurrentThreadCpuTime() - start) / 1e6;
            }
        }
        Arrays.sort(millis);
        System.out.printf("%d %s: %.1f ms%n", CALLS, what, millis[ROUNDS / 2]);
    }
}
