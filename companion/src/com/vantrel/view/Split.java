package com.vantrel.view;

import java.awt.Color;
import java.awt.Graphics;

import javax.swing.BorderFactory;
import javax.swing.JComponent;
import javax.swing.JSplitPane;
import javax.swing.KeyStroke;
import javax.swing.plaf.basic.BasicSplitPaneDivider;
import javax.swing.plaf.basic.BasicSplitPaneUI;

/**
 * Two parts, side by side or one above the other, with a thin line between them that can be dragged. The same under
 * every look and feel.
 */
final class Split extends JSplitPane {
    private static final long serialVersionUID = 1L;
    private static final int DIVIDER = 5;

    /** @param orientation HORIZONTAL_SPLIT for side by side, VERTICAL_SPLIT for one above the other */
    Split(int orientation, JComponent first, JComponent second) {
        super(orientation, true, first, second);
        // By default a split pane takes F8 to reach its divider, but here F8 picks, wherever the focus is.
        getInputMap(WHEN_ANCESTOR_OF_FOCUSED_COMPONENT).put(KeyStroke.getKeyStroke("F8"), "none");
    }

    @Override
    public void updateUI() {
        setUI(new BasicSplitPaneUI() {
            @Override
            public BasicSplitPaneDivider createDefaultDivider() {
                return new BasicSplitPaneDivider(this) {
                    private static final long serialVersionUID = 1L;

                    @Override
                    public void paint(Graphics g) {
                        Color line = Look.line();
                        g.setColor(Look.background());
                        g.fillRect(0, 0, getWidth(), getHeight());
                        g.setColor(line);
                        if (Split.this.getOrientation() == HORIZONTAL_SPLIT) {
                            g.fillRect(getWidth() / 2, 0, 1, getHeight());
                        } else {
                            g.fillRect(0, getHeight() / 2, getWidth(), 1);
                        }
                    }
                };
            }
        });
        setDividerSize(DIVIDER);
        setBorder(BorderFactory.createEmptyBorder());
    }
}
