package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Color;
import java.awt.Component;
import java.awt.Dimension;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Insets;
import java.awt.event.ActionEvent;
import java.awt.event.InputEvent;
import java.awt.event.KeyAdapter;
import java.awt.event.KeyEvent;
import java.util.List;

import javax.swing.AbstractAction;
import javax.swing.BorderFactory;
import javax.swing.JComponent;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JTextArea;
import javax.swing.JTextField;
import javax.swing.KeyStroke;
import javax.swing.ScrollPaneConstants;
import javax.swing.event.DocumentEvent;
import javax.swing.event.DocumentListener;
import javax.swing.plaf.basic.BasicTextAreaUI;

import com.vantrel.model.Row;

/**
 * A table of rows, with a field above it that filters them, and a strip below it that shows the selected row in full.
 * Belongs to the event thread.
 */
final class RowsPanel extends JPanel {
    private static final long serialVersionUID = 1L;

    private static final String HINT =
            "Up and Down select a row, which is then told in full here. Typing filters the rows.";
    private static final int LINES_OF_STRIP = 3;

    private final RowsModel model = new RowsModel();
    private final RowsTable table;
    private final JTextArea strip = new Strip();
    private final JScrollPane stripScroll = new JScrollPane(strip);
    private final JTextField filter;
    private final JPanel top = new JPanel(new BorderLayout(Look.GAP, 0));

    /**
     * @param name   the table's, for scripts
     * @param prompt what stands in the empty filter field
     */
    RowsPanel(String name, String prompt) {
        super(new BorderLayout());
        table = new RowsTable(name, model);
        filter = new PromptField(prompt);
        filter.setName(name + ".filter");
        filter.setMargin(new Insets(3, 4, 3, 4));
        filter.setToolTipText("Words that a row has anywhere, in any order. Typing in the table comes here, too.");
        strip.setName(name + ".strip");
        JScrollPane scroll = new JScrollPane(
                table, ScrollPaneConstants.VERTICAL_SCROLLBAR_ALWAYS, ScrollPaneConstants.HORIZONTAL_SCROLLBAR_NEVER);
        scroll.setBorder(BorderFactory.createEmptyBorder());
        strip.setEditable(false);
        strip.setLineWrap(true);
        strip.setWrapStyleWord(true);
        strip.setOpaque(false);
        stripScroll.setHorizontalScrollBarPolicy(ScrollPaneConstants.HORIZONTAL_SCROLLBAR_NEVER);
        top.add(filter, BorderLayout.CENTER);
        add(top, BorderLayout.NORTH);
        add(scroll, BorderLayout.CENTER);
        add(stripScroll, BorderLayout.SOUTH);
        look();
        table.getSelectionModel().addListSelectionListener(event -> tellOfSelected());
        filterKeys();
    }

    private void look() {
        top.setBorder(Look.padding());
        strip.setFont(Look.font());
        strip.setBorder(BorderFactory.createEmptyBorder(Look.GAP, 2 * Look.GAP, Look.GAP, 2 * Look.GAP));
        int height = LINES_OF_STRIP * getFontMetrics(Look.font()).getHeight() + 2 * Look.GAP + 1;
        stripScroll.setPreferredSize(new Dimension(10, height));
        stripScroll.setBorder(BorderFactory.createMatteBorder(1, 0, 0, 0, Look.line()));
        stripScroll.setViewportBorder(BorderFactory.createEmptyBorder()); // some looks and feels would draw one
        stripScroll.setOpaque(false);
        stripScroll.getViewport().setOpaque(false);
    }

    @Override
    public void updateUI() {
        super.updateUI();
        if (table != null) { // it is called by the superclass's constructor, too
            look();
            tellOfSelected();
        }
    }

    RowsTable table() {
        return table;
    }

    RowsModel model() {
        return model;
    }

    /** Leaves out the strip, where something else shows the selected row. */
    void hideStrip() {
        stripScroll.setVisible(false);
    }

    /** Adds something beside the filter field. */
    void addTool(Component tool) {
        top.add(tool, BorderLayout.LINE_END);
    }

    /** Adds something above the filter field and the table. */
    void addAbove(Component part) {
        JPanel both = new JPanel(new BorderLayout());
        both.add(part, BorderLayout.CENTER);
        both.add(top, BorderLayout.SOUTH);
        add(both, BorderLayout.NORTH);
    }

    /** Shows rows in the place of those that are there; see {@link RowsTable#show}. */
    void show(List<Row> rows, boolean flash) {
        table.show(rows, flash);
        tellOfSelected();
    }

    private void tellOfSelected() {
        Row row = table.selectedRow();
        String text = row == null ? HINT : text(row);
        strip.setForeground(row == null ? Look.dim() : Look.foreground());
        // An unchanged text is not set again, or the user would lose a selection in it.
        if (!text.equals(strip.getText())) {
            strip.setText(text);
            strip.setCaretPosition(0);
        }
    }

    private static String text(Row row) {
        String type = row.type().isEmpty() ? "" : " : " + row.type();
        String value = row.value().isEmpty() || row.kind() == Row.Kind.ASK ? "" : row.value();
        String edit = row.isEditable() ? "Enter or F2 " + (row.check() == null ? "edits" : "changes") + " it."
                                       : row.explanation();
        String more = row.setBy() == null ? edit : (row.setBy().sentence() + " F4 shows the stack. " + edit).trim();
        return (row.name() + type + '\n' + value + (value.isEmpty() || more.isEmpty() ? "" : "\n") + more).trim();
    }

    private void filterKeys() {
        filter.getDocument().addDocumentListener(new DocumentListener() {
            @Override
            public void insertUpdate(DocumentEvent event) {
                table.filter(filter.getText());
            }

            @Override
            public void removeUpdate(DocumentEvent event) {
                table.filter(filter.getText());
            }

            @Override
            public void changedUpdate(DocumentEvent event) {
                // Attributes do not matter.
            }
        });
        bind(filter, WHEN_FOCUSED, KeyStroke.getKeyStroke(KeyEvent.VK_ESCAPE, 0), () -> {
            filter.setText("");
            table.requestFocusInWindow();
        });
        bind(filter, WHEN_FOCUSED, KeyStroke.getKeyStroke(KeyEvent.VK_DOWN, 0), this::enterTable);
        bind(filter, WHEN_FOCUSED, KeyStroke.getKeyStroke(KeyEvent.VK_ENTER, 0), this::enterTable);
        table.addKeyListener(new KeyAdapter() {
            @Override
            public void keyTyped(KeyEvent event) {
                boolean plain =
                        (event.getModifiersEx()
                                & (InputEvent.CTRL_DOWN_MASK | InputEvent.ALT_DOWN_MASK | InputEvent.META_DOWN_MASK))
                        == 0;
                if (plain && event.getKeyChar() > ' ' && event.getKeyChar() != KeyEvent.VK_DELETE) {
                    event.consume();
                    filter.setText(filter.getText() + event.getKeyChar());
                    filter.requestFocusInWindow();
                }
            }
        });
    }

    private void enterTable() {
        table.requestFocusInWindow();
        if (table.selectedRow() == null && table.getRowCount() > 1) {
            table.changeSelection(1, 0, false, false);
        }
    }

    static void bind(JComponent component, int condition, KeyStroke key, Runnable task) {
        Object name = "vantrel " + key;
        component.getInputMap(condition).put(key, name);
        component.getActionMap().put(name, new AbstractAction() {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
                task.run();
            }
        });
    }

    /** A text area without a background. Some looks and feels would paint one even if it is not opaque. */
    private static final class Strip extends JTextArea {
        private static final long serialVersionUID = 1L;

        @Override
        public void updateUI() {
            setUI(new BasicTextAreaUI());
        }
    }

    /** A text field that says what it is for while it is empty. */
    private static final class PromptField extends JTextField {
        private static final long serialVersionUID = 1L;

        private final String prompt;

        PromptField(String prompt) {
            this.prompt = prompt;
        }

        @Override
        protected void paintComponent(Graphics graphics) {
            super.paintComponent(graphics);
            if (getText().isEmpty()) {
                Graphics2D g = Look.smooth(graphics);
                Color fore = getForeground() == null ? Look.foreground() : getForeground();
                Color back = getBackground() == null ? Look.paper() : getBackground();
                g.setColor(Look.mix(fore, back, 0.5));
                g.setFont(getFont());
                int base = (getHeight() - g.getFontMetrics().getHeight()) / 2 + g.getFontMetrics().getAscent();
                g.drawString(prompt, getInsets().left, base);
                g.dispose();
            }
        }
    }
}
