package scenario;

import java.awt.Component;
import java.awt.Container;
import java.awt.Rectangle;
import java.awt.Window;
import java.util.ArrayList;
import java.util.List;

import javax.accessibility.AccessibleContext;
import javax.swing.AbstractButton;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.JList;
import javax.swing.JTable;
import javax.swing.text.JTextComponent;

/** What the inspector shows, found by the names of its components. */
final class Inspector {
    private Inspector() {
    }

    static Component find(String name) {
        for (Window window : Window.getWindows()) {
            Component found = window.isDisplayable() && Scenario.isInspectors(window) ? find(window, name) : null;
            if (found != null) {
                return found;
            }
        }
        throw new IllegalArgumentException("the inspector has no component " + name);
    }

    private static Component find(Component component, String name) {
        if (name.equals(component.getName())) {
            return component;
        }
        if (component instanceof Container container) {
            for (Component child : container.getComponents()) {
                Component found = find(child, name);
                if (found != null) {
                    return found;
                }
            }
        }
        return null;
    }

    /** A button or menu item of the inspector's that shows, by its text. */
    static Component button(String text) {
        for (Window window : Window.getWindows()) {
            Component found = window.isShowing() && Scenario.isInspectors(window) ? button(window, text) : null;
            if (found != null) {
                return found;
            }
        }
        throw new IllegalArgumentException("the inspector shows no button " + text);
    }

    private static Component button(Component component, String text) {
        if (component instanceof AbstractButton button && button.isShowing() && text.equals(button.getText())) {
            return button;
        }
        if (component instanceof Container container) {
            for (Component child : container.getComponents()) {
                Component found = button(child, text);
                if (found != null) {
                    return found;
                }
            }
        }
        return null;
    }

    /**
     * What a person would read of a component. Of a list or table: its rows, with "* " before those that are selected,
     * "- " before the others, and " | " between cells. Of a panel: all texts below it. Of anything else: its text, or
     * the one that screen readers say.
     */
    static String describe(String name) {
        return String.join("\n", lines(find(name)));
    }

    static List<String> lines(Component component) {
        List<String> lines = new ArrayList<>();
        if (component instanceof JList<?> list) {
            for (int row = 0; row < list.getModel().getSize(); row++) {
                lines.add((list.isSelectedIndex(row) ? "* " : "- ") + list.getModel().getElementAt(row));
            }
        } else if (component instanceof JTable table) {
            for (int row = 0; row < table.getRowCount(); row++) {
                StringBuilder line = new StringBuilder(table.isRowSelected(row) ? "* " : "- ");
                for (int column = 0; column < table.getColumnCount(); column++) {
                    line.append(column == 0 ? "" : " | ").append(table.getValueAt(row, column));
                }
                lines.add(line.toString());
            }
        } else if (component instanceof JTextComponent text) {
            lines.add(text.getText());
        } else if (component instanceof JLabel label) {
            lines.add(String.valueOf(label.getText()));
        } else if (component instanceof AbstractButton button) {
            lines.add(String.valueOf(button.getText()));
        } else if (component instanceof JComponent drawn && drawn.getComponentCount() == 0) {
            AccessibleContext context = drawn.getAccessibleContext();
            if (context != null && context.getAccessibleName() != null) {
                lines.add(context.getAccessibleName());
            }
        } else if (component instanceof Container container) {
            for (Component child : container.getComponents()) {
                if (child.isVisible()) {
                    lines.addAll(lines(child));
                }
            }
        }
        return lines;
    }

    /** The bounds of the first row, of a list or table, that contains a text. */
    static Rectangle row(Component view, String text) {
        List<String> lines = lines(view);
        for (int row = 0; row < lines.size(); row++) {
            if (lines.get(row).contains(text)) {
                return view instanceof JTable table ? table.getCellRect(row, 0, false)
                                                    : ((JList<?>) view).getCellBounds(row, row);
            }
        }
        throw new IllegalArgumentException("no row contains " + text + " in " + lines);
    }
}
