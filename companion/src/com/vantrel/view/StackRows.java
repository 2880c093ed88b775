package com.vantrel.view;

import java.util.ArrayList;
import java.util.Collections;
import java.util.HashSet;
import java.util.List;
import java.util.Set;

import javax.swing.AbstractListModel;

import com.vantrel.model.CallSite;
import com.vantrel.model.CallStack;
import com.vantrel.model.CallStack.Kind;
import com.vantrel.model.CallStack.Part;

/**
 * A stack as rows of a list: its lines, and folds, each of which has a row as its head and can be opened. Belongs to
 * the event thread.
 */
final class StackRows extends AbstractListModel<StackRows.Row> {
    private static final long serialVersionUID = 1L;

    /** A row: a line of the stack, or the head of a fold. */
    static final class Row {
        private final Part part;
        private final StackTraceElement line;
        private final boolean isWhere;

        private Row(Part part, StackTraceElement line, boolean isWhere) {
            this.part = part;
            this.line = line;
            this.isWhere = isWhere;
        }

        /** The line; null for the head of a fold. */
        StackTraceElement line() {
            return line;
        }

        /** The line, or all that a fold holds. */
        List<StackTraceElement> lines() {
            return line == null ? part.lines() : Collections.singletonList(line);
        }

        /** Whether this is the program's innermost line. */
        boolean isWhere() {
            return isWhere;
        }

        boolean isProgram() {
            return line != null && CallSite.isProgram(line);
        }

        /** Whether the row is in a fold. */
        boolean isFolded() {
            return line != null && isFold(part);
        }

        /** What the list searches when the user types, and what a screen reader says. */
        @Override
        public String toString() {
            return line == null ? summary(part) : CallSite.summary(line);
        }
    }

    private final transient Set<Part> open = new HashSet<>();
    private transient List<Part> parts = new ArrayList<>();
    private transient List<Row> rows = new ArrayList<>();
    private transient StackTraceElement where;

    /** Shows another stack, with all folds closed. */
    void show(CallStack stack) {
        open.clear();
        parts = stack.parts();
        where = stack.where();
        rebuild();
    }

    /** The row of the program's innermost line; -1 if there is none. */
    int whereRow() {
        for (int at = 0; at < rows.size(); at++) {
            if (rows.get(at).isWhere) {
                return at;
            }
        }
        return -1;
    }

    boolean isOpen(Row head) {
        return open.contains(head.part);
    }

    /** Opens or closes the fold that a row is the head of, or in; returns the head's row, -1 if there is no fold. */
    int setOpen(Row row, boolean isOpen) {
        if (!isFold(row.part)) {
            return -1;
        }
        boolean isChange = isOpen ? open.add(row.part) : open.remove(row.part);
        if (isChange) {
            rebuild();
        }
        for (int at = 0; at < rows.size(); at++) {
            if (rows.get(at).part == row.part) {
                return at;
            }
        }
        return -1;
    }

    private void rebuild() {
        int before = rows.size();
        rows = new ArrayList<>();
        boolean isWhereSeen = false;
        for (Part part : parts) {
            if (isFold(part)) {
                rows.add(new Row(part, null, false));
            }
            if (!isFold(part) || open.contains(part)) {
                for (StackTraceElement line : part.lines()) {
                    boolean isWhere = !isWhereSeen && line == where;
                    isWhereSeen |= isWhere;
                    rows.add(new Row(part, line, isWhere));
                }
            }
        }
        if (before > 0) {
            fireIntervalRemoved(this, 0, before - 1);
        }
        if (!rows.isEmpty()) {
            fireIntervalAdded(this, 0, rows.size() - 1);
        }
    }

    private static boolean isFold(Part part) {
        return part.kind() == Kind.REPEAT || part.lines().size() > 1;
    }

    private static String summary(Part part) {
        if (part.kind() == Kind.REPEAT) {
            return "the same calls " + (part.times() == 1 ? "once" : part.times() + " times") + " more";
        }
        List<String> packages = new ArrayList<>();
        for (StackTraceElement line : part.lines()) {
            String name = CallSite.packageName(line);
            if (!packages.contains(name)) {
                packages.add(name);
            }
        }
        return part.lines().size() + " calls in " + String.join(", ", packages);
    }

    @Override
    public int getSize() {
        return rows.size();
    }

    @Override
    public Row getElementAt(int index) {
        return rows.get(index);
    }
}
