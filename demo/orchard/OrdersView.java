package orchard;

import java.awt.BorderLayout;
import java.awt.Dimension;

import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JSplitPane;
import javax.swing.SwingUtilities;

/** The orders: a table, and a form for the one that is selected. */
@SuppressWarnings("serial")
final class OrdersView extends JPanel {
    private static final int FORM_WIDTH = 260;

    private final transient Orders orders;
    private final StatusLine status;
    private final OrderTable table;
    private final OrderForm form = new OrderForm();

    OrdersView(Orders orders, StatusLine status) {
        super(new BorderLayout());
        this.orders = orders;
        this.status = status;
        setName("orders");
        table = new OrderTable(orders);
        table.setComponentPopupMenu(new OrderMenu(this));
        table.getSelectionModel().addListSelectionListener(event -> showSelected());

        JScrollPane scroll = new JScrollPane(table);
        scroll.setMinimumSize(new Dimension(FORM_WIDTH, 0));
        JSplitPane split = new JSplitPane(JSplitPane.HORIZONTAL_SPLIT, scroll, form);
        split.setName("orders.split");
        split.setResizeWeight(1);
        split.setBorder(null);
        add(split);
        form.onSave(this::saved);
        table.changeSelection(2, 0, false, false);
    }

    void addOrder() {
        Order order = OrderDialog.ask(SwingUtilities.getWindowAncestor(this));
        if (order != null) {
            orders.add(order);
            int row = table.convertRowIndexToView(orders.getRowCount() - 1);
            table.changeSelection(row, 0, false, false);
        }
    }

    void deliverSelected() {
        setState(Order.State.DELIVERED);
    }

    void cancelSelected() {
        setState(Order.State.CANCELLED);
    }

    void filter(String text) {
        table.filter(text);
        status.say(table.getRowCount() + " of " + orders.getRowCount() + " orders");
    }

    private int selected() {
        int row = table.getSelectedRow();
        return row < 0 ? -1 : table.convertRowIndexToModel(row);
    }

    private void setState(Order.State state) {
        if (selected() >= 0) {
            orders.get(selected()).in(state);
            orders.changed(selected());
            showSelected();
        }
    }

    private void saved() {
        orders.changed(selected());
        showSelected();
    }

    private void showSelected() {
        int row = selected();
        form.show(row < 0 ? null : orders.get(row));
        status.say(row < 0 ? "No order is selected" : orders.get(row).customer + ": " + orders.get(row).state);
    }
}
