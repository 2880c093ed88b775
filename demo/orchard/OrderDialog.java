package orchard;

import java.awt.Window;

import javax.swing.GroupLayout;
import javax.swing.JButton;
import javax.swing.JComboBox;
import javax.swing.JDialog;
import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.JSlider;
import javax.swing.JTextField;
import javax.swing.WindowConstants;

/** Asks for a new order. */
@SuppressWarnings("serial")
final class OrderDialog extends JDialog {
    private static final double PRICE_PER_KILOGRAM = 1.9;

    private final JTextField customer = new JTextField("Somebody new", 18);
    private final JComboBox<String> variety = new JComboBox<>(Varieties.names());
    private final JSlider kilograms = new JSlider(0, 500, 50);
    private final JButton order = new JButton("Order");
    private final JButton cancel = new JButton("Cancel");
    private transient Order result;

    private OrderDialog(Window owner) {
        super(owner, "New order", ModalityType.APPLICATION_MODAL);
        setName("order.dialog");
        setDefaultCloseOperation(WindowConstants.DISPOSE_ON_CLOSE);
        customer.setName("dialog.customer");
        variety.setName("dialog.variety");
        kilograms.setName("dialog.kilograms");
        kilograms.setMajorTickSpacing(100);
        kilograms.setPaintTicks(true);
        kilograms.setPaintLabels(true);
        order.addActionListener(event -> take());
        cancel.addActionListener(event -> dispose());
        getRootPane().setDefaultButton(order);
        setContentPane(content());
        pack();
        setLocationRelativeTo(owner);
    }

    /** The order, or null if there is to be none. */
    static Order ask(Window owner) {
        OrderDialog dialog = new OrderDialog(owner);
        dialog.setVisible(true);
        return dialog.result;
    }

    private void take() {
        int weight = Math.max(1, kilograms.getValue());
        result = new Order(customer.getText(), (String) variety.getSelectedItem(), weight, weight * PRICE_PER_KILOGRAM);
        dispose();
    }

    private JPanel content() {
        JPanel panel = new JPanel();
        GroupLayout layout = new GroupLayout(panel);
        panel.setLayout(layout);
        layout.setAutoCreateGaps(true);
        layout.setAutoCreateContainerGaps(true);
        JLabel[] labels = {new JLabel("Customer"), new JLabel("Variety"), new JLabel("Kilograms")};
        layout.setHorizontalGroup(
                layout.createParallelGroup(GroupLayout.Alignment.TRAILING)
                        .addGroup(layout.createSequentialGroup()
                                          .addGroup(layout.createParallelGroup()
                                                            .addComponent(labels[0])
                                                            .addComponent(labels[1])
                                                            .addComponent(labels[2]))
                                          .addGroup(layout.createParallelGroup()
                                                            .addComponent(customer)
                                                            .addComponent(variety)
                                                            .addComponent(kilograms)))
                        .addGroup(layout.createSequentialGroup().addComponent(cancel).addComponent(order)));
        layout.setVerticalGroup(
                layout.createSequentialGroup()
                        .addGroup(baseline(layout).addComponent(labels[0]).addComponent(customer))
                        .addGroup(baseline(layout).addComponent(labels[1]).addComponent(variety))
                        .addGroup(layout.createParallelGroup().addComponent(labels[2]).addComponent(kilograms))
                        .addGroup(baseline(layout).addComponent(cancel).addComponent(order)));
        layout.linkSize(cancel, order);
        return panel;
    }

    private static GroupLayout.ParallelGroup baseline(GroupLayout layout) {
        return layout.createParallelGroup(GroupLayout.Alignment.BASELINE);
    }
}
