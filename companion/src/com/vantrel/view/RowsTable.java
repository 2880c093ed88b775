package com.vantrel.view;

import java.awt.Color;
import java.awt.Dimension;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Rectangle;
import java.awt.event.FocusAdapter;
import java.awt.event.FocusEvent;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;
import java.util.List;
import java.util.function.Consumer;
import java.util.function.Predicate;

import javax.swing.JTable;
import javax.swing.JViewport;
import javax.swing.ListSelectionModel;
import javax.swing.SwingUtilities;
import javax.swing.Timer;
import javax.swing.event.ChangeEvent;
import javax.swing.table.TableCellRenderer;
import javax.swing.table.TableColumn;

import com.vantrel.model.Row;

/**
 * A table of rows in groups, which the user selects, folds, copies and (where an editor is set) edits, with the
 * keyboard or the mouse. Selection and scroll position stay while values change. Belongs to the event thread.
 */
final class RowsTable extends JTable {
    private static final long serialVersionUID = 1L;

    private static final int MILLIS_BETWEEN_FADES = 60;
    /** The largest share of the width for names, and for notes where the values need the room themselves. */
    private static final double MOST_FOR_NAMES = 0.4;
    private static final double NOTES_SHARE = 0.29;

    private final RowsModel rows;
    private final RowPainter painter;
    private final transient DoubleClick doubleClick = new DoubleClick();
    private final Timer fades = new Timer(MILLIS_BETWEEN_FADES, event -> fade());
    private final transient Complaint complaint = new Complaint(this);
    private final transient RowCommands commands = new RowCommands(this);
    /** What Enter or a double click does with a row; if it returns false, the row's value is edited. */
    private transient Predicate<Row> activator = row -> false;
    private String wantedKey;
    private int widestName;
    private int widestValue;
    private int widestNote;

    RowsTable(String name, RowsModel model) {
        super(model);
        rows = model;
        painter = new RowPainter(model);
        setName(name);
        setTableHeader(null);
        setShowGrid(false);
        setIntercellSpacing(new Dimension(0, 0));
        setFillsViewportHeight(true);
        setSelectionMode(ListSelectionModel.SINGLE_SELECTION);
        setAutoResizeMode(AUTO_RESIZE_OFF);
        setSurrendersFocusOnKeystroke(true);
        // A key does not start editing, except those that are bound to it. Editing ends when the focus goes elsewhere.
        putClientProperty("JTable.autoStartsEdit", Boolean.FALSE);
        putClientProperty("terminateEditOnFocusLost", Boolean.TRUE);
        look();
        addMouseListener(new MouseAdapter() {
            @Override
            public void mousePressed(MouseEvent event) {
                pressed(event);
            }
        });
        // When the focus comes or goes, a table repaints only one cell of the selected row.
        addFocusListener(new FocusAdapter() {
            @Override
            public void focusGained(FocusEvent event) {
                repaint();
            }

            @Override
            public void focusLost(FocusEvent event) {
                repaint();
            }
        });
    }

    /** Takes colours and sizes from the look and feel, at first and whenever it changes. */
    private void look() {
        Color paper = Look.paper();
        setBackground(paper);
        setFont(Look.font());
        FontMetrics metrics = getFontMetrics(Look.font());
        setRowHeight(metrics.getHeight() + Look.GAP);
        complaint.look();
    }

    @Override
    public void updateUI() {
        super.updateUI();
        if (rows != null) { // it is called by the superclass's constructor, too
            look();
        }
    }

    /** What the table shows. */
    RowsModel rows() {
        return rows;
    }

    /** Always ours: some looks and feels replace a table's renderers when they are set or removed. */
    @Override
    public TableCellRenderer getCellRenderer(int row, int column) {
        return painter;
    }

    /** Sets what Enter or a double click does with a row. If it returns false, the row is edited where it can be. */
    void onActivate(Predicate<Row> what) {
        activator = what;
    }

    /** Shows rows, in the place of those that are there. */
    void show(List<Row> now, boolean flash) {
        String key = selectedKey();
        if (isEditing() && flash) {
            // The editor lies over the row's place, so it goes if that row is not there any more.
            Row edited = rows.row(getEditingRow());
            boolean there = edited != null && now.stream().anyMatch(row -> row.isAbout(edited));
            if (!there) {
                removeEditor();
            }
        } else if (isEditing()) {
            removeEditor();
        }
        int at = getEditingRow();
        if (rows.show(now, flash)) {
            if (isEditing() && rows.line(key) != at) {
                removeEditor();
            }
            select(key, false);
            measureAnew();
        }
        fitColumns();
        if (rows.isFlashing() && !fades.isRunning()) {
            fades.start();
        }
    }

    void filter(String text) {
        String key = selectedKey();
        removeEditor();
        rows.filter(text);
        select(key, true);
        measureAnew();
        fitColumns();
    }

    private String selectedKey() {
        String key = rows.key(getSelectedRow());
        return key == null ? wantedKey : key;
    }

    /**
     * Selects a line by its key. If there is none now, the key is remembered, because the next component may have such
     * a line.
     */
    private void select(String key, boolean scroll) {
        wantedKey = key;
        int line = rows.line(key);
        if (line >= 0) {
            setRowSelectionInterval(line, line);
            if (scroll) {
                scrollRectToVisible(getCellRect(line, 0, true));
            }
        }
    }

    /** Selects a row, and brings it into sight. */
    void select(Row row) {
        for (int line = 0; line < rows.getRowCount(); line++) {
            if (rows.row(line) != null && rows.row(line).isAbout(row)) {
                changeSelection(line, 0, false, false);
            }
        }
    }

    /** The selected row; null if none or a group's title is. */
    Row selectedRow() {
        return rows.row(getSelectedRow());
    }

    private void fade() {
        if (!rows.isFlashing()) {
            fades.stop();
        }
        Rectangle visible = getVisibleRect();
        TableColumn value = getColumnModel().getColumn(RowsModel.VALUE);
        repaint(getColumnModel().getColumn(RowsModel.NAME).getWidth(), visible.y, value.getWidth(), visible.height);
    }

    @Override
    public void removeNotify() {
        fades.stop();
        complaint.hide();
        super.removeNotify();
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        super.paintComponent(graphics);
        if (rows.getRowCount() == 0 && rows.isFiltered()) {
            Graphics2D g = Look.smooth(graphics);
            g.setFont(Look.font());
            g.setColor(Look.dim());
            String text = "Nothing matches.";
            g.drawString(text, (getWidth() - g.getFontMetrics().stringWidth(text)) / 2, 3 * getRowHeight());
            g.dispose();
        }
    }

    @Override
    public boolean getScrollableTracksViewportWidth() {
        return true;
    }

    @Override
    public void doLayout() {
        fitColumns();
        super.doLayout();
    }

    /**
     * Has the columns measured anew. Otherwise they only grow with what is in them, so that they do not jitter while
     * values change.
     */
    private void measureAnew() {
        widestName = 0;
        widestValue = 0;
        widestNote = 0;
    }

    /**
     * Gives names and notes the width that they need, up to their share, and values the rest. A value without a note
     * has the note's cell, too.
     */
    private void fitColumns() {
        int width = getParent() instanceof JViewport ? getParent().getWidth() : getWidth();
        for (int line = 0; line < rows.getRowCount(); line++) {
            Row row = rows.row(line);
            if (row != null) {
                widestName = Math.max(widestName, painter.wanted(row, RowsModel.NAME));
                if (!row.source().isEmpty()) {
                    widestValue = Math.max(widestValue, painter.wanted(row, RowsModel.VALUE));
                    widestNote = Math.max(widestNote, painter.wanted(row, RowsModel.NOTE));
                }
            }
        }
        int name = Math.min(widestName + RowPainter.PADDING, (int) (width * MOST_FOR_NAMES));
        int note = Math.min(widestNote, Math.max((int) (width * NOTES_SHARE), width - name - widestValue));
        int[] widths = {name, Math.max(0, width - name - note), note};
        for (int column = 0; column < widths.length; column++) {
            TableColumn at = getColumnModel().getColumn(column);
            if (at.getWidth() != widths[column]) {
                at.setMinWidth(0);
                at.setPreferredWidth(widths[column]);
                at.setWidth(widths[column]);
            }
        }
    }

    @Override
    public String getToolTipText(MouseEvent event) {
        int line = rowAtPoint(event.getPoint());
        int column = columnAtPoint(event.getPoint());
        Row row = rows.row(line);
        if (row == null || column < 0) {
            return null;
        }
        if (painter.isCut(row, column)) {
            boolean note = column == RowsModel.NOTE && !row.source().isEmpty();
            return Tips.of(column == RowsModel.NAME ? row.name() : note ? row.source() : row.value());
        }
        return row.explanation().isEmpty() ? null : Tips.of(row.explanation());
    }

    /** Adds something that can be done with the selected row; see {@link RowCommands#add}. */
    void addCommand(String name, String key, Consumer<Row> task) {
        commands.add(name, key, task);
    }

    /** Selects a line and brings it into sight, if there is such a line. */
    void go(int line) {
        if (line >= 0 && line < getRowCount()) {
            changeSelection(line, 0, false, false);
        }
    }

    /** Opens or folds the group that the selected line is the title of, or in. */
    void fold(boolean open) {
        int line = getSelectedRow();
        if (line >= 0) {
            String group = rows.group(line);
            if (rows.isOpen(group) != open) {
                rows.setOpen(group, open);
                select(group, true);
                measureAnew();
                fitColumns();
            } else if (!open && rows.row(line) != null) {
                select(group, true);
            }
        }
    }

    private void pressed(MouseEvent event) {
        int line = rowAtPoint(event.getPoint());
        boolean doubled = doubleClick.isEndedBy(event, rows.key(line));
        if (line < 0) {
            return;
        }
        go(line);
        Row row = rows.row(line);
        boolean onValue = columnAtPoint(event.getPoint()) == RowsModel.VALUE;
        if (!SwingUtilities.isLeftMouseButton(event)) {
            return;
        }
        if (row == null) {
            fold(!rows.isOpen(rows.group(line)));
        } else if (onValue && (row.kind() == Row.Kind.ASK || row.check() != null && isOnCheck(event.getX()))
                || doubled) {
            activate();
        }
    }

    private boolean isOnCheck(int x) {
        int left = getColumnModel().getColumn(RowsModel.NAME).getWidth();
        return x < left + 3 * RowPainter.PADDING + RowPainter.PADDING;
    }

    /** Does with the selected line what Enter or a double click does. */
    void activate() {
        if (isEditing()) {
            return; // a space that is typed into the editor comes here, too
        }
        int line = getSelectedRow();
        Row row = rows.row(line);
        if (row == null) {
            if (line >= 0) {
                fold(!rows.isOpen(rows.group(line)));
            }
        } else if (!activator.test(row) && editCellAt(line, RowsModel.VALUE)) {
            getEditorComponent().requestFocusInWindow();
        }
    }

    /** Called whenever editing ends; for Escape it is the only method that is. */
    @Override
    public void removeEditor() {
        super.removeEditor();
        if (complaint != null) { // it is called by the superclass's constructor, too
            complaint.hide();
        }
    }

    @Override
    public void editingStopped(ChangeEvent event) {
        super.editingStopped(event);
        requestFocusInWindow();
    }

    @Override
    public void editingCanceled(ChangeEvent event) {
        super.editingCanceled(event);
        requestFocusInWindow();
    }

    /** Shows for a moment what is wrong, right below a line; null takes that away. */
    void complain(int line, String text) {
        if (text == null || line < 0 || line >= getRowCount()) {
            complaint.hide();
        } else {
            complaint.show(getCellRect(line, RowsModel.VALUE, true), text);
        }
    }

    /** Shows what is wrong with a row's value, wherever that row is now. */
    void complain(Row about, String text) {
        for (int line = 0; line < rows.getRowCount(); line++) {
            if (rows.row(line) != null && rows.row(line).isAbout(about)) {
                complain(line, text);
            }
        }
    }
}
