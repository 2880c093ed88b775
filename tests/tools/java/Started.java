import java.lang.management.ManagementFactory;
import java.util.Arrays;
import java.util.stream.Collectors;

/**
 * Says how it was started: its arguments, two properties, a variable, the VM's agents and its process. Ends with status
 * 7 or, where it is told to wait, not at all.
 */
public final class Started {
    private Started() {
    }

    /** It can be had as an agent, too, which does nothing. */
    public static void premain(String options) {
    }

    public static void main(String[] arguments) throws InterruptedException {
        System.out.println("arguments " + Arrays.asList(arguments));
        System.out.println("x " + System.getProperty("x") + ", y " + System.getProperty("y"));
        System.out.println("variable " + System.getenv("JAVA_TOOL_OPTIONS"));
        System.out.println("agents "
                + ManagementFactory.getRuntimeMXBean()
                          .getInputArguments()
                          .stream()
                          .filter(option -> option.contains("agent"))
                          .map(option -> option.replaceAll(":.*", ""))
                          .collect(Collectors.toList()));
        System.out.println("process " + ManagementFactory.getRuntimeMXBean().getName().replaceAll("@.*", ""));
        if (arguments.length > 0 && arguments[0].equals("wait")) {
            Thread.sleep(Long.MAX_VALUE);
        }
        System.exit(7);
    }
}
