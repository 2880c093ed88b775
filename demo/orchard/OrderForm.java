package orchard;

import java.awt.Dimension;
import java.awt.GridBagConstraints;
import java.awt.GridBagLayout;
import java.awt.Insets;

import javax.swing.BorderFactory;
import javax.swing.Box;
import javax.swing.JButton;
import javax.swing.JCheckBox;
import javax.swing.JComboBox;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JSpinner;
import javax.swing.JTextArea;
import javax.swing.JTextField;
import javax.swing.SpinnerNumberModel;

/** One order to look at and change, as labels and fields in two columns. */
@SuppressWarnings("serial")
final class OrderForm extends JPanel {
    private final JTextField customer = new JTextField(12);
    private final JComboBox<String> variety = new JComboBox<>(Varieties.names());
    private final JSpinner kilograms = new JSpinner(new SpinnerNumberModel(1, 1, 9999, 5));
    private final JComboBox<Order.State> state = new JComboBox<>(Order.State.values());
    private final JCheckBox urgent = new JCheckBox("Urgent");
    private final JTextArea notes = new JTextArea("Deliver to the back door.\nNot before seven.", 4, 12);
    private final JButton save = new JButton("Save");
    private transient Order order;
    private int rows;

    OrderForm() {
        super(new GridBagLayout());
        setName("order.form");
        setBorder(BorderFactory.createCompoundBorder(
                BorderFactory.createEmptyBorder(8, 8, 8, 8), BorderFactory.createTitledBorder("Order")));
        row("Customer", "customer", customer);
        row("Variety", "variety", variety);
        row("Kilograms", "kilograms", kilograms);
        row("State", "state", state);
        row("", "urgent", urgent);
        row("Notes", "notes", notes);
        row("", "save", save);
        add(Box.createGlue(), at(0, 1));
    }

    private void row(String title, String name, JComponent field) {
        field.setName("order." + name);
        if (!title.isEmpty()) {
            JLabel label = new JLabel(title);
            label.setLabelFor(field);
            add(label, at(0, 0));
        }
        add(field instanceof JTextArea ? scroll((JTextArea) field) : field, at(1, 0));
        rows++;
    }

    private static JScrollPane scroll(JTextArea field) {
        field.setLineWrap(true);
        field.setWrapStyleWord(true);
        JScrollPane scroll = new JScrollPane(field);
        scroll.setMinimumSize(new Dimension(0, field.getPreferredSize().height + 6));
        return scroll;
    }

    private GridBagConstraints at(int column, double weightY) {
        return new GridBagConstraints(column, rows, 1, 1, column, weightY, GridBagConstraints.BASELINE_LEADING,
                column == 0 ? GridBagConstraints.NONE : GridBagConstraints.HORIZONTAL, new Insets(4, 8, 4, 8), 0, 0);
    }

    /** Has a task run when the shown order has been changed. */
    void onSave(Runnable task) {
        save.addActionListener(event -> {
            take();
            task.run();
        });
    }

    void show(Order newOrder) {
        order = newOrder;
        for (JComponent field : new JComponent[] {customer, variety, kilograms, state, urgent, notes, save}) {
            field.setEnabled(order != null);
        }
        if (order != null) {
            customer.setText(order.customer);
            variety.setSelectedItem(order.variety);
            kilograms.setValue(order.kilograms);
            state.setSelectedItem(order.state);
            urgent.setSelected(order.isUrgent);
        }
    }

    private void take() {
        order.customer = customer.getText();
        order.variety = (String) variety.getSelectedItem();
        order.kilograms = (Integer) kilograms.getValue();
        order.state = (Order.State) state.getSelectedItem();
        order.isUrgent = urgent.isSelected();
    }
}
