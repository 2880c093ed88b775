package com.vantrel.view;

import java.awt.BasicStroke;
import java.awt.Color;
import java.awt.Component;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.KeyboardFocusManager;

import javax.swing.JComponent;
import javax.swing.JTable;
import javax.swing.SwingUtilities;
import javax.swing.table.TableCellRenderer;

import com.vantrel.model.Row;

/**
 * Paints the cells of a table of rows. It does not use a label, because looks and feels change labels in tables, and
 * this is to look the same under all of them.
 */
final class RowPainter extends JComponent implements TableCellRenderer {
    private static final long serialVersionUID = 1L;

    /** The room left of a text, and right of it. */
    static final int PADDING = Look.GAP;
    /** The side of a swatch or check box. */
    private static final int MARK = 11;
    private static final int FOLD = 14;

    private final RowsModel model;
    private boolean selected;
    private int line;
    private int column;
    private int offset;
    private int nameWidth;
    private int valueWidth;
    private int noteWidth;
    private Color tableBackground;

    RowPainter(RowsModel model) {
        this.model = model;
    }

    @Override
    public Component getTableCellRendererComponent(
            JTable table, Object value, boolean isSelected, boolean focused, int atLine, int atColumn) {
        selected = isSelected;
        line = atLine;
        column = atColumn;
        offset = 0;
        for (int i = 0; i < atColumn; i++) {
            offset += table.getColumnModel().getColumn(i).getWidth();
        }
        nameWidth = table.getColumnModel().getColumn(RowsModel.NAME).getWidth();
        valueWidth = table.getColumnModel().getColumn(RowsModel.VALUE).getWidth();
        noteWidth = table.getColumnModel().getColumn(RowsModel.NOTE).getWidth();
        tableBackground = selected ? selection(table) : Look.paper();
        return this;
    }

    private static Color selection(JTable table) {
        Component owner = KeyboardFocusManager.getCurrentKeyboardFocusManager().getFocusOwner();
        boolean active = owner != null && SwingUtilities.isDescendingFrom(owner, table);
        return active ? Look.selectionBackground() : Look.mix(Look.selectionBackground(), Look.paper(), 0.65);
    }

    /** How wide a cell would have to be to show all of its text. */
    int wanted(Row row, int ofColumn) {
        FontMetrics metrics = getFontMetrics(Look.font());
        String text = ofColumn == RowsModel.NAME ? row.name()
                : ofColumn == RowsModel.VALUE    ? row.value()
                                                 : row.source();
        int mark = ofColumn == RowsModel.VALUE && (row.swatch() != null || row.check() != null) ? MARK + PADDING : 0;
        int indent = ofColumn == RowsModel.NAME ? FOLD : 0;
        return metrics.stringWidth(oneLine(text)) + mark + indent + 2 * PADDING;
    }

    /** Whether a cell's text is cut. A value without a note has the note's cell, too. */
    boolean isCut(Row row, int ofColumn) {
        boolean both = row.source().isEmpty() && ofColumn != RowsModel.NAME;
        int width = both                      ? valueWidth + noteWidth
                : ofColumn == RowsModel.VALUE ? valueWidth
                : ofColumn == RowsModel.NOTE  ? noteWidth
                                              : nameWidth;
        return wanted(row, both ? RowsModel.VALUE : ofColumn) > width;
    }

    /** A text with its line feeds made visible. */
    static String oneLine(String text) {
        return text.replace('\n', '\u21b5').replace('\t', ' ');
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        Graphics2D g = Look.smooth(graphics);
        Row row = model.row(line);
        if (row == null) {
            paintTitle(g);
        } else {
            paintRow(g, row);
        }
        g.dispose();
    }

    /** Paints this column's part of a title, which goes over all columns. */
    private void paintTitle(Graphics2D g) {
        Color back = selected ? tableBackground : Look.mix(Look.paper(), Look.ink(), 0.06);
        g.setColor(back);
        g.fillRect(0, 0, getWidth(), getHeight());
        g.translate(-offset, 0);
        g.setColor(textOn(back, Look.dim()));
        boolean open = model.isOpen(model.group(line));
        int middle = getHeight() / 2;
        int[] x = open ? new int[] {5, 13, 9} : new int[] {6, 11, 6};
        int[] y = open ? new int[] {middle - 2, middle - 2, middle + 3} : new int[] {middle - 4, middle, middle + 4};
        g.fillPolygon(x, y, 3);
        g.setFont(Look.bold());
        g.setColor(textOn(back, Look.ink()));
        String title = model.group(line);
        int base = baseline(g.getFontMetrics());
        g.drawString(title, PADDING + FOLD, base);
        int end = PADDING + FOLD + g.getFontMetrics().stringWidth(title) + PADDING;
        if (!open) {
            g.setFont(Look.font());
            g.setColor(textOn(back, Look.dim()));
            g.drawString(Integer.toString(model.countIn(line)), end, base);
        }
    }

    private void paintRow(Graphics2D g, Row row) {
        boolean value = column == RowsModel.VALUE || column == RowsModel.NOTE && row.source().isEmpty();
        double flash = value ? model.flash(line) : 0;
        Color back = flash > 0 ? Look.mix(tableBackground, Look.changed(), Math.min(1, 2 * flash)) : tableBackground;
        g.setColor(back);
        g.fillRect(0, 0, getWidth(), getHeight());
        int x = PADDING;
        if (column == RowsModel.NAME) {
            paintText(g, row.name(), x + FOLD, getWidth(), textOn(back, Look.ink()));
        } else if (column == RowsModel.NOTE) {
            if (row.source().isEmpty()) {
                // A long value goes on here.
                g.translate(-valueWidth, 0);
                paintValue(g, row, getWidth() + valueWidth, back);
            } else {
                paintText(g, row.source(), x, getWidth(), textOn(back, noteColor(row)));
            }
        } else {
            paintValue(g, row, getWidth() + (row.source().isEmpty() ? noteWidth : 0), back);
        }
    }

    private void paintValue(Graphics2D g, Row row, int width, Color back) {
        int x = PADDING;
        if (row.swatch() != null) {
            paintSwatch(g, x, row.swatch());
            x += MARK + PADDING;
        } else if (row.check() != null) {
            paintCheck(g, x, row.check(), row.isEditable(), back);
            x += MARK + PADDING;
        }
        paintText(g, row.value(), x, width, textOn(back, valueColor(row)));
        if (row.kind() == Row.Kind.ASK) {
            int line = baseline(g.getFontMetrics()) + 2;
            g.drawLine(x, line, x + g.getFontMetrics().stringWidth(row.value()), line);
        }
    }

    private static Color noteColor(Row row) {
        return row.setBy() != null || row.note().equals("own") || row.note().equals("set") ? Look.own() : Look.dim();
    }

    private static Color valueColor(Row row) {
        switch (row.kind()) {
            case ERROR:
                return Look.error();
            case DIM:
            case WAITING:
                return Look.dim();
            case ASK:
                return Look.own();
            default:
                return row.isPrograms() ? Look.own() : Look.ink();
        }
    }

    /** The wanted colour for text, or another one if that could not be read on the background. */
    private Color textOn(Color back, Color wanted) {
        boolean readable = Math.abs(brightness(back) - brightness(wanted)) > 90;
        return readable                                                                    ? wanted
                : Math.abs(brightness(back) - brightness(Look.selectionForeground())) > 90 ? Look.selectionForeground()
                : brightness(back) > 128                                                   ? Color.BLACK
                                                                                           : Color.WHITE;
    }

    private static double brightness(Color color) {
        return 0.299 * color.getRed() + 0.587 * color.getGreen() + 0.114 * color.getBlue();
    }

    private void paintText(Graphics2D g, String text, int x, int width, Color color) {
        g.setFont(Look.font());
        g.setColor(color);
        FontMetrics metrics = g.getFontMetrics();
        g.drawString(Look.fitting(oneLine(text), metrics, width - x - 2), x, baseline(metrics));
    }

    private int baseline(FontMetrics metrics) {
        return (getHeight() - metrics.getHeight()) / 2 + metrics.getAscent();
    }

    private void paintSwatch(Graphics2D g, int x, Color color) {
        int y = (getHeight() - MARK) / 2;
        g.setColor(Color.WHITE);
        g.fillRect(x, y, MARK, MARK);
        g.setColor(color);
        g.fillRect(x, y, MARK, MARK);
        g.setColor(Look.mix(Look.ink(), Look.paper(), 0.5));
        g.drawRect(x, y, MARK, MARK);
    }

    private void paintCheck(Graphics2D g, int x, boolean ticked, boolean editable, Color back) {
        int y = (getHeight() - MARK) / 2;
        g.setColor(textOn(back, editable ? Look.ink() : Look.dim()));
        g.drawRect(x, y, MARK, MARK);
        if (ticked) {
            g.setStroke(new BasicStroke(1.8f));
            g.drawPolyline(new int[] {x + 3, x + 5, x + 9}, new int[] {y + 6, y + 8, y + 3}, 3);
        }
    }
}
