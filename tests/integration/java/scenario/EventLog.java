package scenario;

import java.awt.AWTEvent;
import java.awt.Component;
import java.awt.Toolkit;
import java.awt.Window;
import java.util.ArrayList;
import java.util.List;

import javax.swing.JComponent;
import javax.swing.SwingUtilities;

/**
 * What reaches the program: every event of mouse, keyboard, focus and windows that is delivered to one of its
 * components, and what its buttons and menu items did. Events of the inspector's windows are not the program's.
 */
final class EventLog {
    private static final long EVENTS = AWTEvent.MOUSE_EVENT_MASK | AWTEvent.MOUSE_MOTION_EVENT_MASK
            | AWTEvent.MOUSE_WHEEL_EVENT_MASK | AWTEvent.KEY_EVENT_MASK | AWTEvent.FOCUS_EVENT_MASK
            | AWTEvent.WINDOW_EVENT_MASK | AWTEvent.ACTION_EVENT_MASK;

    private final List<String> lines = new ArrayList<>();
    private Things things;

    /** Begins to listen. */
    void start(Things known) {
        things = known;
        Toolkit.getDefaultToolkit().addAWTEventListener(this::see, EVENTS);
    }

    private void see(AWTEvent event) {
        if (!(event.getSource() instanceof Component)) {
            return;
        }
        Component source = (Component) event.getSource();
        Window window = source instanceof Window ? (Window) source : SwingUtilities.getWindowAncestor(source);
        if (window != null && Scenario.isInspectors(window)) {
            return;
        }
        String kind = event.paramString();
        int end = kind.indexOf(',');
        add((end < 0 ? kind : kind.substring(0, end)) + " " + things.nameOf(source));
    }

    /** Adds a line, once where it repeats: a pointer moves in many steps. */
    synchronized void add(String line) {
        if (lines.isEmpty() || !lines.get(lines.size() - 1).equals(line)) {
            lines.add(line);
        }
    }

    /**
     * What was seen since the last time, a line each: the kind of event and the component, such as "KEY_PRESSED ok".
     */
    synchronized String take() {
        String text = String.join("\n", lines);
        lines.clear();
        return text;
    }

    /** Notes what a component does, as "action ok". */
    void follow(JComponent component) {
        String name = things.nameOf(component);
        if (component instanceof javax.swing.AbstractButton button) {
            button.addActionListener(event -> add("action " + name));
        }
    }
}
