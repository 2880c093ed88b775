package orchard;

import java.awt.BorderLayout;

import javax.swing.JFrame;
import javax.swing.JTabbedPane;
import javax.swing.WindowConstants;

/** The window: menus, tools, a tab for each view, and a line of text below. */
@SuppressWarnings("serial")
final class MainWindow extends JFrame {
    private final Orders orders = Orders.sample();
    private final StatusLine status = new StatusLine();
    private final OrdersView ordersView = new OrdersView(orders, status);

    MainWindow() {
        super("Vantrel sample");
        setName("main");
        setDefaultCloseOperation(WindowConstants.DISPOSE_ON_CLOSE);
        setJMenuBar(new Menus(this, ordersView));
        add(new ToolRow(ordersView), BorderLayout.NORTH);
        add(tabs(), BorderLayout.CENTER);
        add(status, BorderLayout.SOUTH);
        setSize(800, 540);
        setLocationByPlatform(true);
    }

    private JTabbedPane tabs() {
        JTabbedPane tabs = new JTabbedPane();
        tabs.setName("views");
        tabs.addTab("Orders", ordersView);
        tabs.addTab("Varieties", new VarietiesView());
        tabs.addTab("Harvest", new HarvestView());
        tabs.addTab("Desk", new Desk());
        return tabs;
    }
}
