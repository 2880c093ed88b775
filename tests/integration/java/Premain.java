/**
 * An agent in Java that ends the VM: before the VM's initialisation is over ("at once"), or at any moment from then on
 * ("meanwhile").
 */
public final class Premain {
    private Premain() {
    }

    public static void premain(String way) {
        if (way.equals("at once")) {
            System.exit(3);
        }
        new Thread(() -> {
            try {
                Thread.sleep(0, (int) (System.nanoTime() % 1_000_000));
            } catch (InterruptedException e) {
                throw new IllegalStateException(e);
            }
            System.exit(3);
        }).start();
    }
}
