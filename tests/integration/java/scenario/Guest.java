package scenario;

import java.util.Arrays;

/**
 * Starts a program that knows nothing of tests, and lets it be told what {@link Scenario} can be told: its components
 * are known by the names that the command "find" gives them.
 *
 * <p>Arguments: the program's main class, and its own arguments.
 */
public final class Guest {
    private Guest() {
    }

    public static void main(String[] arguments) throws Exception {
        Scenario.obey(new Things(), new EventLog());
        Class.forName(arguments[0])
                .getMethod("main", String[].class)
                .invoke(null, (Object) Arrays.copyOfRange(arguments, 1, arguments.length));
    }
}
