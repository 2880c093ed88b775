import java.awt.Component;
import java.awt.Container;
import java.util.Arrays;
import java.util.function.IntConsumer;

import com.vantrel.stacktrace.StackTraceManager;

/**
 * What it costs to know where a component was added: time and heap of an addition by the depth of its stack, and what
 * is left of a large window after it is gone. Run under the agent, and without it to compare; the ratios to a Throwable
 * are the result, the times are this machine's.
 */
public final class ContainerAdd {
    private static final int ROUNDS = 15;
    private static final int CALLS = 20_000;
    private static final int KEPT = 10_000;
    private static final int[] DEPTHS = {10, 50, 500};
    /** A window of a program that makes its components in deep recursion. */
    private static final int WINDOW = 15_000;
    private static final int WINDOW_DEPTH = 500;

    static Object sink;

    private ContainerAdd() {
    }

    /** @param arguments "window" for the large window alone, in a heap that is to be small; nothing for all figures */
    public static void main(String[] arguments) throws Exception {
        if (arguments.length == 0) {
            for (int depth : DEPTHS) {
                times(depth);
                System.out.printf("%3d frames: %6d bytes an addition%n", depth, heapOfAnAddition(depth));
            }
        }
        window();
    }

    private static void times(int depth) {
        Container container = new Container();
        Component component = new Plain();
        double throwable = median(depth, n -> sink = new Throwable());
        double added = median(depth, n -> {
            container.add(component);
            container.remove(component);
        });
        double asked = median(depth, n -> {
            container.add(component);
            sink = StackTraceManager.getStackTrace(component);
            container.remove(component);
        });
        System.out.printf("%3d frames: a Throwable %6.0f ns, add and remove %6.0f ns (%.2f Throwables), and asked"
                        + " %6.0f ns%n",
                depth, throwable, added, added / throwable, asked);
    }

    private static long heapOfAnAddition(int depth) throws Exception {
        Component[] components = new Component[KEPT];
        Arrays.setAll(components, n -> new Plain());
        Container container = new Container();
        long before = usedHeap();
        atDepth(depth, KEPT, n -> container.add(components[n]));
        long after = usedHeap();
        sink = container;
        return (after - before) / KEPT;
    }

    private static void window() throws Exception {
        sink = null;
        long before = usedHeap();
        sink = new Container();
        atDepth(WINDOW_DEPTH, WINDOW, n -> ((Container) sink).add(new Plain()));
        long shown = usedHeap() - before;
        sink = null;
        long dropped = usedHeap() - before;
        System.out.printf("%d components, %d frames: %.1f MB while the window is there, %.1f MB after it%n", WINDOW,
                WINDOW_DEPTH, shown / 1e6, dropped / 1e6);
        int large = (int) (Runtime.getRuntime().maxMemory() / 10 * 6);
        try {
            sink = new byte[large];
            System.out.printf("then there are %.0f MB for something else%n", large / 1e6);
        } catch (OutOfMemoryError e) {
            System.out.printf("then there are no %.0f MB for something else%n", large / 1e6);
        }
        long start = System.nanoTime();
        new Container().add(new Plain());
        System.out.printf("and an addition takes %.1f ms%n", (System.nanoTime() - start) / 1e6);
    }

    private static final class Plain extends Component { private static final long serialVersionUID = 1L; }

    private static long usedHeap() throws InterruptedException {
        for (int i = 0; i < 4; i++) {
            System.gc();
            Thread.sleep(20);
        }
        return Runtime.getRuntime().totalMemory() - Runtime.getRuntime().freeMemory();
    }

    private static double median(int depth, IntConsumer call) {
        double[] times = new double[ROUNDS];
        for (int round = 0; round < ROUNDS; round++) {
            times[round] = atDepth(depth, CALLS, call) / (double) CALLS;
        }
        Arrays.sort(times);
        return times[ROUNDS / 2];
    }

    /** Makes calls so deep that an addition in them has a trace of so many frames, or nearly. Returns nanoseconds. */
    private static long atDepth(int depth, int calls, IntConsumer call) {
        int ownDepth = new Throwable().getStackTrace().length;
        int aboveUs = 5; // recurse, the call's two, add, addImpl
        return recurse(Math.max(depth - ownDepth - aboveUs, 0), calls, call);
    }

    private static long recurse(int depth, int calls, IntConsumer call) {
        if (depth > 0) {
            return recurse(depth - 1, calls, call);
        }
        long start = System.nanoTime();
        for (int n = 0; n < calls; n++) {
            call.accept(n);
        }
        return System.nanoTime() - start;
    }
}
