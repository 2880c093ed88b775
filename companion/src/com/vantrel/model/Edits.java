package com.vantrel.model;

import java.awt.Component;
import java.lang.ref.WeakReference;
import java.util.ArrayDeque;
import java.util.ArrayList;
import java.util.Deque;
import java.util.Iterator;
import java.util.List;
import java.util.function.BiConsumer;
import java.util.function.Consumer;

import javax.swing.border.CompoundBorder;
import javax.swing.border.TitledBorder;

/**
 * Changes properties of the program's components for the user, and undoes and redoes those changes: by the component's
 * own setter, on the component's event thread. To be called on the inspector's event thread. Holds components weakly.
 */
public final class Edits {
    private static final int MOST_REMEMBERED = 200;

    /** One change, which has been made. */
    private static final class Edit {
        final WeakReference<Component> component;
        final String what;
        final Property property;
        final Object before;
        final Object after;

        Edit(Component component, Property property, Object before, Object after) {
            this.component = new WeakReference<>(component);
            this.what = property.name() + " of " + Code.describe(component);
            this.property = property;
            this.before = before;
            this.after = after;
        }

        /**
         * Whether it is to be forgotten: its component has been collected, or is in no window any more while a value of
         * a class of the program's could keep it from being collected.
         */
        boolean isGone() {
            Component at = component.get();
            return at == null || !at.isDisplayable() && (mayHoldComponents(before) || mayHoldComponents(after));
        }

        private static boolean mayHoldComponents(Object value) {
            if (value instanceof TitledBorder) {
                return mayHoldComponents(((TitledBorder) value).getBorder());
            }
            if (value instanceof CompoundBorder) {
                return mayHoldComponents(((CompoundBorder) value).getInsideBorder())
                        || mayHoldComponents(((CompoundBorder) value).getOutsideBorder());
            }
            return value != null && !Code.isToolkit(value.getClass());
        }
    }

    private final BiConsumer<Component, Runnable> there;
    private final Consumer<Runnable> here;
    private final Deque<Edit> done = new ArrayDeque<>();
    private final Deque<Edit> undone = new ArrayDeque<>();
    private final List<Runnable> listeners = new ArrayList<>();
    private Consumer<String> complaints = message -> {};

    /**
     * @param there runs a task on the event thread of a component
     * @param here  runs a task on the inspector's event thread
     */
    public Edits(BiConsumer<Component, Runnable> there, Consumer<Runnable> here) {
        this.there = there;
        this.here = here;
    }

    /** Has a task run whenever something has been changed, undone or done again, for as long as this object lives. */
    public void onChange(Runnable listener) {
        listeners.add(listener);
    }

    /** Sets who is told, in a sentence, when an undo or redo fails. */
    public void onComplaint(Consumer<String> listener) {
        complaints = listener;
    }

    /**
     * Sets a property of a component. Returns before it has been set.
     *
     * @param value of the property's type; null for none
     * @param told  is told on the inspector's event thread: null once it is set, or in a sentence why it is not
     */
    public void set(Component component, Property property, Object value, Consumer<String> told) {
        write(component, property, value, true, (before, message) -> {
            if (message == null) {
                done.push(new Edit(component, property, before, value));
                if (done.size() > MOST_REMEMBERED) {
                    done.removeLast();
                }
                undone.clear();
                tell();
            }
            told.accept(message);
        });
    }

    public boolean canUndo() {
        forgetGone();
        return !done.isEmpty();
    }

    public boolean canRedo() {
        forgetGone();
        return !undone.isEmpty();
    }

    /** What an undo would undo, in a few words; empty for nothing. */
    public String whatToUndo() {
        return canUndo() ? done.peek().what : "";
    }

    /** What a redo would do again, in a few words; empty for nothing. */
    public String whatToRedo() {
        return canRedo() ? undone.peek().what : "";
    }

    /** Puts back the value that was there before the last change. Does nothing if there is none. */
    public void undo() {
        if (canUndo()) {
            move(done.pop(), true);
        }
    }

    /** Makes the change again that was undone last. Does nothing if there is none. */
    public void redo() {
        if (canRedo()) {
            move(undone.pop(), false);
        }
    }

    private void move(Edit edit, boolean back) {
        Component component = edit.component.get();
        if (component == null) {
            return;
        }
        write(component, edit.property, back ? edit.before : edit.after, false, (before, message) -> {
            if (message == null) {
                (back ? undone : done).push(edit);
            } else {
                (back ? done : undone).push(edit);
                complaints.accept("The " + edit.what + " cannot be set back: " + message);
            }
            tell();
        });
    }

    /** Forgets the changes whose components are gone, and those that could keep theirs from being collected. */
    public void forgetGone() {
        forgetGone(done.iterator());
        forgetGone(undone.iterator());
    }

    private static void forgetGone(Iterator<Edit> edits) {
        while (edits.hasNext()) {
            if (edits.next().isGone()) {
                edits.remove();
            }
        }
    }

    /** Forgets all changes: the window is being closed. What was changed stays so. */
    public void clear() {
        done.clear();
        undone.clear();
        tell();
    }

    private void tell() {
        for (Runnable listener : listeners) {
            listener.run();
        }
    }

    private void write(
            Component component, Property property, Object value, boolean read, BiConsumer<Object, String> told) {
        there.accept(component, () -> {
            Object before = null;
            String message = null;
            try {
                before = read ? property.readStored(component) : null;
                write(component, property, value, before, read);
            } catch (Throwable thrown) {
                message = "The component refuses it: " + Values.error(thrown) + ".";
            }
            Object was = before;
            String said = message;
            here.accept(() -> told.accept(was, said));
        });
    }

    private static void write(Component component, Property property, Object value, Object before, boolean restore)
            throws Throwable {
        try {
            property.write(component, value);
        } catch (Throwable thrown) {
            // The setter may have stored the value before a listener of the program threw.
            if (restore) {
                try {
                    property.write(component, before);
                } catch (Throwable again) {
                    thrown.addSuppressed(again);
                }
            }
            throw thrown;
        }
        if (Catalog.needsLayout(property)) {
            component.revalidate();
        }
        component.repaint();
    }
}
