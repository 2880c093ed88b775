package com.vantrel.model;

import java.awt.Color;
import java.awt.Component;
import java.awt.Dimension;
import java.awt.Insets;
import java.awt.Rectangle;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Objects;

import javax.swing.JComponent;

/**
 * The properties of one component or cell as they are now, read again and again. Holds the component weakly, and of its
 * values only their texts and copies of numbers and sizes. Belongs to the event thread, which it never holds for long:
 * a getter that takes its time is asked once, and from then on only when the user asks.
 */
public final class Reading {
    /** How long one refresh reads before it leaves the rest to the next one: half of what a user would feel. */
    private static final long MOST_NANOS = 40_000_000;

    /** The name under which {@link Patience} remembers a slow renderer of cells, as if it were a property. */
    private static final String RENDERER = "renderer";

    /** One property, and the line that was made of it last. */
    private static final class Slot {
        final Property property;
        Row row;
        /** Whether it has neither been read nor been found to be one that is not read unasked. */
        boolean untouched = true;
        /**
         * The value that the note was made for. Finding out where a value comes from takes longer than reading it, so
         * it is done only when the value has changed.
         */
        WeakReference<Object> notedValue = new WeakReference<>(null);
        Boolean notedSet;
        String note = "";

        Slot(Property property) {
            this.property = property;
            row = Row.of(property.group(), property.name(), "\u2026").kind(Row.Kind.WAITING);
        }
    }

    private final Target target;
    private final List<Slot> slots = new ArrayList<>();
    private final Map<String, Slot> clientProperties = new LinkedHashMap<>();
    private final Map<String, Object> plainValues = new HashMap<>();
    /** The class whose properties the slots are: a renderer may give a component of another class each time. */
    private Class<?> shape;
    private int next;
    private boolean askedForCell;

    public Reading(Target target) {
        this.target = target;
    }

    public Target target() {
        return target;
    }

    /** The lines as they were read last, in a lasting order. */
    public List<Row> rows() {
        List<Row> rows = new ArrayList<>();
        boolean client = false;
        for (Slot slot : slots) {
            // Client properties belong to no class, and stand before what the classes add.
            if (!client && !Catalog.isCommon(slot.property.group())) {
                addClientProperties(rows);
                client = true;
            }
            rows.add(slot.row);
        }
        if (!client) {
            addClientProperties(rows);
        }
        return rows;
    }

    private void addClientProperties(List<Row> rows) {
        for (Slot slot : clientProperties.values()) {
            rows.add(slot.row);
        }
    }

    /** The line of a property of the groups that all components have; null if there is none. */
    public Row row(String name) {
        for (Slot slot : slots) {
            if (slot.property.name().equals(name) && Catalog.isCommon(slot.property.group())) {
                return slot.row;
            }
        }
        return null;
    }

    /** The value of a size, rectangle, insets or number, as it was read last; null if it was not. */
    public Object plainValue(String name) {
        return plainValues.get(name);
    }

    /**
     * Reads what may be read unasked, for a few dozen milliseconds unless a single getter takes longer. The next call
     * goes on where this one ended.
     *
     * @return whether the component is still there
     */
    public boolean refresh() {
        Component component = component();
        if (component == null) {
            return target.component() != null;
        }
        if (shape != component.getClass()) {
            shape(component);
        }
        long end = System.nanoTime() + MOST_NANOS;
        for (int done = 0; done < slots.size() && System.nanoTime() < end; done++) {
            next = (next + 1) % slots.size();
            Slot slot = slots.get(next);
            boolean slow = Patience.isLost(shape, slot.property.name());
            if (slot.property.askedBecause() == null && !slow) {
                read(slot, component, false);
            } else if (slot.untouched) {
                slot.untouched = false;
                slot.row = unread(slot.property);
            }
        }
        if (component instanceof JComponent) {
            readClientProperties((JComponent) component);
        }
        return true;
    }

    /** Reads one property, because the user asks for it. */
    public void ask(Row row) {
        askedForCell = true;
        Component component = component();
        for (Slot slot : slots) {
            if (component != null && slot.property == row.property()) {
                read(slot, component, true);
            }
        }
        askedForCell = false;
    }

    /**
     * The value of a line as text to edit: all of it, while the line may show less.
     *
     * @throws IllegalStateException if it cannot be read any more
     */
    public String textToEdit(Row row) {
        return row.property().format().write(valueOf(row));
    }

    /**
     * Makes a line's new value from a text that the user has typed.
     *
     * @throws IllegalArgumentException whose message says what is wrong and what to type
     * @throws IllegalStateException    if the line's value cannot be read any more
     */
    public Object parse(Row row, String text) {
        return row.property().format().parse(text, valueOf(row));
    }

    private Object valueOf(Row row) {
        try {
            Component component = target.component();
            return component == null ? null : row.property().read(component);
        } catch (Throwable thrown) {
            throw new IllegalStateException(Values.error(thrown), thrown);
        }
    }

    /** Whether everything that is read unasked has been read; if not, the next refresh goes on. */
    public boolean isComplete() {
        for (Slot slot : slots) {
            if (slot.untouched) {
                return false;
            }
        }
        return true;
    }

    /** Where in its owner the cell is; null for a component, or if there is no such cell any more. */
    public Rectangle cellBounds() {
        return target.isCell() ? Cells.bounds(target) : null;
    }

    /**
     * The lines that are read on demand only. The caller asks for one at a time, so that the program can go on in
     * between.
     */
    public List<Row> unasked() {
        List<Row> unasked = new ArrayList<>();
        for (Slot slot : slots) {
            if (slot.row.kind() == Row.Kind.ASK) {
                unasked.add(slot.row);
            }
        }
        return unasked;
    }

    /** What is read: the component, or the one that paints the cell, which must not be held. */
    private Component component() {
        Component owner = target.component();
        if (!target.isCell() || owner == null) {
            return owner;
        }
        if (!askedForCell && Patience.isLost(owner.getClass(), RENDERER)) {
            return null;
        }
        long start = System.nanoTime();
        Component prepared = Cells.prepare(target);
        Patience.took(owner.getClass(), RENDERER, System.nanoTime() - start);
        return prepared;
    }

    private void shape(Component component) {
        shape = component.getClass();
        slots.clear();
        next = -1;
        for (Property property : Catalog.of(component)) {
            slots.add(new Slot(property));
        }
    }

    private void read(Slot slot, Component component, boolean asked) {
        Property property = slot.property;
        long start = System.nanoTime();
        Row row;
        try {
            Object value = property.read(component);
            keepPlain(property.name(), value);
            row = row(slot, component, value);
        } catch (Throwable thrown) {
            row = Row.of(property.group(), property.name(), Values.error(thrown))
                          .kind(Row.Kind.ERROR)
                          .type(property.type().getName())
                          .property(property);
        }
        long nanos = System.nanoTime() - start;
        boolean slow = Patience.took(component.getClass(), property.name(), nanos);
        if (slow || asked && property.askedBecause() != null) {
            row.note(slow ? "took " + nanos / 1_000_000 + " ms" : "read once")
                    .explanation("It is read only when you ask: Enter reads it again.");
        }
        slot.row = row;
        slot.untouched = false;
    }

    private Row row(Slot slot, Component component, Object value) {
        Property property = slot.property;
        String text = value != null && property.format() != null ? Values.cut(property.format().write(value))
                                                                 : Values.text(value);
        if (text.isEmpty() && !(value instanceof String)) {
            text = Values.text(value); // an object that can only be replaced by what is typed
        }
        Row row = Row.of(property.group(), property.name(), text);
        row.type(value == null ? property.type().getName() : value.getClass().getName());
        boolean whole = !(value instanceof String) || ((String) value).length() <= Values.LONGEST;
        if (whole && !target.isCell()) {
            row.property(property);
        }
        if (value == null) {
            row.kind(Row.Kind.DIM);
        } else if (value instanceof Color) {
            row.swatch(new Color(((Color) value).getRGB(), true));
        } else if (value instanceof Boolean) {
            row.check((Boolean) value);
        }
        row.programs(isPrograms(value));
        row.note(note(slot, component, value));
        return row;
    }

    private static boolean isPrograms(Object value) {
        if (value == null) {
            return false;
        }
        return !Code.isMachinery(value instanceof Class ? (Class<?>) value : value.getClass());
    }

    private String note(Slot slot, Component component, Object value) {
        String size = sizeNote(slot.property.name(), component);
        if (size != null) {
            return size;
        }
        if (slot.property.group().equals(Catalog.IDENTITY) || slot.property.group().equals(Catalog.GEOMETRY)) {
            return "";
        }
        Boolean set = Origin.isSet(component, slot.property.name());
        if (slot.notedValue.get() != value || !Objects.equals(slot.notedSet, set)) {
            slot.note = Origin.of(component, slot.property.name(), value);
            slot.notedValue = new WeakReference<>(value);
            slot.notedSet = set;
        }
        return slot.note;
    }

    private static String sizeNote(String property, Component component) {
        switch (property) {
            case "minimumSize":
                return component.isMinimumSizeSet() ? "set" : "computed";
            case "preferredSize":
                return component.isPreferredSizeSet() ? "set" : "computed";
            case "maximumSize":
                return component.isMaximumSizeSet() ? "set" : "computed";
            default:
                return null;
        }
    }

    private static Row unread(Property property) {
        boolean slow = property.askedBecause() == null;
        String why = slow ? "It took long when it was read last." : property.askedBecause();
        return Row.of(property.group(), property.name(), "read")
                .kind(Row.Kind.ASK)
                .type(property.type().getName())
                .property(property)
                .note(slow ? "slow" : "on demand")
                .explanation(why + " Enter reads it.");
    }

    private void keepPlain(String name, Object value) {
        if (value instanceof Dimension) {
            plainValues.put(name, new Dimension((Dimension) value));
        } else if (value instanceof Rectangle) {
            plainValues.put(name, new Rectangle((Rectangle) value));
        } else if (value instanceof Insets) {
            plainValues.put(name, ((Insets) value).clone());
        } else if (value instanceof Integer) {
            plainValues.put(name, value);
        } else {
            plainValues.remove(name);
        }
    }

    /** Reads all client properties anew, for their keys come and go. */
    private void readClientProperties(JComponent component) {
        Map<String, Slot> now = new LinkedHashMap<>();
        try {
            for (Object key : ClientProperties.keys(component)) {
                String name = Values.text(key);
                Slot slot = clientProperties.get(name);
                Object value = component.getClientProperty(key);
                if (slot == null || slot.property.type() != (value == null ? Object.class : value.getClass())) {
                    slot = new Slot(clientProperty(key, name, value));
                }
                slot.row = row(slot, component, value);
                now.put(name, slot);
            }
        } catch (Throwable thrown) {
            Slot failed = new Slot(new Property(Catalog.CLIENT_PROPERTIES, "keys", Object.class, on -> null));
            failed.row = Row.of(Catalog.CLIENT_PROPERTIES, "keys", Values.error(thrown)).kind(Row.Kind.ERROR);
            now.put("keys", failed);
        }
        clientProperties.clear();
        clientProperties.putAll(now);
        if (!ClientProperties.areAllSeen()) {
            Slot more = new Slot(new Property(Catalog.CLIENT_PROPERTIES, "others", Object.class, on -> null));
            more.row = Row.of(Catalog.CLIENT_PROPERTIES, "others", "not seen")
                               .kind(Row.Kind.DIM)
                               .explanation("This Java VM shows client properties only to those who know the key.");
            clientProperties.put("others", more);
        }
    }

    private static Property clientProperty(Object key, String name, Object value) {
        Class<?> type = value == null ? Object.class : value.getClass();
        // A key that is an object of the program's is not to be held.
        if (!(key instanceof String)) {
            return new Property(Catalog.CLIENT_PROPERTIES, name, type, on -> null);
        }
        Property property =
                new Property(Catalog.CLIENT_PROPERTIES, name, type, on -> ((JComponent) on).getClientProperty(key));
        return property.settable((on, to) -> ((JComponent) on).putClientProperty(key, to), Formats.of(type));
    }
}
