package scenario;

import java.awt.Component;
import java.awt.Container;
import java.awt.Window;

import javax.swing.AbstractButton;
import javax.swing.JComponent;

/** What there is, as the program itself sees it: a line for each component, two spaces deeper than its parent's. */
final class Dump {
    private Dump() {
    }

    /** All windows with all that is in them, or those of the inspector: simple class, and name where there is one. */
    static String windows(boolean inspectors) {
        StringBuilder text = new StringBuilder();
        for (Window window : Window.getWindows()) {
            if (window.getOwner() == null && Scenario.isInspectors(window) == inspectors) {
                add(text, window, 0);
            }
        }
        return text.toString();
    }

    private static void add(StringBuilder text, Component component, int depth) {
        boolean kept = component.getClass().getName().startsWith("javax.swing.Popup$") && !component.isVisible();
        if (component instanceof Window window && !window.isDisplayable() || kept) {
            return; // disposed, or kept by Swing for the next popup
        }
        String name = component instanceof Odd ? null : component.getName();
        if (name != null && name.matches("[a-z]+\\d+")) {
            name = null; // made up by the AWT when it was asked
        }
        text.append("  ".repeat(depth))
                .append(simpleName(component))
                .append(name == null ? "" : " " + name)
                .append('\n');
        if (component instanceof Container container) {
            for (int child = 0; child < container.getComponentCount(); child++) {
                add(text, container.getComponent(child), depth + 1);
            }
        }
        if (component instanceof Window window) {
            for (Window owned : window.getOwnedWindows()) {
                add(text, owned, depth + 1);
            }
        }
    }

    /** The first component that shows, of this simple class, whose text or tooltip contains this. */
    static Component find(String type, String text) {
        for (Window window : Window.getWindows()) {
            Component found = Scenario.isInspectors(window) ? null : find(window, type, text);
            if (found != null) {
                return found;
            }
        }
        throw new IllegalArgumentException("no " + type + " with \"" + text + "\" in\n" + windows(false));
    }

    private static Component find(Component component, String type, String text) {
        if (component.isShowing() && simpleName(component).equals(type) && texts(component).contains(text)) {
            return component;
        }
        if (component instanceof Container container) {
            for (Component child : container.getComponents()) {
                Component found = find(child, type, text);
                if (found != null) {
                    return found;
                }
            }
        }
        return null;
    }

    private static String texts(Component component) {
        String tooltip = component instanceof JComponent swing ? swing.getToolTipText() : "";
        return (component instanceof AbstractButton button ? button.getText() : "") + "\n" + tooltip;
    }

    /** A class without its package and the classes around it. */
    private static String simpleName(Component component) {
        return component.getClass().getName().replaceFirst("^.*[.$](?=[^0-9$])", "");
    }
}
