package com.vantrel.model;

import java.awt.Color;
import java.util.Objects;

/**
 * One line of what the inspector tells of a component: a name, a value, and a note on where the value comes from.
 * Holds texts, and nothing of the program. Does not change once it has been handed out.
 */
public final class Row {
    /** How a value is meant. */
    public enum Kind {
        PLAIN,
        /** There but of no consequence: null, a default, what does not apply. */
        DIM,
        /** What was thrown when the value was asked for. */
        ERROR,
        /** Not asked for yet: asking runs code of the program. */
        ASK,
        /** Not read yet, but about to be. */
        WAITING
    }

    private final String group;
    private final String name;
    private final String value;
    private Kind kind = Kind.PLAIN;
    private String note = "";
    private String explanation = "";
    private String type = "";
    private boolean programs;
    private Color swatch;
    private Boolean check;
    private Property property;
    private boolean folded;
    private SetBy setBy;

    private Row(String group, String name, String value) {
        this.group = group;
        this.name = name;
        this.value = value;
    }

    /** A line that is to be completed, by the methods that give it back, before it is handed out. */
    public static Row of(String group, String name, String value) {
        return new Row(group, name, value == null ? "" : value);
    }

    /** The same line in another group. */
    Row in(String other) {
        Row row = new Row(other, name, value);
        row.kind = kind;
        row.note = note;
        row.explanation = explanation;
        row.type = type;
        row.programs = programs;
        row.swatch = swatch;
        row.check = check;
        row.property = property;
        row.folded = folded;
        row.setBy = setBy;
        return row;
    }

    public Row kind(Kind it) {
        kind = it;
        return this;
    }

    public Row note(String it) {
        note = it == null ? "" : it;
        return this;
    }

    public Row explanation(String it) {
        explanation = it == null ? "" : it;
        return this;
    }

    Row type(String it) {
        type = it;
        return this;
    }

    public Row programs(boolean it) {
        programs = it;
        return this;
    }

    Row swatch(Color it) {
        swatch = it;
        return this;
    }

    Row check(Boolean it) {
        check = it;
        return this;
    }

    /** Has the group that it is in shown folded, until the user unfolds it. */
    Row folded() {
        folded = true;
        return this;
    }

    Row property(Property it) {
        property = it;
        return this;
    }

    /** The same line, with who has set the value; null if that is not known. */
    public Row setBy(SetBy who) {
        Row row = in(group);
        row.setBy = who;
        return row;
    }

    /** Who has set the value; null if that is not known. */
    public SetBy setBy() {
        return setBy;
    }

    public String group() {
        return group;
    }

    public String name() {
        return name;
    }

    public String value() {
        return value;
    }

    public Kind kind() {
        return kind;
    }

    /** Where the value comes from, in a word or a key; empty where that is not known. */
    public String note() {
        return note;
    }

    /** More than a cell has room for: why a value is not read unasked, what a text may look like. Often empty. */
    public String explanation() {
        return explanation;
    }

    /** The full name of the value's type; empty where that says nothing. */
    public String type() {
        return type;
    }

    /** Whether the line stands for something of the program's own, as against the toolkit's. */
    public boolean isPrograms() {
        return programs;
    }

    /** The colour that the value is; null for anything else. */
    public Color swatch() {
        return swatch;
    }

    /** The value of a line that is ticked or not; null for all others. */
    public Boolean check() {
        return check;
    }

    /** The property that the line shows, which can be read and perhaps set; null if it shows something else. */
    public Property property() {
        return property;
    }

    /** Whether the group that it is in is of little interest, and shown folded. */
    public boolean isFolded() {
        return folded;
    }

    public boolean isEditable() {
        return property != null && property.isEditable() && (kind == Kind.PLAIN || kind == Kind.DIM);
    }

    /** Whether two lines stand for the same thing, whatever its value. */
    public boolean isAbout(Row other) {
        return name.equals(other.name) && group.equals(other.group);
    }

    /** Whether two lines look the same. */
    public boolean isSameAs(Row other) {
        return isAbout(other) && saysSame(other) && note.equals(other.note) && type.equals(other.type)
                && programs == other.programs && explanation.equals(other.explanation)
                && isEditable() == other.isEditable() && Objects.equals(setBy, other.setBy);
    }

    /** Whether the value is the same, whatever is noted of it. */
    public boolean saysSame(Row other) {
        return value.equals(other.value) && kind == other.kind && Objects.equals(swatch, other.swatch);
    }

    /** Where the value comes from: who has set it, as far as that is known, and the note. */
    public String source() {
        String place = setBy == null ? "" : setBy.place();
        return place.isEmpty() || note.isEmpty() ? place + note : place + " \u00b7 " + note;
    }

    /** The line as text to paste: name, value and where it comes from. */
    @Override
    public String toString() {
        return name + ": " + value + (source().isEmpty() ? "" : "  (" + source() + ")");
    }
}
