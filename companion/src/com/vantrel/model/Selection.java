package com.vantrel.model;

import java.awt.Component;
import java.util.ArrayList;
import java.util.List;

/**
 * What is selected in the inspector, and what was selected before. All parts of the window share one. Belongs to the
 * inspector's event thread. Holds nothing of the program strongly; the history leaves out what has been collected.
 */
public final class Selection {
    private static final int MOST_REMEMBERED = 100;

    private final List<Target> history = new ArrayList<>();
    private final List<Runnable> listeners = new ArrayList<>();
    /** Where in the history the selection is; -1 while nothing is selected. */
    private int at = -1;

    /** What is selected; null for nothing, or if it has been collected meanwhile. */
    public Target target() {
        Target target = at < 0 ? null : history.get(at);
        return target == null || target.component() == null ? null : target;
    }

    /** The selected component, or the owner of the selected cell; null for nothing. */
    public Component component() {
        Target target = target();
        return target == null ? null : target.component();
    }

    /** Whether something is selected that has been collected meanwhile. */
    public boolean hasLost() {
        return at >= 0 && history.get(at).component() == null;
    }

    /** Selects a component; null for none. Listeners hear of it if that changes what is selected. */
    public void select(Component component) {
        select(component == null ? null : Target.of(component));
    }

    /** Selects a target; null for none. Forgets what {@link #forward} would have led to. */
    public void select(Target target) {
        if (target == null) {
            if (at >= 0) {
                at = -1;
                tell();
            }
            return;
        }
        if (target.isSameAs(target())) {
            return;
        }
        if (at >= 0) {
            history.subList(at + 1, history.size()).clear();
        }
        history.removeIf(past -> past.component() == null);
        history.add(target);
        if (history.size() > MOST_REMEMBERED) {
            history.remove(0);
        }
        at = history.size() - 1;
        tell();
    }

    public boolean canGoBack() {
        return step(-1) >= 0;
    }

    public boolean canGoForward() {
        return step(1) >= 0;
    }

    /** Selects what was selected before. Does nothing where there is no such thing any more. */
    public void back() {
        go(step(-1));
    }

    public void forward() {
        go(step(1));
    }

    /** The next entry in a direction whose component is still there; -1 if there is none. */
    private int step(int direction) {
        for (int i = at + direction; at >= 0 && i >= 0 && i < history.size(); i += direction) {
            if (history.get(i).component() != null) {
                return i;
            }
        }
        return -1;
    }

    private void go(int entry) {
        if (entry >= 0) {
            at = entry;
            tell();
        }
    }

    /** Has a task run whenever the selection has changed, for as long as this object lives. */
    public void onChange(Runnable listener) {
        listeners.add(listener);
    }

    /** Forgets everything but the listeners: the window is being closed. */
    public void clear() {
        history.clear();
        at = -1;
        tell();
    }

    private void tell() {
        for (Runnable listener : listeners) {
            listener.run();
        }
    }
}
