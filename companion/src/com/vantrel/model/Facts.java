package com.vantrel.model;

import java.awt.AWTEvent;
import java.awt.Button;
import java.awt.Checkbox;
import java.awt.Component;
import java.awt.Container;
import java.awt.Dialog;
import java.awt.Frame;
import java.awt.Label;
import java.awt.LayoutManager;
import java.awt.Rectangle;
import java.awt.TextComponent;
import java.awt.Window;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

import javax.swing.AbstractButton;
import javax.swing.JComponent;
import javax.swing.JInternalFrame;
import javax.swing.JLabel;
import javax.swing.JPasswordField;
import javax.swing.border.Border;
import javax.swing.border.TitledBorder;
import javax.swing.text.BadLocationException;
import javax.swing.text.Document;
import javax.swing.text.JTextComponent;

/**
 * What the inspector reads of every component, again and again, without being told to. It never runs code of the
 * program: where a class of the program overrides the method, the toolkit's own field is read instead; where that
 * cannot be read, the answer is a default. So a component whose methods throw, block or lie is shown like any other.
 * For the event thread.
 */
public final class Facts {
    private static final Component[] NONE = new Component[0];
    private static final long MOUSE =
            AWTEvent.MOUSE_EVENT_MASK | AWTEvent.MOUSE_MOTION_EVENT_MASK | AWTEvent.MOUSE_WHEEL_EVENT_MASK;
    /** Longer texts are cut: a row shows no more, and a document may hold a book. */
    private static final int LONGEST_TEXT = 200;

    private Facts() {
    }

    private static boolean toolkits(Component component, String method) {
        return ClassFacts.of(component.getClass()).isToolkits(method);
    }

    /** The name that somebody gave a component; null for none. */
    public static String name(Component component) {
        if (!(Boolean) Fields.NAME_IS_SET.of(component, true)) {
            return null; // asking would make one up
        }
        boolean ask = toolkits(component, "getName") && !Fields.NAME.isReadable();
        return ask ? component.getName() : (String) Fields.NAME.of(component, null);
    }

    /** A component's parent; a window's owner. */
    public static Container parent(Component component) {
        return toolkits(component, "getParent") ? component.getParent() : (Container) Fields.PARENT.of(component, null);
    }

    /** The components in a container, in its order, and after them the windows that it owns. */
    public static Component[] children(Component component) {
        Component[] inside = component instanceof Container ? inside((Container) component) : NONE;
        if (!(component instanceof Window) || !toolkits(component, "getOwnedWindows")) {
            return inside;
        }
        Window[] owned = ((Window) component).getOwnedWindows();
        if (owned.length == 0) {
            return inside;
        }
        List<Component> all = new ArrayList<>(Arrays.asList(inside));
        for (Window window : owned) {
            if (ProgramWindows.counts(window)) {
                all.add(window);
            }
        }
        return all.toArray(NONE);
    }

    /** The components in a container, in its order. */
    static Component[] inside(Container container) {
        if (toolkits(container, "getComponents")) {
            return container.getComponents();
        }
        synchronized (container.getTreeLock()) {
            List<?> list = (List<?>) Fields.CHILDREN.of(container, null);
            if (list != null) {
                return list.toArray(NONE);
            }
            if (!toolkits(container, "getComponentCount")) {
                return NONE;
            }
            Component[] each = new Component[container.getComponentCount()];
            for (int i = 0; i < each.length; i++) {
                each[i] = container.getComponent(i);
            }
            return each;
        }
    }

    public static boolean isVisible(Component component) {
        return toolkits(component, "isVisible") ? component.isVisible() : (Boolean) Fields.VISIBLE.of(component, true);
    }

    /** A container's layout manager; null for none. */
    public static LayoutManager layout(Container container) {
        return toolkits(container, "getLayout") ? container.getLayout()
                                                : (LayoutManager) Fields.LAYOUT.of(container, null);
    }

    /** Whether nothing in a container has changed since it was laid out. */
    public static boolean isValid(Component component) {
        return toolkits(component, "isValid") ? component.isValid() : (Boolean) Fields.VALID.of(component, true);
    }

    /** Whether a component takes events of the mouse, which would otherwise go to what lies below it. */
    public static boolean takesMouse(Component component) {
        long mask = (Long) Fields.EVENT_MASK.of(component, 0L);
        return (mask & MOUSE) != 0 || Fields.MOUSE.of(component, null) != null
                || Fields.MOUSE_MOTION.of(component, null) != null || Fields.MOUSE_WHEEL.of(component, null) != null;
    }

    public static boolean isEnabled(Component component) {
        return toolkits(component, "isEnabled") ? component.isEnabled() : (Boolean) Fields.ENABLED.of(component, true);
    }

    /** A component's bounds in its parent; a window's on the screen. */
    public static Rectangle bounds(Component component) {
        if (toolkits(component, "getBounds")) {
            return component.getBounds();
        }
        return new Rectangle((Integer) Fields.X.of(component, 0), (Integer) Fields.Y.of(component, 0),
                (Integer) Fields.WIDTH.of(component, 1), (Integer) Fields.HEIGHT.of(component, 1));
    }

    /** The text that a component shows, or a window's title; shortened if it is long; null for none. */
    public static String text(Component component) {
        try {
            return textOf(component);
        } catch (BadLocationException | RuntimeException e) {
            return null; // the document or peer is just being changed
        }
    }

    private static String textOf(Component component) throws BadLocationException {
        if (component instanceof JLabel) {
            return text(component, "getText", Fields.LABEL_TEXT, () -> ((JLabel) component).getText());
        }
        if (component instanceof AbstractButton) {
            return text(component, "getText", Fields.BUTTON_TEXT, () -> ((AbstractButton) component).getText());
        }
        if (component instanceof Frame) {
            return text(component, "getTitle", Fields.FRAME_TITLE, () -> ((Frame) component).getTitle());
        }
        if (component instanceof Dialog) {
            return text(component, "getTitle", Fields.DIALOG_TITLE, () -> ((Dialog) component).getTitle());
        }
        if (component instanceof JInternalFrame) {
            return text(component, "getTitle", Fields.INTERNAL_TITLE, () -> ((JInternalFrame) component).getTitle());
        }
        if (component instanceof JInternalFrame.JDesktopIcon && toolkits(component, "getInternalFrame")) {
            JInternalFrame frame = ((JInternalFrame.JDesktopIcon) component).getInternalFrame();
            return frame == null ? null : textOf(frame);
        }
        if (component instanceof JTextComponent) {
            return documentText((JTextComponent) component);
        }
        if (component instanceof JComponent) {
            return borderTitle((JComponent) component);
        }
        if (component instanceof TextComponent && toolkits(component, "getText")) {
            return cut(((TextComponent) component).getText());
        }
        if (component instanceof Label && toolkits(component, "getText")) {
            return cut(((Label) component).getText());
        }
        if (component instanceof Button && toolkits(component, "getLabel")) {
            return cut(((Button) component).getLabel());
        }
        if (component instanceof Checkbox && toolkits(component, "getLabel")) {
            return cut(((Checkbox) component).getLabel());
        }
        return null;
    }

    private static String text(
            Component component, String method, Fields field, java.util.function.Supplier<String> getter) {
        return cut(toolkits(component, method) ? getter.get() : (String) field.of(component, null));
    }

    private static String documentText(JTextComponent component) throws BadLocationException {
        if (component instanceof JPasswordField || !toolkits(component, "getDocument")) {
            return null;
        }
        Document document = component.getDocument();
        if (document == null || !Code.isToolkit(document.getClass())) {
            return null;
        }
        return cut(document.getText(0, Math.min(document.getLength(), LONGEST_TEXT)));
    }

    private static String borderTitle(JComponent component) {
        Border border = toolkits(component, "getBorder") ? component.getBorder() : null;
        return border != null && border.getClass() == TitledBorder.class ? cut(((TitledBorder) border).getTitle())
                                                                         : null;
    }

    private static String cut(String text) {
        return text == null || text.isEmpty()  ? null
                : text.length() > LONGEST_TEXT ? text.substring(0, LONGEST_TEXT)
                                               : text;
    }

    /** The tooltip that was set on a component; null for none. */
    public static String toolTip(Component component) {
        if (!(component instanceof JComponent)) {
            return null;
        }
        // Where setToolTipText() keeps it; getToolTipText() may be the program's.
        Object text = ((JComponent) component).getClientProperty(JComponent.TOOL_TIP_TEXT_KEY);
        return text instanceof String ? cut((String) text) : null;
    }

    /**
     * The accessible name that was set on a component; null for none. A component that has no accessible context yet is
     * not asked for one, because it would make one, which would listen to its models.
     */
    static String accessibleName(Component component) {
        Object context = Fields.ACCESSIBLE.of(component, null);
        return context == null ? null : cut((String) Fields.ACCESSIBLE_NAME.of(context, null));
    }
}
