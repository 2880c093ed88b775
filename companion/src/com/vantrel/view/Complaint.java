package com.vantrel.view;

import java.awt.Color;
import java.awt.Rectangle;

import javax.swing.BorderFactory;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.Timer;

/**
 * A message in a list or table that says for a few seconds what is wrong with a value, right below or above it. For the
 * event thread.
 */
final class Complaint {
    private static final int MILLIS = 6000;
    private static final Color BACKGROUND = new Color(0xB3261E);

    private final JComponent in;
    private final JLabel label = new JLabel();
    private final Timer end = new Timer(MILLIS, event -> hide());

    /** @param in has no layout manager, and may have a label added to it */
    Complaint(JComponent in) {
        this.in = in;
        label.setName("vantrel.complaint");
        end.setRepeats(false);
    }

    /** Takes its font from the look and feel. */
    void look() {
        label.setOpaque(true);
        label.setFont(Look.font());
        label.setForeground(Color.WHITE);
        label.setBackground(BACKGROUND);
        label.setBorder(BorderFactory.createEmptyBorder(2, RowPainter.PADDING, 2, RowPainter.PADDING));
    }

    /** Shows a message below a cell, or above it if there is no room below. */
    void show(Rectangle cell, String text) {
        hide();
        int width = in.getWidth() - 2 * Look.GAP;
        label.setText("<html><body width='" + (width - 4 * Look.GAP) + "'>" + Tips.escaped(text));
        int height = label.getPreferredSize().height;
        Rectangle visible = in.getVisibleRect();
        boolean below = cell.y + cell.height + height <= visible.y + visible.height;
        label.setBounds(Look.GAP, below ? cell.y + cell.height : cell.y - height, width, height);
        in.add(label, 0);
        end.restart();
    }

    /** Takes the message away. */
    void hide() {
        end.stop();
        in.remove(label);
        in.repaint();
    }
}
