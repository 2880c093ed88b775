import java.awt.Component;
import java.awt.Container;
import java.io.ObjectInputStream;
import java.io.ObjectOutputStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;

import javax.swing.JLabel;
import javax.swing.JPanel;

import com.vantrel.stacktrace.StackTraceManager;

/**
 * Writes components that were added to each other into a file, or reads them from there and prints what they are, and
 * whether the children are known to have been added.
 */
public final class Serialised {
    private Serialised() {
    }

    /** @param arguments "write" or "read", and the file */
    public static void main(String[] arguments) throws Exception {
        Path file = Paths.get(arguments[1]);
        if (arguments[0].equals("write")) {
            JPanel panel = new JPanel();
            panel.add(new JLabel("written"));
            Container plain = new Container();
            plain.add(panel);
            try (ObjectOutputStream out = new ObjectOutputStream(Files.newOutputStream(file))) {
                out.writeObject(plain);
            }
        } else {
            try (ObjectInputStream in = new ObjectInputStream(Files.newInputStream(file))) {
                print("", (Component) in.readObject());
            }
        }
    }

    private static void print(String indent, Component component) {
        System.out.println(indent + component.getClass().getName()
                + (component instanceof JLabel ? " " + ((JLabel) component).getText() : ""));
        if (component instanceof Container) {
            for (Component child : ((Container) component).getComponents()) {
                boolean traced = StackTraceManager.getStackTrace(child).length > 0;
                print(indent + (child.getParent() == component ? " in" : " lost") + (traced ? " traced " : " "), child);
            }
        }
    }
}
