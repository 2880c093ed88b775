package com.vantrel.view;

import java.util.ArrayList;
import java.util.Collections;
import java.util.HashMap;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;

import javax.swing.table.AbstractTableModel;

import com.vantrel.model.Row;

/**
 * Rows in groups, as lines of a table: a line for each group, and below it, unless it is folded, the rows of the group
 * that pass the filter. Rows whose values change are remembered for a moment, so that they can flash. Belongs to the
 * event thread.
 */
final class RowsModel extends AbstractTableModel {
    private static final long serialVersionUID = 1L;

    static final int NAME = 0;
    static final int VALUE = 1;
    static final int NOTE = 2;

    private static final long FLASH_NANOS = 1_200_000_000L;

    /** A group's title, or a row. */
    private static final class Line {
        final String group;
        final Row row;
        final int count;

        Line(String group, Row row, int count) {
            this.group = group;
            this.row = row;
            this.count = count;
        }

        boolean isAbout(Line other) {
            return row == null ? other.row == null && group.equals(other.group)
                               : other.row != null && row.isAbout(other.row);
        }

        boolean isSameAs(Line other) {
            return row == null ? count == other.count : row.isSameAs(other.row);
        }

        String key() {
            return row == null ? group : group + '\n' + row.name();
        }
    }

    private transient List<Row> rows = Collections.emptyList();
    private transient List<Line> lines = Collections.emptyList();
    private String filter = "";
    /** Whether the user has opened or folded a group, by its name. The rows decide about groups that are not here. */
    private final Map<String, Boolean> open = new HashMap<>();
    private final Map<String, Long> changedAt = new HashMap<>();

    /**
     * Shows rows, in the place of those that are there. If they are about the same things, the lines stay and only
     * values change.
     *
     * @param flash whether rows whose values have changed are to flash
     * @return whether the lines have changed, and not only values
     */
    boolean show(List<Row> now, boolean flash) {
        rows = now;
        List<Line> before = lines;
        lines = lines();
        if (!flash) {
            changedAt.clear();
        }
        boolean moved = before.size() != lines.size();
        for (int i = 0; i < lines.size() && !moved; i++) {
            moved = !lines.get(i).isAbout(before.get(i));
        }
        if (moved) {
            fireTableDataChanged();
            return true;
        }
        for (int i = 0; i < lines.size(); i++) {
            Line line = lines.get(i);
            if (!line.isSameAs(before.get(i))) {
                if (flash && line.row != null && !line.row.saysSame(before.get(i).row)
                        && before.get(i).row.kind() != Row.Kind.ASK && before.get(i).row.kind() != Row.Kind.WAITING) {
                    changedAt.put(line.key(), System.nanoTime());
                }
                fireTableRowsUpdated(i, i);
            }
        }
        return false;
    }

    /** Shows only the rows that contain every word of a text; for an empty text, all rows. */
    void filter(String text) {
        filter = text.trim().toLowerCase(Locale.ROOT);
        lines = lines();
        fireTableDataChanged();
    }

    boolean isFiltered() {
        return !filter.isEmpty();
    }

    private List<Line> lines() {
        Map<String, List<Row>> groups = new LinkedHashMap<>();
        for (Row row : rows) {
            if (passes(row)) {
                groups.computeIfAbsent(row.group(), key -> new ArrayList<>()).add(row);
            }
        }
        List<Line> made = new ArrayList<>();
        for (Map.Entry<String, List<Row>> group : groups.entrySet()) {
            made.add(new Line(group.getKey(), null, group.getValue().size()));
            if (isOpen(group.getKey())) {
                for (Row row : group.getValue()) {
                    made.add(new Line(group.getKey(), row, 0));
                }
            }
        }
        return made;
    }

    private boolean passes(Row row) {
        if (filter.isEmpty()) {
            return true;
        }
        String text =
                (row.group() + ' ' + row.name() + ' ' + row.value() + ' ' + row.source()).toLowerCase(Locale.ROOT);
        for (String word : filter.split("\\s+")) {
            if (!text.contains(word)) {
                return false;
            }
        }
        return true;
    }

    /** Whether a group's rows are shown. While there is a filter, all groups are open. */
    boolean isOpen(String group) {
        if (isFiltered()) {
            return true;
        }
        Boolean users = open.get(group);
        if (users != null) {
            return users;
        }
        for (Row row : rows) {
            if (row.group().equals(group) && row.isFolded()) {
                return false;
            }
        }
        return true;
    }

    void setOpen(String group, boolean is) {
        open.put(group, is);
        lines = lines();
        fireTableDataChanged();
    }

    /** The row of a line; null for a group's title. */
    Row row(int line) {
        return line < 0 || line >= lines.size() ? null : lines.get(line).row;
    }

    /** The group that a line belongs to, or is the title of. */
    String group(int line) {
        return lines.get(line).group;
    }

    int countIn(int line) {
        return lines.get(line).count;
    }

    /** Identifies a line, whatever its value; null if there is no such line. */
    String key(int line) {
        return line < 0 || line >= lines.size() ? null : lines.get(line).key();
    }

    /** The line that a key identifies; if its group is folded, the group's title; -1 if there is neither. */
    int line(String key) {
        for (int i = 0; key != null && i < lines.size(); i++) {
            if (lines.get(i).key().equals(key)) {
                return i;
            }
        }
        return key != null && key.indexOf('\n') >= 0 ? line(key.substring(0, key.indexOf('\n'))) : -1;
    }

    /** How strongly a line flashes: from 1, when it has just changed, to 0. */
    double flash(int line) {
        Long at = changedAt.get(key(line));
        return at == null ? 0 : Math.max(0, 1 - (double) (System.nanoTime() - at) / FLASH_NANOS);
    }

    /** Whether a line flashes, or has just ceased to, so that it must be painted once more. */
    boolean isFlashing() {
        boolean any = !changedAt.isEmpty();
        changedAt.values().removeIf(at -> System.nanoTime() - at > FLASH_NANOS);
        return any;
    }

    @Override
    public int getRowCount() {
        return lines.size();
    }

    @Override
    public int getColumnCount() {
        return 3;
    }

    @Override
    public Object getValueAt(int line, int column) {
        Row row = row(line);
        if (row == null) {
            return column == NAME ? group(line) : "";
        }
        return column == NAME ? row.name() : column == VALUE ? row.value() : row.source();
    }

    /**
     * There is no setValueAt: an editor sets the property itself, and the value that is shown then is read from the
     * component.
     */
    @Override
    public boolean isCellEditable(int line, int column) {
        Row row = row(line);
        return column == VALUE && row != null && row.isEditable() && row.check() == null;
    }
}
