package orchard;

import java.awt.Toolkit;
import java.awt.Window;

import javax.swing.JMenu;
import javax.swing.JMenuBar;
import javax.swing.JMenuItem;
import javax.swing.JOptionPane;
import javax.swing.KeyStroke;

/** The window's menus. */
@SuppressWarnings("serial")
final class Menus extends JMenuBar {
    private final Window window;

    Menus(Window window, OrdersView orders) {
        this.window = window;
        add(orderMenu(orders));
        add(Looks.menu());
        add(helpMenu());
    }

    private JMenu orderMenu(OrdersView orders) {
        JMenu menu = new JMenu("Order");
        menu.setName("menu.order");
        menu.setMnemonic('O');
        menu.add(item("New\u2026", 'N', orders::addOrder));
        menu.add(item("Deliver", 'D', orders::deliverSelected));
        menu.addSeparator();
        menu.add(item("Close", 'W', window::dispose));
        return menu;
    }

    private JMenu helpMenu() {
        JMenu menu = new JMenu("Help");
        menu.setName("menu.help");
        menu.setMnemonic('H');
        JMenuItem about = new JMenuItem("About\u2026");
        String what = "A program to look into. Control+F12 shows the inspector.";
        about.addActionListener(
                event -> JOptionPane.showMessageDialog(window, what, "About", JOptionPane.INFORMATION_MESSAGE));
        menu.add(about);
        return menu;
    }

    private static JMenuItem item(String text, char key, Runnable task) {
        JMenuItem item = new JMenuItem(text, key);
        item.setAccelerator(KeyStroke.getKeyStroke(key, Toolkit.getDefaultToolkit().getMenuShortcutKeyMask()));
        item.addActionListener(event -> task.run());
        return item;
    }
}
