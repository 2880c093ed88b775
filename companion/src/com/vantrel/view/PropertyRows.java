package com.vantrel.view;

import java.util.Iterator;
import java.util.function.Supplier;

import javax.swing.SwingUtilities;

import com.vantrel.model.Edits;
import com.vantrel.model.Reading;
import com.vantrel.model.Row;

/** What can be done with rows that are properties: reading them on demand, and setting them. For the event thread. */
final class PropertyRows implements ValueEditor.Editing {
    private final RowsTable table;
    private final Supplier<Reading> reading;
    private final Edits edits;
    private final Runnable refresh;

    /**
     * @param reading what the rows come from; it gives null while nothing is selected
     * @param refresh shows what has been read
     */
    PropertyRows(RowsPanel panel, Supplier<Reading> reading, Edits edits, Runnable refresh) {
        table = panel.table();
        this.reading = reading;
        this.edits = edits;
        this.refresh = refresh;
        table.onActivate(this::activate);
        table.setDefaultEditor(Object.class, new ValueEditor(table, panel.model(), this));
    }

    private boolean activate(Row row) {
        Reading from = reading.get();
        if (from == null || row.property() == null) {
            return false;
        }
        if (row.isEditable() && row.check() != null) {
            set(row, !row.check());
            return true;
        }
        boolean onDemand = row.kind() == Row.Kind.ASK || row.kind() == Row.Kind.ERROR
                || row.property().askedBecause() != null && !row.isEditable();
        if (onDemand) {
            from.ask(row);
            refresh.run();
        }
        return onDemand;
    }

    /**
     * Reads all properties that are read on demand only, each in an event of its own, so that the program goes on in
     * between.
     */
    void askAll() {
        Reading from = reading.get();
        if (from != null) {
            askNext(from, from.unasked().iterator());
        }
    }

    private void askNext(Reading from, Iterator<Row> rest) {
        if (rest.hasNext() && from == reading.get()) {
            from.ask(rest.next());
            refresh.run();
            SwingUtilities.invokeLater(() -> askNext(from, rest));
        }
    }

    @Override
    public String text(Row row) {
        try {
            return reading.get().textToEdit(row);
        } catch (IllegalStateException e) {
            return row.value();
        }
    }

    @Override
    public String set(Row row, String text) {
        Reading from = reading.get();
        if (from == null || from.target().component() == null) {
            return "The component is gone.";
        }
        try {
            set(row, from.parse(row, text));
            return null;
        } catch (IllegalArgumentException | IllegalStateException e) {
            return e.getMessage();
        }
    }

    private void set(Row row, Object value) {
        Reading from = reading.get();
        if (from == null || from.target().component() == null) {
            return;
        }
        edits.set(from.target().component(), row.property(), value, wrong -> {
            if (row.property().askedBecause() != null) {
                from.ask(row);
            }
            refresh.run();
            if (wrong != null) {
                table.complain(row, wrong);
            }
        });
    }
}
