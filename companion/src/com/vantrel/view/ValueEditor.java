package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Color;
import java.awt.Component;
import java.awt.Insets;
import java.awt.event.ActionEvent;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.awt.event.MouseEvent;
import java.util.EventObject;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

import javax.swing.AbstractAction;
import javax.swing.AbstractCellEditor;
import javax.swing.BorderFactory;
import javax.swing.JButton;
import javax.swing.JColorChooser;
import javax.swing.JComboBox;
import javax.swing.JComponent;
import javax.swing.JPanel;
import javax.swing.JTable;
import javax.swing.JTextField;
import javax.swing.KeyStroke;
import javax.swing.SwingUtilities;
import javax.swing.table.TableCellEditor;

import com.vantrel.model.Format;
import com.vantrel.model.Row;

/**
 * Edits a row's value in its cell: a text field, or a choice. If a text is not valid the field stays, with a message
 * about what is wrong, until the text is corrected or editing is cancelled. Belongs to the event thread.
 */
final class ValueEditor extends AbstractCellEditor implements TableCellEditor {
    private static final long serialVersionUID = 1L;

    private static final Pattern NUMBER = Pattern.compile("-?\\d+");
    private static final int LARGE_STEP = 10;

    /** What is done with an edited row. */
    interface Editing {
        /** The text to start with. */
        String text(Row row);

        /** Sets the value that a text stands for. Returns null, or what is wrong with the text. */
        String set(Row row, String text);
    }

    private final transient Editing editing;
    private final RowsTable table;
    private final RowsModel model;
    private transient Row row;
    private String first;
    private JTextField field;
    private JComboBox<String> choice;

    ValueEditor(RowsTable table, RowsModel model, Editing editing) {
        this.table = table;
        this.model = model;
        this.editing = editing;
    }

    @Override
    public Component getTableCellEditorComponent(JTable in, Object value, boolean selected, int line, int column) {
        row = model.row(line);
        Format format = row.property().format();
        first = RowPainter.oneLine(editing.text(row));
        field = null;
        choice = null;
        return format.choices().isEmpty() ? text() : choice(format);
    }

    @Override
    public boolean isCellEditable(EventObject event) {
        // The table handles double clicks, which may mean something else.
        return !(event instanceof MouseEvent);
    }

    private JComponent text() {
        field = new JTextField(first);
        field.setName("vantrel.value");
        field.setFont(Look.font());
        field.setBorder(BorderFactory.createLineBorder(Look.selectionBackground()));
        field.selectAll();
        field.addActionListener(event -> stopCellEditing());
        step("up", KeyEvent.VK_UP, 0, 1);
        step("down", KeyEvent.VK_DOWN, 0, -1);
        step("far up", KeyEvent.VK_UP, InputEvent.SHIFT_DOWN_MASK, LARGE_STEP);
        step("far down", KeyEvent.VK_DOWN, InputEvent.SHIFT_DOWN_MASK, -LARGE_STEP);
        return row.swatch() == null && row.property().type() != Color.class ? field : withColours();
    }

    private JComponent withColours() {
        JButton button = new JButton("\u2026");
        button.setMargin(new Insets(0, 2, 0, 2));
        button.setFocusable(false);
        button.setToolTipText("Choose a colour");
        button.addActionListener(event -> {
            Color chosen = JColorChooser.showDialog(
                    SwingUtilities.getWindowAncestor(table), row.name() + " of the selected component", row.swatch());
            if (chosen != null && field != null) {
                field.setText(String.format("#%06x", chosen.getRGB() & 0xFFFFFF));
                stopCellEditing();
            }
        });
        JPanel both = new JPanel(new BorderLayout()) {
            private static final long serialVersionUID = 1L;

            @Override
            public boolean requestFocusInWindow() {
                return getComponent(0).requestFocusInWindow();
            }
        };
        both.add(field, BorderLayout.CENTER);
        both.add(button, BorderLayout.LINE_END);
        return both;
    }

    private JComponent choice(Format format) {
        choice = new JComboBox<>(format.choices().toArray(new String[0]));
        choice.setName("vantrel.value");
        choice.setFont(Look.font());
        choice.setSelectedItem(first);
        // So that arrow keys only move in the list and Enter chooses; otherwise each arrow key would choose.
        choice.putClientProperty("JComboBox.isTableCellEditor", Boolean.TRUE);
        choice.addActionListener(event -> stopCellEditing());
        SwingUtilities.invokeLater(() -> {
            if (choice != null && choice.isShowing()) {
                choice.setPopupVisible(true);
            }
        });
        return choice;
    }

    private void step(String name, int key, int modifiers, int by) {
        field.getInputMap().put(KeyStroke.getKeyStroke(key, modifiers), name);
        field.getActionMap().put(name, new AbstractAction() {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
                step(by);
            }
        });
    }

    /** Counts the number at the caret up or down. */
    private void step(int by) {
        String text = field.getText();
        Class<?> type = row.property().type();
        Matcher numbers = NUMBER.matcher(text);
        while (type != String.class && type != Color.class && numbers.find()) {
            if (numbers.end() >= field.getCaretPosition() || numbers.hitEnd()) {
                try {
                    String stepped = Integer.toString(Math.addExact(Integer.parseInt(numbers.group()), by));
                    field.setText(text.substring(0, numbers.start()) + stepped + text.substring(numbers.end()));
                    field.select(numbers.start(), numbers.start() + stepped.length());
                } catch (ArithmeticException | NumberFormatException e) {
                    // There is no next number.
                }
                return;
            }
        }
    }

    @Override
    public Object getCellEditorValue() {
        return text(field, choice);
    }

    private static String text(JTextField field, JComboBox<String> choice) {
        return field != null ? field.getText() : choice != null ? String.valueOf(choice.getSelectedItem()) : "";
    }

    @Override
    public boolean stopCellEditing() {
        String text = text(field, choice);
        if (text.equals(first)) {
            cancelCellEditing();
            return true;
        }
        String wrong = editing.set(row, text.replace('\u21b5', '\n'));
        if (wrong != null) {
            if (field != null) {
                field.setBorder(BorderFactory.createLineBorder(Look.error(), 2));
            }
            table.complain(table.getEditingRow(), wrong);
            return false;
        }
        end();
        return super.stopCellEditing();
    }

    @Override
    public void cancelCellEditing() {
        end();
        super.cancelCellEditing();
    }

    private void end() {
        field = null;
        choice = null;
    }
}
