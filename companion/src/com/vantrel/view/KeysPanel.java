package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.event.FocusAdapter;
import java.awt.event.FocusEvent;
import java.awt.event.KeyAdapter;
import java.awt.event.KeyEvent;
import java.util.Collections;
import java.util.List;

import javax.swing.BorderFactory;
import javax.swing.JButton;
import javax.swing.JPanel;
import javax.swing.JTextField;

import com.vantrel.model.Keys;
import com.vantrel.model.Row;
import com.vantrel.model.Selection;

/** The key bindings that can take a key while the selected component has the focus, and which one takes a certain key. */
final class KeysPanel extends JPanel {
    private static final long serialVersionUID = 1L;

    private static final String PROMPT = "Click here and press a key: which binding would take it?";

    private final RowsPanel rows = new RowsPanel("vantrel.keys", "Filter");
    private final JTextField press = new JTextField(PROMPT);
    private final JButton all = new JButton("All keys");
    private final transient Selection selection;
    /** What a pressed key has found; null while all bindings are shown. */
    private transient List<Row> takers;

    KeysPanel(Selection selection) {
        super(new BorderLayout());
        this.selection = selection;
        press.setName("vantrel.keys.press");
        press.setEditable(false);
        press.setFocusTraversalKeysEnabled(false);
        press.addKeyListener(new KeyAdapter() {
            @Override
            public void keyPressed(KeyEvent event) {
                pressed(event);
            }

            @Override
            public void keyTyped(KeyEvent event) {
                event.consume();
            }
        });
        press.addFocusListener(new FocusAdapter() {
            @Override
            public void focusGained(FocusEvent event) {
                press.setText("Press a key\u2026");
            }

            @Override
            public void focusLost(FocusEvent event) {
                if (takers == null) {
                    press.setText(PROMPT);
                }
            }
        });
        all.setToolTipText("Show all bindings again");
        all.setEnabled(false);
        all.addActionListener(event -> showAll());
        JPanel above = new JPanel(new BorderLayout(Look.GAP, 0));
        above.setBorder(BorderFactory.createEmptyBorder(Look.GAP, Look.GAP, 0, Look.GAP));
        above.add(press, BorderLayout.CENTER);
        above.add(all, BorderLayout.LINE_END);
        rows.addAbove(above);
        add(rows, BorderLayout.CENTER);
    }

    private void pressed(KeyEvent event) {
        event.consume();
        Component component = selection.component();
        int code = event.getKeyCode();
        boolean modifierAlone = code == KeyEvent.VK_SHIFT || code == KeyEvent.VK_CONTROL || code == KeyEvent.VK_ALT
                || code == KeyEvent.VK_META || code == KeyEvent.VK_ALT_GRAPH;
        if (component == null || modifierAlone) {
            return;
        }
        takers = Keys.takers(component, event);
        press.setText(takers.isEmpty() ? "" : takers.get(0).group());
        all.setEnabled(true);
        rows.show(takers, false);
    }

    private void showAll() {
        takers = null;
        press.setText(PROMPT);
        all.setEnabled(false);
        refresh(false);
    }

    /** Another component is selected. */
    void forget() {
        takers = null;
        press.setText(press.isFocusOwner() ? "Press a key\u2026" : PROMPT);
        all.setEnabled(false);
        rows.show(Collections.emptyList(), false);
    }

    void refresh(boolean flash) {
        Component component = selection.component();
        if (takers == null) {
            rows.show(component == null ? Collections.emptyList() : Keys.of(component), flash);
        }
    }
}
