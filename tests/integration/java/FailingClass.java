/** Cannot be initialised. */
public class FailingClass {
    static {
        fail();
    }

    private static void fail() {
        throw new IllegalStateException("not\ntoday");
    }
}
