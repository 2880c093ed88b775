/** Ends while one of its threads still runs, which leaves methods by returns and by exceptions all the time. */
public final class RunningOn {
    private RunningOn() {
    }

    private static int deep(int depth) {
        if (depth == 0) {
            throw new IllegalStateException();
        }
        return 1 + deep(depth - 1);
    }

    private static int caught(int depth) {
        try {
            return deep(depth);
        } catch (IllegalStateException thrown) {
            return depth;
        }
    }

    public static void main(String[] arguments) throws InterruptedException {
        Thread runner = new Thread(() -> {
            for (int i = 0;; ++i) {
                caught(i % 20);
            }
        });
        runner.setDaemon(true);
        runner.start();
        Thread.sleep(100);
    }
}
