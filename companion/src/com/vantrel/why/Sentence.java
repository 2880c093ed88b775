package com.vantrel.why;

import java.awt.Component;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

import com.vantrel.model.Description;

/**
 * A sentence that says why, as text and in parts: a part may stand for a component or a line of the program, so that
 * whoever shows it can lead there. Holds components weakly. Does not change.
 */
public final class Sentence {
    /** Some words of a sentence. */
    public static final class Part {
        private final String text;
        private final WeakReference<Component> component;
        private final StackTraceElement line;

        private Part(String text, Component component, StackTraceElement line) {
            this.text = text;
            this.component = new WeakReference<>(component);
            this.line = line;
        }

        public String text() {
            return text;
        }

        /** The component that the words stand for; null for none, or if it has been collected. */
        public Component component() {
            return component.get();
        }

        /** The line of the program that the words stand for; null for none. */
        public StackTraceElement line() {
            return line;
        }
    }

    private final List<Part> parts = new ArrayList<>();

    private Sentence() {
    }

    /**
     * Makes a sentence of its parts, in their order.
     *
     * @param parts components, which are told by their short path, {@link Who}, arrays of such parts, and other
     *         objects,
     *              which are told by their own text
     */
    static Sentence of(Object... parts) {
        Sentence sentence = new Sentence();
        sentence.add(parts);
        return sentence;
    }

    private void add(Object[] more) {
        for (Object part : more) {
            if (part instanceof Object[]) {
                add((Object[]) part);
            } else if (part instanceof Component) {
                Component component = (Component) part;
                parts.add(new Part(Description.shortPath(component), component, null));
            } else if (part instanceof Who) {
                parts.add(new Part(part.toString(), null, ((Who) part).line()));
            } else {
                parts.add(new Part(String.valueOf(part), null, null));
            }
        }
    }

    public List<Part> parts() {
        return Collections.unmodifiableList(parts);
    }

    /** The whole sentence. */
    @Override
    public String toString() {
        StringBuilder text = new StringBuilder();
        for (Part part : parts) {
            text.append(part.text);
        }
        return text.toString();
    }
}
