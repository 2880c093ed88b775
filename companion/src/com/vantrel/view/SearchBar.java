package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Dimension;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.event.ActionEvent;
import java.awt.event.FocusEvent;
import java.awt.event.FocusListener;

import javax.swing.AbstractAction;
import javax.swing.BorderFactory;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.JTextField;
import javax.swing.KeyStroke;
import javax.swing.SwingConstants;
import javax.swing.event.DocumentEvent;
import javax.swing.event.DocumentListener;
import javax.swing.plaf.basic.BasicTextFieldUI;

/** The field for what to search for, and beside it how much was found. */
final class SearchBar extends JComponent {
    private static final long serialVersionUID = 1L;
    private static final String HINT = "Search: class, name, text, enabled=false";

    private final JTextField field = new Field();
    private final JLabel count = new JLabel(" ", SwingConstants.TRAILING) {
        private static final long serialVersionUID = 1L;

        @Override
        public void updateUI() {
            super.updateUI();
            setFont(Look.font());
            setForeground(Look.dim());
        }
    };

    SearchBar(Runnable changed) {
        setLayout(new BorderLayout(Look.GAP, 0));
        setBorder(BorderFactory.createEmptyBorder(3, Look.GAP, 3, Look.GAP));
        JLabel icon = new JLabel(ToolIcon.SEARCH);
        add(icon, BorderLayout.LINE_START);
        add(field);
        add(count, BorderLayout.LINE_END);
        field.getDocument().addDocumentListener(new DocumentListener() {
            @Override
            public void insertUpdate(DocumentEvent event) {
                changed.run();
            }

            @Override
            public void removeUpdate(DocumentEvent event) {
                changed.run();
            }

            @Override
            public void changedUpdate(DocumentEvent event) {
                changed.run();
            }
        });
        field.addFocusListener(new FocusListener() {
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

    JTextField field() {
        return field;
    }

    /** Has a key do something while one types. */
    void onKey(String key, Runnable action) {
        field.getInputMap().put(KeyStroke.getKeyStroke(key), key);
        field.getActionMap().put(key, new AbstractAction() {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
                action.run();
            }
        });
    }

    /** Says how much was found. */
    void tell(String text, boolean isFault) {
        if (!text.equals(count.getText())) {
            count.setText(text);
            count.setForeground(isFault ? Look.error() : Look.dim());
        }
    }

    @Override
    public Dimension getMinimumSize() {
        return new Dimension(200, getPreferredSize().height);
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        Graphics2D g = Look.smooth(graphics);
        g.setColor(Look.paper());
        g.fillRoundRect(0, 0, getWidth() - 1, getHeight() - 1, 8, 8);
        g.setColor(field.isFocusOwner() ? Look.own() : Look.mix(Look.foreground(), Look.background(), 0.7));
        g.drawRoundRect(0, 0, getWidth() - 1, getHeight() - 1, 8, 8);
        g.dispose();
    }

    /** A field without a border, which the bar around it has. It looks the same under every look and feel. */
    private static final class Field extends JTextField {
        private static final long serialVersionUID = 1L;

        Field() {
            setName("vantrel.search");
            getAccessibleContext().setAccessibleName("Search");
            setToolTipText("<html>Words are searched in classes, names, texts, tooltips and accessible names.<br>"
                    + "Properties: enabled=false, font.size&gt;11, text=Am*, layout!=null.<br>"
                    + "Enter and Shift+Enter go through what was found, Escape ends the search.</html>");
        }

        @Override
        public void updateUI() {
            setUI(new BasicTextFieldUI());
            setOpaque(false);
            setBorder(BorderFactory.createEmptyBorder());
            setFont(Look.font());
            setForeground(Look.ink());
            setCaretColor(Look.ink());
            setSelectionColor(Look.selectionBackground());
            setSelectedTextColor(Look.selectionForeground());
        }

        @Override
        protected void paintComponent(Graphics graphics) {
            super.paintComponent(graphics);
            if (getDocument().getLength() == 0) {
                Graphics2D g = Look.smooth(graphics);
                g.setColor(Look.mix(Look.ink(), Look.paper(), 0.5));
                g.setFont(getFont());
                g.drawString(HINT, 1, getBaseline(getWidth(), getHeight()));
                g.dispose();
            }
        }
    }
}
