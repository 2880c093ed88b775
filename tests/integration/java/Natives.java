import java.awt.AWTEvent;
import java.awt.Color;
import java.awt.Component;
import java.awt.EventQueue;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Toolkit;
import java.awt.image.BufferedImage;
import java.lang.management.ManagementFactory;
import java.util.concurrent.SynchronousQueue;

import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.JWindow;
import javax.swing.SwingUtilities;

import com.vantrel.SwingContext;
import com.vantrel.Vantrel;
import com.vantrel.VantrelFrame;

/**
 * Calls the companion's native methods and says what came of it; then shows a highlighted component at (300,200) of the
 * screen and tells, until it is ended, when canHighlight changes.
 */
public final class Natives {
    private Natives() {
    }

    public static void main(String[] arguments) throws Exception {
        System.out.println("system " + Vantrel.getOSVersion());
        System.out.print("beep [");
        System.out.flush();
        Vantrel.beep();
        System.out.println("]");
        drawHighlight();
        runInOwnContext();
        runInOtherContext();
        SwingUtilities.invokeAndWait(Natives::showHighlight);

        boolean held = Vantrel.canHighlight();
        System.out.println("ready, " + (held ? "held" : "free"));
        while (true) {
            if (Vantrel.canHighlight() != held) {
                held = !held;
                System.out.println(held ? "held" : "free");
            }
            Thread.sleep(1);
        }
    }

    /** The highlight of a component of 10 by 5 on a white image, as letters. */
    private static void drawHighlight() {
        BufferedImage image = new BufferedImage(12, 7, BufferedImage.TYPE_INT_RGB);
        Graphics2D graphics = image.createGraphics();
        graphics.setColor(Color.WHITE);
        graphics.fillRect(0, 0, 12, 7);
        JLabel component = new JLabel();
        component.setSize(10, 5);
        Vantrel.getInstance().highlight(component, graphics);
        for (int y = 0; y < 7; ++y) {
            StringBuilder row = new StringBuilder();
            for (int x = 0; x < 12; ++x) {
                int rgb = image.getRGB(x, y) & 0xFFFFFF;
                // One third of the orange on two thirds of white.
                row.append(rgb == 0xFFFFFF ? '.' : rgb == 0xFC7E00 ? 'O' : rgb == 0xFED5AB ? 't' : '?');
            }
            System.out.println(row);
        }
    }

    private static void runInOwnContext() throws Exception {
        SwingUtilities.invokeAndWait(() -> {}); // starts the event thread
        long started = ManagementFactory.getThreadMXBean().getTotalStartedThreadCount();
        String ran = run(new JLabel());
        System.out.println(
                ran + ", new threads: " + (ManagementFactory.getThreadMXBean().getTotalStartedThreadCount() - started));
    }

    private static void runInOtherContext() throws Exception {
        SynchronousQueue<Component> made = new SynchronousQueue<>();
        StringBuffer posters = new StringBuffer();
        Thread maker = new Thread(new ThreadGroup("other"), () -> {
            try {
                Class.forName("sun.awt.SunToolkit").getMethod("createNewAppContext").invoke(null);
                Toolkit.getDefaultToolkit().getSystemEventQueue().push(new EventQueue() {
                    @Override
                    public void postEvent(AWTEvent event) {
                        posters.append(" posted by ").append(Thread.currentThread().getName());
                        super.postEvent(event);
                    }
                });
                made.put(new JLabel());
            } catch (ReflectiveOperationException | InterruptedException e) {
                throw new IllegalStateException(e);
            }
        });
        maker.start();
        System.out.println(run(made.take()) + posters);
    }

    /** Has a task run by the agent, and says on which thread it did. */
    private static String run(Component component) throws InterruptedException {
        SynchronousQueue<String> ran = new SynchronousQueue<>();
        SwingContext.safeRun1(component, () -> {
            try {
                ran.put((EventQueue.isDispatchThread() ? "event thread of " : "no event thread in ")
                        + Thread.currentThread().getThreadGroup().getName());
            } catch (InterruptedException e) {
                throw new IllegalStateException(e);
            }
        });
        return ran.take();
    }

    private static void showHighlight() {
        JPanel highlighted = new JPanel() {
            @Override
            protected void paintComponent(Graphics graphics) {
                super.paintComponent(graphics);
                Vantrel.getInstance().highlight(this, (Graphics2D) graphics.create());
            }
        };
        highlighted.setBackground(Color.WHITE);
        JWindow window = new JWindow();
        window.add(highlighted);
        window.setBounds(300, 200, 100, 50);
        window.setVisible(true);
        VantrelFrame.getInstance().setOpacity(50);
    }
}
