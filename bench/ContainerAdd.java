import java.awt.Component;
import java.awt.Container;
import java.util.Arrays;
import java.util.function.IntConsumer;

import com.vantrel.stacktrace.StackTraceManager;

/**
 * What tracking costs: an addition under the agent against what it is made of, all 50 frames deep, in one run. The
 * ratios are the result; the times are this machine's.
 */
public final class ContainerAdd {
    private static final int DEPTH = 50;
    private static final int ROUNDS = 11;
    private static final int CALLS = 20_000;

    static Object sink;

    private ContainerAdd() {
    }

    public static void main(String[] arguments) {
        Container container = new Container();
        Component component = new Component() {
        };
        double throwable = median(n -> sink = new Throwable());
        double recorded = median(n -> StackTraceManager.componentAdded(component));
        double added = median(n -> {
            container.add(component);
            container.remove(component);
        });
        double asked = median(n -> {
            StackTraceManager.componentAdded(component);
            sink = StackTraceManager.getStackTrace(component);
        });
        System.out.printf("a Throwable                        %8.0f ns%n", throwable);
        System.out.printf("componentAdded                     %8.0f ns  %5.2f Throwables%n", recorded,
                recorded / throwable);
        System.out.printf("add and remove                     %8.0f ns  %5.2f Throwables%n", added, added / throwable);
        System.out.printf("componentAdded and getStackTrace   %8.0f ns  %5.2f Throwables%n", asked, asked / throwable);
    }

    private static double median(IntConsumer call) {
        double[] times = new double[ROUNDS];
        for (int round = 0; round < ROUNDS; round++) {
            times[round] = atDepth(DEPTH, call);
        }
        Arrays.sort(times);
        return times[ROUNDS / 2];
    }

    /** Nanoseconds a call. */
    private static double atDepth(int depth, IntConsumer call) {
        if (depth > 0) {
            return atDepth(depth - 1, call);
        }
        long start = System.nanoTime();
        for (int n = 0; n < CALLS; n++) {
            call.accept(n);
        }
        return (System.nanoTime() - start) / (double) CALLS;
    }
}
