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
import javax.swing.JToggleButton;

import com.vantrel.model.Keys;
import com.vantrel.model.Row;
import com.vantrel.model.Selection;

/**
 * The key bindings that can take a key while the selected component has the focus; for a key that the user presses, it
 * shows which of them takes it.
 */
final class KeysPanel extends JPanel {
    private static final long serialVersionUID = 1L;

    private static final String PROMPT = "Which binding takes a key?";
    private static final String ARMED = "Press the key\u2026";

    private final RowsPanel rows = new RowsPanel("vantrel.keys", "Filter");
    private final JToggleButton press = new JToggleButton(PROMPT);
    private final JButton all = new JButton("All keys");
    private final transient Selection selection;
    /** The bindings of the pressed key; null while all bindings are shown. */
    private transient List<Row> takers;

    KeysPanel(Selection selection) {
        super(new BorderLayout());
        this.selection = selection;
        press.setName("vantrel.keys.press");
        press.setToolTipText("Click, then press a key: it tells which binding would take it. It takes one key only.");
        press.addItemListener(event -> {
            press.setText(press.isSelected() ? ARMED : PROMPT);
            // So that keys that otherwise move the focus can be asked about, too.
            press.setFocusTraversalKeysEnabled(!press.isSelected());
        });
        press.addKeyListener(new KeyAdapter() {
            @Override
            public void keyPressed(KeyEvent event) {
                if (press.isSelected()) {
                    pressed(event);
                }
            }
        });
        press.addFocusListener(new FocusAdapter() {
            @Override
            public void focusLost(FocusEvent event) {
                press.setSelected(false);
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
        press.setSelected(false);
        all.setEnabled(true);
        rows.show(takers, false);
    }

    private void showAll() {
        takers = null;
        all.setEnabled(false);
        refresh(false);
    }

    /** Another component is selected. */
    void forget() {
        takers = null;
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
