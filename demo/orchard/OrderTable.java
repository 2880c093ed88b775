package orchard;

import java.awt.Dimension;
import java.util.regex.Pattern;

import javax.swing.JTable;
import javax.swing.ListSelectionModel;
import javax.swing.RowFilter;
import javax.swing.table.TableRowSorter;

/** The table of orders, with a renderer for each kind of value. */
@SuppressWarnings("serial")
final class OrderTable extends JTable {
    private static final int ROW_HEIGHT = 26;
    private static final int[] WIDTHS = {130, 90, 45, 75, 55, 90};

    private final transient TableRowSorter<Orders> sorter;

    OrderTable(Orders orders) {
        super(orders);
        setName("orders.table");
        setRowHeight(ROW_HEIGHT);
        setShowVerticalLines(false);
        setIntercellSpacing(new Dimension(0, 1));
        setFillsViewportHeight(true);
        setSelectionMode(ListSelectionModel.SINGLE_SELECTION);
        setDefaultRenderer(String.class, new PaddedRenderer());
        setDefaultRenderer(Integer.class, new PaddedRenderer());
        setDefaultRenderer(Double.class, new PriceRenderer());
        setDefaultRenderer(Order.State.class, new StateRenderer());
        for (int column = 0; column < WIDTHS.length; column++) {
            getColumnModel().getColumn(column).setPreferredWidth(WIDTHS[column]);
        }
        sorter = new TableRowSorter<>(orders);
        setRowSorter(sorter);
    }

    /** Shows only the orders whose customers have a text in their names. */
    void filter(String text) {
        sorter.setRowFilter(RowFilter.regexFilter("(?i)" + Pattern.quote(text), Orders.CUSTOMER));
    }
}
