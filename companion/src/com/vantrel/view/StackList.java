package com.vantrel.view;

import java.awt.Color;
import java.awt.Component;
import java.awt.Dimension;
import java.awt.Font;
import java.awt.Graphics;

import javax.swing.JLabel;
import javax.swing.JList;
import javax.swing.JPanel;
import javax.swing.ListCellRenderer;

import com.vantrel.model.CallSite;

/**
 * The list of a stack's rows in three columns: method, file and line, package. The program's lines stand out. Where
 * there are no rows, a text says why. Belongs to the event thread.
 */
final class StackList extends JList<StackRows.Row> {
    private static final long serialVersionUID = 1L;

    private static final int COLUMN_GAP = 3 * Look.GAP;
    private static final int INDENT = 2 * Look.GAP;

    private final StackRows rows;
    private final Cell cell = new Cell();
    private final JLabel whyEmpty = new JLabel("", JLabel.CENTER);
    private int methodWidth;
    private int placeWidth;

    StackList(StackRows rows) {
        super(rows);
        this.rows = rows;
        setCellRenderer(cell);
        updateUI();
    }

    /** Measures the columns anew and shows the rows; to be called when other rows are shown. */
    void rowsChanged(String textIfEmpty) {
        whyEmpty.setText(textIfEmpty);
        methodWidth = 0;
        placeWidth = 0;
        for (int at = 0; at < rows.getSize(); at++) {
            StackRows.Row row = rows.getElementAt(at);
            if (row.line() != null) {
                cell.show(row, false);
                methodWidth = Math.max(methodWidth, cell.method.getPreferredSize().width + cell.indent);
                placeWidth = Math.max(placeWidth, cell.place.getPreferredSize().width);
            }
        }
        // Set explicitly, because the list would keep the width that the rows had with the old columns.
        setFixedCellWidth(widest());
        repaint();
    }

    private int widest() {
        int width = 0;
        for (int at = 0; at < rows.getSize(); at++) {
            cell.show(rows.getElementAt(at), false);
            width = Math.max(width, cell.getPreferredSize().width);
        }
        return width;
    }

    @Override
    public void updateUI() {
        super.updateUI();
        if (cell != null) { // the superclass's constructor calls this, too
            cell.updateUI();
            whyEmpty.updateUI();
            setBackground(Look.paper());
            setFixedCellHeight(getFontMetrics(Look.bold()).getHeight() + Look.GAP);
            rowsChanged(whyEmpty.getText());
        }
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        super.paintComponent(graphics);
        if (rows.getSize() == 0) {
            whyEmpty.setForeground(Look.dim());
            whyEmpty.setFont(Look.font());
            whyEmpty.setSize(getSize());
            whyEmpty.paint(graphics);
        }
    }

    @Override
    public boolean getScrollableTracksViewportHeight() {
        return rows.getSize() == 0 || super.getScrollableTracksViewportHeight();
    }

    @Override
    public boolean getScrollableTracksViewportWidth() {
        return rows.getSize() == 0 || super.getScrollableTracksViewportWidth();
    }

    private final class Cell extends JPanel implements ListCellRenderer<StackRows.Row> {
        private static final long serialVersionUID = 1L;

        private final JLabel method = new JLabel();
        private final JLabel place = new JLabel();
        private final JLabel packageName = new JLabel();
        private int indent;

        Cell() {
            super(null);
            add(method);
            add(place);
            add(packageName);
        }

        @Override
        public Component getListCellRendererComponent(JList<? extends StackRows.Row> list, StackRows.Row row, int index,
                boolean isSelected, boolean hasFocus) {
            show(row, isSelected);
            return this;
        }

        void show(StackRows.Row row, boolean isSelected) {
            setBackground(isSelected ? Look.selectionBackground() : Look.paper());
            boolean isHead = row.line() == null;
            indent = row.isFolded() ? Look.GAP + INDENT : Look.GAP;
            Font font = row.isWhere() ? Look.bold() : Look.font();
            set(method, isHead ? (rows.isOpen(row) ? "\u25BE " : "\u25B8 ") + row : CallSite.method(row.line()), font,
                    isSelected, row.isProgram() ? Look.own() : Look.dim());
            set(place, isHead ? "" : CallSite.place(row.line()), font, isSelected,
                    row.isProgram() ? Look.foreground() : Look.dim());
            set(packageName, isHead ? "" : CallSite.packageName(row.line()), Look.font(), isSelected, Look.dim());
        }

        private void set(JLabel label, String text, Font font, boolean isSelected, Color color) {
            label.setText(text);
            label.setFont(font);
            label.setForeground(isSelected ? Look.selectionForeground() : color);
        }

        @Override
        public Dimension getPreferredSize() {
            int width = place.getText().isEmpty()
                    ? method.getPreferredSize().width
                    : methodWidth + placeWidth + packageName.getPreferredSize().width + 2 * COLUMN_GAP;
            return new Dimension(indent + width + Look.GAP, getFixedCellHeight());
        }

        @Override
        public void doLayout() {
            int second = Look.GAP + methodWidth + COLUMN_GAP;
            int third = second + placeWidth + COLUMN_GAP;
            boolean isHead = place.getText().isEmpty();
            method.setBounds(indent, 0, (isHead ? getWidth() : second) - indent, getHeight());
            place.setBounds(second, 0, placeWidth, getHeight());
            packageName.setBounds(third, 0, Math.max(0, getWidth() - third), getHeight());
        }
    }
}
