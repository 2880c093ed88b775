package com.vantrel.watch;

import java.awt.AWTEvent;
import java.awt.Component;
import java.awt.event.ActionEvent;
import java.awt.event.ComponentEvent;
import java.awt.event.FocusEvent;
import java.awt.event.InvocationEvent;
import java.awt.event.KeyEvent;
import java.awt.event.MouseEvent;
import java.awt.event.PaintEvent;
import java.awt.event.WindowEvent;
import java.lang.reflect.Field;
import java.util.HashMap;
import java.util.Map;

import com.vantrel.hooks.DesktopModule;
import com.vantrel.model.Code;
import com.vantrel.model.Members;
import com.vantrel.model.Ours;

/**
 * Events in words, such as {@code mouse released on JButton "save"}. Runs no code of the program, whose event thread
 * hangs as likely as not, and takes no lock of the toolkit. For any thread.
 */
final class EventWords {
    private static final Map<Integer, String> NAMES = new HashMap<>();

    static {
        NAMES.put(ActionEvent.ACTION_PERFORMED, "action");
        NAMES.put(ComponentEvent.COMPONENT_HIDDEN, "hidden");
        NAMES.put(ComponentEvent.COMPONENT_MOVED, "moved");
        NAMES.put(ComponentEvent.COMPONENT_RESIZED, "resized");
        NAMES.put(ComponentEvent.COMPONENT_SHOWN, "shown");
        NAMES.put(FocusEvent.FOCUS_GAINED, "focus gained");
        NAMES.put(FocusEvent.FOCUS_LOST, "focus lost");
        NAMES.put(KeyEvent.KEY_PRESSED, "key pressed");
        NAMES.put(KeyEvent.KEY_RELEASED, "key released");
        NAMES.put(KeyEvent.KEY_TYPED, "key typed");
        NAMES.put(MouseEvent.MOUSE_CLICKED, "mouse clicked");
        NAMES.put(MouseEvent.MOUSE_DRAGGED, "mouse dragged");
        NAMES.put(MouseEvent.MOUSE_ENTERED, "mouse entered");
        NAMES.put(MouseEvent.MOUSE_EXITED, "mouse exited");
        NAMES.put(MouseEvent.MOUSE_MOVED, "mouse moved");
        NAMES.put(MouseEvent.MOUSE_PRESSED, "mouse pressed");
        NAMES.put(MouseEvent.MOUSE_RELEASED, "mouse released");
        NAMES.put(MouseEvent.MOUSE_WHEEL, "mouse wheel");
        NAMES.put(PaintEvent.PAINT, "painting");
        NAMES.put(PaintEvent.UPDATE, "painting");
        NAMES.put(WindowEvent.WINDOW_ACTIVATED, "window activated");
        NAMES.put(WindowEvent.WINDOW_CLOSED, "window closed");
        NAMES.put(WindowEvent.WINDOW_CLOSING, "window closing");
        NAMES.put(WindowEvent.WINDOW_DEACTIVATED, "window deactivated");
        NAMES.put(WindowEvent.WINDOW_GAINED_FOCUS, "window got the focus");
        NAMES.put(WindowEvent.WINDOW_LOST_FOCUS, "window lost the focus");
        NAMES.put(WindowEvent.WINDOW_OPENED, "window opened");
        DesktopModule.open("java.awt.event");
    }

    private static final Field RUNNABLE = Members.field(InvocationEvent.class, "runnable");

    private EventWords() {
    }

    /**
     * @param event null where it is not known
     * @return never null
     */
    static String of(AWTEvent event) {
        if (event == null) {
            return "an event that is not known";
        }
        if (!Code.isToolkit(event.getClass())) {
            return Code.shortName(event.getClass()); // whose methods may do anything
        }
        if (event instanceof InvocationEvent) {
            // A modal dialog's loop ends with a task. What goes on then is the event that opened the dialog, of which
            // the queue has no note any more.
            return ((InvocationEvent) event).isDispatched() ? "the rest of an event, after a dialog or loop in it"
                                                            : task(event);
        }
        String name = NAMES.get(event.getID());
        Object source = event.getSource();
        return (name == null ? Code.shortName(event.getClass()) : name)
                + (source instanceof Component ? " on " + Code.describe((Component) source) : "");
    }

    /** Whether it is an event of one of the inspector's windows. */
    static boolean isOurs(AWTEvent event) {
        return Code.isToolkit(event.getClass()) && event.getSource() instanceof Component
                && Ours.isOurs((Component) event.getSource());
    }

    private static String task(AWTEvent event) {
        Class<?> type;
        try {
            Object task = RUNNABLE == null ? null : RUNNABLE.get(event);
            type = task == null ? event.getClass() : task.getClass();
        } catch (IllegalAccessException e) {
            type = event.getClass();
        }
        String name = type.getName();
        if (name.startsWith("javax.swing.Timer$")) {
            return "a Swing timer";
        }
        if (name.startsWith("javax.swing.RepaintManager$")) {
            return "painting";
        }
        return "a task" + (Code.isToolkit(type) ? " of the toolkit" : "") + " (" + Code.shortName(type) + ")";
    }
}
