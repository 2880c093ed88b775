package orchard;

import java.util.ArrayList;
import java.util.List;

import javax.swing.table.AbstractTableModel;

/** All orders, as a table's model. */
@SuppressWarnings("serial")
final class Orders extends AbstractTableModel {
    static final int CUSTOMER = 0;
    static final int PRICE = 3;
    static final int URGENT = 4;
    static final int STATE = 5;

    private static final String[] COLUMNS = {"Customer", "Variety", "kg", "Price", "Urgent", "State"};
    private static final Class<?>[] TYPES = {
            String.class, String.class, Integer.class, Double.class, Boolean.class, Order.State.class};

    private final transient List<Order> orders = new ArrayList<>();

    static Orders sample() {
        Orders orders = new Orders();
        orders.add(new Order("Bakery Lindt", "Boskoop", 120, 198.00).in(Order.State.DELIVERED));
        orders.add(new Order("Caf\u00E9 Morgenrot", "Cox Orange", 25, 62.50).in(Order.State.PACKED));
        orders.add(new Order("Hotel Seeblick", "Williams", 40, 104.00).urgent());
        orders.add(new Order("School kitchen", "Elstar", 60, 114.00).in(Order.State.PACKED).urgent());
        orders.add(new Order("Jam & Co.", "Stanley", 200, 290.00));
        orders.add(new Order("Market stall 7", "Conference", 80, 168.00).in(Order.State.DELIVERED));
        orders.add(new Order("Restaurant Ahorn", "Mirabelle", 15, 58.50).in(Order.State.CANCELLED));
        orders.add(new Order("Cider mill", "Boskoop", 450, 540.00));
        return orders;
    }

    void add(Order order) {
        orders.add(order);
        fireTableRowsInserted(orders.size() - 1, orders.size() - 1);
    }

    Order get(int row) {
        return orders.get(row);
    }

    void changed(int row) {
        fireTableRowsUpdated(row, row);
    }

    @Override
    public int getRowCount() {
        return orders.size();
    }

    @Override
    public int getColumnCount() {
        return COLUMNS.length;
    }

    @Override
    public String getColumnName(int column) {
        return COLUMNS[column];
    }

    @Override
    public Class<?> getColumnClass(int column) {
        return TYPES[column];
    }

    @Override
    public boolean isCellEditable(int row, int column) {
        return column == URGENT;
    }

    @Override
    public void setValueAt(Object value, int row, int column) {
        orders.get(row).isUrgent = (Boolean) value;
        changed(row);
    }

    @Override
    public Object getValueAt(int row, int column) {
        Order order = orders.get(row);
        Object[] values = {order.customer, order.variety, order.kilograms, order.price, order.isUrgent, order.state};
        return values[column];
    }
}
