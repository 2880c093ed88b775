import java.awt.Graphics2D;
import java.awt.image.BufferedImage;

import javax.swing.JLabel;
import javax.swing.SwingUtilities;

import com.vantrel.SwingContext;
import com.vantrel.Vantrel;

/** Ends while three threads are in and out of the companion's native methods as fast as they can. */
public final class EndingInside {
    private EndingInside() {
    }

    public static void main(String[] arguments) throws Exception {
        JLabel component = new JLabel();
        component.setSize(10, 5);
        Graphics2D graphics = new BufferedImage(12, 7, BufferedImage.TYPE_INT_RGB).createGraphics();
        SwingUtilities.invokeAndWait(() -> {}); // starts the event thread
        repeat(() -> SwingContext.safeRun1(component, () -> {}));
        repeat(() -> Vantrel.getInstance().highlight(component, graphics));
        repeat(Vantrel::canHighlight);
        Thread.sleep(50);
        System.exit(3);
    }

    private static void repeat(Runnable call) {
        Thread thread = new Thread(() -> {
            while (true) {
                call.run();
            }
        });
        thread.setDaemon(true);
        thread.start();
    }
}
