package scenario;

import java.awt.Window;
import java.io.IOException;
import java.io.PrintStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;

import javax.swing.SwingUtilities;

/**
 * The program that the inspector is tried on. It shows a window with components of every usual kind, does what it is
 * told, and tells what it saw.
 *
 * <p>Commands are lines that are appended to a file "commands" in the program's folder. The answer to the Nth one is
 * written to the standard output: each of its lines with "N| " before it, and then a line "N." alone. {@link Commands}
 * lists them. The system property "theme" names one of {@link Themes}. The program ends by itself when its windows are
 * gone.
 */
public final class Scenario {
    private static final Path COMMANDS = Path.of("commands");
    private static final PrintStream OUT = System.out; // some programs put another in its place
    private static final int MILLIS_BETWEEN_LOOKS = 4;

    private Scenario() {
    }

    public static void main(String[] arguments) throws Exception {
        Themes.use(System.getProperty("theme", ""));
        EventLog log = new EventLog();
        SwingUtilities.invokeAndWait(() -> {
            Things things = new Things();
            MainFrame.show(things);
            log.start(things);
            obey(things, log);
        });
    }

    /** Begins to carry out commands, on a thread that keeps no program alive. */
    static void obey(Things things, EventLog log) {
        Thread reader = new Thread(() -> follow(new Commands(things, log)), "commands");
        reader.setDaemon(true);
        reader.start();
    }

    private static void follow(Commands commands) {
        int done = 0;
        try {
            while (true) {
                List<String> lines = Files.exists(COMMANDS) ? Files.readAllLines(COMMANDS) : List.of();
                for (; done < lines.size(); done++) {
                    answer(done + 1, commands.run(lines.get(done)));
                }
                Thread.sleep(MILLIS_BETWEEN_LOOKS);
            }
        } catch (IOException | InterruptedException e) {
            e.printStackTrace();
        }
    }

    private static void answer(int number, String text) {
        StringBuilder answer = new StringBuilder();
        text.lines().forEach(line -> answer.append(number).append("| ").append(line).append('\n'));
        OUT.print(answer.append(number).append(".\n"));
        OUT.flush();
    }

    /** Whether a window belongs to the inspector, told without a class of the inspector's. */
    static boolean isInspectors(Window window) {
        for (Window at = window; at != null; at = at.getOwner()) {
            if ("vantrel".equals(at.getName())) {
                return true;
            }
        }
        return false;
    }
}
