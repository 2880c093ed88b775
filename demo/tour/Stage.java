package tour;

import java.awt.Component;
import java.awt.Container;
import java.awt.Rectangle;
import java.awt.Window;
import java.util.concurrent.Callable;
import java.util.concurrent.FutureTask;

import javax.swing.JTabbedPane;
import javax.swing.JTable;
import javax.swing.SwingUtilities;

/** Finds components by their names, in the program's windows and the inspector's, and waits for them. */
final class Stage {
    private static final long MILLIS_OF_PATIENCE = 10_000;
    private static final long MILLIS_BETWEEN_LOOKS = 50;

    private Stage() {
    }

    /** Waits until a condition holds. If asking throws an exception, that counts as not yet. */
    static void waitFor(String what, Callable<Boolean> condition) throws Exception {
        long end = System.currentTimeMillis() + MILLIS_OF_PATIENCE;
        Exception last = null;
        while (System.currentTimeMillis() < end) {
            try {
                if (look(condition)) {
                    return;
                }
            } catch (Exception e) {
                last = e;
            }
            Thread.sleep(MILLIS_BETWEEN_LOOKS);
        }
        throw new IllegalStateException("in vain: " + what, last);
    }

    /** Runs a task on the event thread, and returns what it found. */
    static <T> T look(Callable<T> task) throws Exception {
        FutureTask<T> future = new FutureTask<>(task);
        SwingUtilities.invokeLater(future);
        return future.get();
    }

    /** The showing component with a name. */
    static Component find(String name) {
        for (Window window : Window.getWindows()) {
            Component found = window.isShowing() ? find(window, name) : null;
            if (found != null) {
                return found;
            }
        }
        throw new IllegalStateException("nothing is called " + name);
    }

    private static Component find(Component component, String name) {
        if (name.equals(component.getName()) && component.isShowing()) {
            return component;
        }
        if (component instanceof Container) {
            for (Component child : ((Container) component).getComponents()) {
                Component found = find(child, name);
                if (found != null) {
                    return found;
                }
            }
        }
        return null;
    }

    /** Where a component is on the screen. */
    static Rectangle where(String name) throws Exception {
        return look(() -> onScreen(find(name), null));
    }

    /** Where a tab is. */
    static Rectangle tab(String name, String title) throws Exception {
        return look(() -> {
            JTabbedPane tabs = (JTabbedPane) find(name);
            return onScreen(tabs, tabs.getBoundsAt(tabs.indexOfTab(title)));
        });
    }

    /** Where a cell of a table is. */
    static Rectangle cell(String name, int row, int column) throws Exception {
        return look(() -> {
            JTable table = (JTable) find(name);
            return onScreen(table, table.getCellRect(row, column, false));
        });
    }

    private static Rectangle onScreen(Component component, Rectangle part) {
        Rectangle place = part == null ? new Rectangle(component.getSize()) : new Rectangle(part);
        place.translate(component.getLocationOnScreen().x, component.getLocationOnScreen().y);
        return place;
    }
}
