package orchard;

import java.awt.Color;
import java.awt.Insets;

import javax.swing.BorderFactory;
import javax.swing.Box;
import javax.swing.JButton;
import javax.swing.JLabel;
import javax.swing.JTextField;
import javax.swing.JToolBar;
import javax.swing.event.DocumentEvent;
import javax.swing.event.DocumentListener;

/** The tools above the views. */
@SuppressWarnings("serial")
final class ToolRow extends JToolBar {
    private static final int FILTER_COLUMNS = 16;

    ToolRow(OrdersView orders) {
        setName("tools");
        setFloatable(false);
        setBorder(BorderFactory.createEmptyBorder(4, 6, 4, 6));
        add(button("New order\u2026", Palette.LEAF, orders::addOrder));
        add(button("Deliver", Palette.SKY, orders::deliverSelected));
        add(button("Cancel", Palette.CHERRY, orders::cancelSelected));
        add(Box.createHorizontalGlue());
        add(new JLabel("Customer "));
        add(filter(orders));
    }

    private static JButton button(String text, Color color, Runnable task) {
        JButton button = new JButton(text, new DotIcon(color));
        button.setIconTextGap(6);
        button.setMargin(new Insets(4, 8, 4, 8));
        button.setName("tool." + text.split("\\W")[0].toLowerCase());
        button.addActionListener(event -> task.run());
        return button;
    }

    private static JTextField filter(OrdersView orders) {
        JTextField filter = new JTextField(FILTER_COLUMNS);
        filter.setName("filter");
        filter.setToolTipText("Shows only the orders of customers with this in their name");
        filter.setMaximumSize(filter.getPreferredSize());
        filter.getDocument().addDocumentListener(new DocumentListener() {
            @Override
            public void insertUpdate(DocumentEvent event) {
                orders.filter(filter.getText());
            }

            @Override
            public void removeUpdate(DocumentEvent event) {
                orders.filter(filter.getText());
            }

            @Override
            public void changedUpdate(DocumentEvent event) {
                orders.filter(filter.getText());
            }
        });
        return filter;
    }
}
