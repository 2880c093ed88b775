package orchard;

import javax.swing.JMenu;
import javax.swing.JMenuItem;
import javax.swing.JPopupMenu;

/** What can be done with the selected order. */
@SuppressWarnings("serial")
final class OrderMenu extends JPopupMenu {
    OrderMenu(OrdersView orders) {
        setName("order.menu");
        add(item("New order\u2026", orders::addOrder));
        addSeparator();
        JMenu state = new JMenu("State");
        state.add(item("Delivered", orders::deliverSelected));
        state.add(item("Cancelled", orders::cancelSelected));
        add(state);
    }

    private static JMenuItem item(String text, Runnable task) {
        JMenuItem item = new JMenuItem(text);
        item.addActionListener(event -> task.run());
        return item;
    }
}
