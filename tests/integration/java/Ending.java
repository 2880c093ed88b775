import java.nio.file.Files;
import java.nio.file.Path;

import javax.swing.JFrame;
import javax.swing.SwingUtilities;

/**
 * Shows a window, if it is told to, and ends in the way that its first argument names, as soon as there is a file "end"
 * in its folder or, with a second argument, at once.
 */
public final class Ending {
    private static JFrame frame;

    private Ending() {
    }

    public static void main(String[] arguments) throws Exception {
        String way = arguments[0];
        if (way.equals("dispose")) {
            SwingUtilities.invokeAndWait(() -> {
                frame = new JFrame("Ending");
                frame.setSize(200, 100);
                frame.setVisible(true);
            });
        }
        System.out.println("started");
        while (arguments.length == 1 && !Files.exists(Path.of("end"))) {
            Thread.sleep(2);
        }
        if (way.equals("exit")) {
            System.exit(3);
        } else if (way.equals("event thread")) {
            SwingUtilities.invokeLater(() -> System.exit(3));
        } else if (way.equals("dispose")) {
            SwingUtilities.invokeLater(() -> frame.dispose());
        } else if (way.equals("throw")) {
            throw new IllegalStateException("thrown on purpose");
        } else if (!way.equals("return")) {
            throw new IllegalArgumentException(way);
        }
    }
}
