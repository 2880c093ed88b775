package orchard;

import javax.swing.SwingUtilities;
import javax.swing.UIManager;

/** A small program to inspect: an orchard's orders, varieties and harvest. It ends when its window is closed. */
public final class Main {
    private Main() {
    }

    /** @param arguments the name of a look and feel, such as Nimbus; Metal if none is given */
    public static void main(String[] arguments) {
        SwingUtilities.invokeLater(() -> {
            UIManager.put("swing.boldMetal", Boolean.FALSE);
            Looks.use(arguments.length == 0 ? "Metal" : arguments[0]);
            new MainWindow().setVisible(true);
        });
    }
}
