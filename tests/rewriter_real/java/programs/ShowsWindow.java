import java.awt.Component;
import java.awt.Container;
import java.awt.EventQueue;
import java.awt.Frame;
import java.io.PrintStream;
import java.util.Arrays;
import javax.swing.AbstractButton;
import javax.swing.JLabel;

/**
 * Runs a program, says what its window shows when nothing changes there any more, and ends it. Left out is what differs
 * from run to run: where on the screen the window is, which without a window manager the AWT may never learn, and the
 * time in a label that is a clock.
 */
public final class ShowsWindow {
    private static final long MOMENT = 1000;
    private static final int MOST_MOMENTS = 60;
    private static final String TIME = "\\d+:\\d\\d.*";

    private ShowsWindow() {
    }

    /** MAIN-CLASS ARGUMENT... */
    public static void main(String[] arguments) throws Exception {
        PrintStream out = System.out; // before the program takes it, as jEdit does
        String[] others = Arrays.copyOfRange(arguments, 1, arguments.length);
        Class.forName(arguments[0]).getMethod("main", String[].class).invoke(null, (Object) others);
        String before = "";
        for (int moment = 0; moment < MOST_MOMENTS; ++moment) {
            Thread.sleep(MOMENT);
            String[] now = new String[1];
            EventQueue.invokeAndWait(() -> now[0] = shown());
            if (!now[0].isEmpty() && now[0].equals(before)) {
                out.print(before);
                System.exit(0);
            }
            before = now[0];
        }
        out.println("nothing that stays as it is: " + before);
        System.exit(1);
    }

    private static String shown() {
        StringBuilder text = new StringBuilder();
        for (Frame frame : Frame.getFrames()) {
            if (frame.isShowing()) {
                text.append(frame.getTitle()).append(' ').append(frame.getSize()).append('\n');
                addChildren(text, frame);
            }
        }
        return text.toString();
    }

    private static void add(StringBuilder text, Component component) {
        text.append(component.getClass().getName()).append(' ').append(component.getBounds());
        if (component instanceof JLabel) {
            String shown = ((JLabel) component).getText();
            text.append(shown != null && shown.matches(TIME) ? "a time" : shown);
        } else if (component instanceof AbstractButton) {
            text.append(((AbstractButton) component).getText());
        }
        text.append('\n');
        if (component instanceof Container) {
            addChildren(text, (Container) component);
        }
    }

    private static void addChildren(StringBuilder text, Container parent) {
        for (Component child : parent.getComponents()) {
            add(text, child);
        }
    }
}
