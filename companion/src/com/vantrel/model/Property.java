package com.vantrel.model;

import java.awt.Component;

/**
 * A property of a class of components: how it is read, how it is set if it can be, and whether it may be read unasked.
 * Holds no component.
 */
public final class Property {
    /** Reads a value off a component, or throws whatever the component throws. */
    interface Get {
        Object from(Component component) throws Throwable;
    }

    /** Sets a value on a component, or throws whatever the component throws. */
    interface Set {
        void on(Component component, Object value) throws Throwable;
    }

    private final String group;
    private final String name;
    private final Class<?> type;
    private final Get get;
    private Get stored;
    private Set set;
    private Format format;
    private String askedBecause;

    Property(String group, String name, Class<?> type, Get get) {
        this.group = group;
        this.name = name;
        this.type = type;
        this.get = get;
        stored = get;
    }

    /** Makes it editable. */
    Property settable(Set how, Format as) {
        set = how;
        format = as;
        return this;
    }

    /**
     * For a value that may be inherited or computed: how to read the component's own, which is null if it has none.
     */
    Property stored(Get how) {
        stored = how;
        return this;
    }

    /** Has it read on demand only. */
    Property asked(String because) {
        askedBecause = because;
        return this;
    }

    public String group() {
        return group;
    }

    public String name() {
        return name;
    }

    public Class<?> type() {
        return type;
    }

    public boolean isEditable() {
        return set != null && format != null;
    }

    /** How its values are written; null where it cannot be edited. */
    public Format format() {
        return format;
    }

    /** Why it is read on demand only; null for one that is read unasked. */
    public String askedBecause() {
        return askedBecause;
    }

    Object read(Component component) throws Throwable {
        return get.from(component);
    }

    /** The value that an undo has to put back. */
    Object readStored(Component component) throws Throwable {
        return stored.from(component);
    }

    void write(Component component, Object value) throws Throwable {
        set.on(component, value);
    }
}
