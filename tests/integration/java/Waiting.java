/** Waits to be ended. */
public final class Waiting {
    private Waiting() {
    }

    public static void main(String[] arguments) throws Exception {
        System.out.println("Waiting.");
        Thread.sleep(Long.MAX_VALUE);
    }
}
