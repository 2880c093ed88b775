package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.CardLayout;
import java.awt.Color;
import java.awt.Graphics;

import javax.swing.BorderFactory;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.JPanel;

import com.vantrel.model.Selection;

/** The right side of the window: all about the selected component, or what to do to select one. */
final class DetailsPane extends JPanel {
    private static final long serialVersionUID = 1L;
    private static final String DETAILS = "details";
    private static final String STATE = "state";

    private final transient Selection selection;
    private final CardLayout cards = new CardLayout();
    private final StatePanel state = new StatePanel(Look::background);
    private final JPanel whole = new JPanel(new BorderLayout());
    private final JLabel gone = new Banner("This component is no longer in a window.");

    DetailsPane(Selection selection) {
        this.selection = selection;
        setLayout(cards);
        whole.add(gone, BorderLayout.PAGE_START);
        add(whole, DETAILS);
        add(state, STATE);
    }

    /** Adds the details. They take a while to make, so they come after the window is shown. */
    void fill(JComponent details) {
        whole.add(details);
        whole.revalidate();
    }

    /**
     * @param isGone whether the selected component is in no window any more
     * @param isLost whether it has been collected
     */
    void update(boolean isGone, boolean isLost) {
        boolean isThere = selection.component() != null;
        gone.setVisible(isGone);
        if (isLost) {
            state.show(ToolIcon.CLEAR, "This component is no longer in a window",
                    "Nothing in the program holds it any more.", "", "Alt+Left\tselects what was selected before");
        } else if (!isThere) {
            state.show(ToolIcon.PICK, "Nothing is selected", "Control+Click\tin the program selects a component",
                    "Control+F\tsearches for one", "Up, Down\tgo through the tree", "Left, Right\tcollapse and expand",
                    "Control+F12\thides this window");
        }
        cards.show(this, isThere ? DETAILS : STATE);
    }

    /** A line that says what is wrong. */
    private static final class Banner extends JLabel {
        private static final long serialVersionUID = 1L;

        Banner(String text) {
            super(text);
            setVisible(false);
        }

        @Override
        public void updateUI() {
            super.updateUI();
            setFont(Look.font());
            setForeground(Look.error());
            setBorder(BorderFactory.createEmptyBorder(Look.GAP, 2 * Look.GAP, Look.GAP, 2 * Look.GAP));
        }

        @Override
        protected void paintComponent(Graphics graphics) {
            Color back = Look.mix(Look.error(), Look.background(), 0.88);
            graphics.setColor(back);
            graphics.fillRect(0, 0, getWidth(), getHeight());
            super.paintComponent(graphics);
        }
    }
}
