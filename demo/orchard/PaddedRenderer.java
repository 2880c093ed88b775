package orchard;

import java.awt.Component;

import javax.swing.BorderFactory;
import javax.swing.JTable;
import javax.swing.SwingConstants;
import javax.swing.table.DefaultTableCellRenderer;

/** A value with room at its sides; numbers stand at the end of their column. */
@SuppressWarnings("serial")
class PaddedRenderer extends DefaultTableCellRenderer {
    private static final int PADDING = 8;

    @Override
    public Component getTableCellRendererComponent(
            JTable table, Object value, boolean isSelected, boolean hasFocus, int row, int column) {
        super.getTableCellRendererComponent(table, value, isSelected, false, row, column);
        setHorizontalAlignment(value instanceof Number ? SwingConstants.TRAILING : SwingConstants.LEADING);
        setBorder(BorderFactory.createEmptyBorder(0, PADDING, 0, PADDING));
        return this;
    }
}
