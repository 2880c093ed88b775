import java.awt.Component;

import javax.swing.JLabel;
import javax.swing.JPanel;

import com.vantrel.stacktrace.StackTraceManager;

/** Prints what a program sees of the two replaced classes. */
public final class Replaced {
    private Replaced() {
    }

    public static void main(String[] arguments) throws Exception {
        System.out.println(Component.class.getDeclaredField("windowClosingException"));
        JPanel panel = new JPanel();
        JLabel label = new JLabel("added");
        panel.add(label);
        int line = new Throwable().getStackTrace()[0].getLineNumber() - 1; // that of the call before
        System.out.println("added in line " + line);
        for (StackTraceElement element : StackTraceManager.getStackTrace(label)) {
            System.out.println("at " + element.getClassName() + "." + element.getMethodName() + " line "
                    + element.getLineNumber());
        }
        System.out.println("in the panel: " + (label.getParent() == panel));
    }
}
