package orchard;

import java.awt.Color;
import java.awt.Component;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.RenderingHints;

import javax.swing.JTable;
import javax.swing.SwingConstants;
import javax.swing.table.DefaultTableCellRenderer;

/** A state as a coloured label with round ends. */
@SuppressWarnings("serial")
final class StateRenderer extends DefaultTableCellRenderer {
    private static final int MARGIN = 4;

    private transient Order.State state;

    StateRenderer() {
        setName("state");
        setHorizontalAlignment(SwingConstants.CENTER);
    }

    @Override
    public Component getTableCellRendererComponent(
            JTable table, Object value, boolean isSelected, boolean hasFocus, int row, int column) {
        super.getTableCellRendererComponent(table, value, isSelected, hasFocus, row, column);
        state = (Order.State) value;
        setForeground(Color.WHITE);
        return this;
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        Graphics2D fine = (Graphics2D) graphics.create();
        fine.setRenderingHint(RenderingHints.KEY_ANTIALIASING, RenderingHints.VALUE_ANTIALIAS_ON);
        fine.setColor(getBackground());
        fine.fillRect(0, 0, getWidth(), getHeight());
        int height = getHeight() - 2 * MARGIN;
        fine.setColor(state.color());
        fine.fillRoundRect(MARGIN, MARGIN, getWidth() - 2 * MARGIN, height, height, height);
        fine.dispose();
        // Otherwise the superclass would paint the background over the label.
        setOpaque(false);
        super.paintComponent(graphics);
        setOpaque(true);
    }
}
