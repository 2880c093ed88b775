import java.lang.management.ManagementFactory;
import java.util.Arrays;

/**
 * Says how it was started: its arguments, two properties, a variable and its process. Ends with status 7 or, where it
 * is told to wait, not at all.
 */
public final class Started {
    private Started() {
    }

    public static void main(String[] arguments) throws InterruptedException {
        System.out.println("arguments " + Arrays.asList(arguments));
        System.out.println("x " + System.getProperty("x") + ", y " + System.getProperty("y"));
        System.out.println("variable " + System.getenv("JAVA_TOOL_OPTIONS"));
        System.out.println("process " + ManagementFactory.getRuntimeMXBean().getName().replaceAll("@.*", ""));
        if (arguments.length > 0 && arguments[0].equals("wait")) {
            Thread.sleep(Long.MAX_VALUE);
        }
        System.exit(7);
    }
}
