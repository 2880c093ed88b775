package orchard;

import java.awt.BorderLayout;
import java.awt.CardLayout;
import java.awt.GridLayout;

import javax.swing.BorderFactory;
import javax.swing.JLabel;
import javax.swing.JList;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JTree;
import javax.swing.tree.DefaultMutableTreeNode;

/** The varieties as a tree, the months as a list, and a card for what is selected. */
@SuppressWarnings("serial")
final class VarietiesView extends JPanel {
    private final JTree tree = new JTree(Varieties.tree());
    private final CardLayout cards = new CardLayout();
    private final JPanel card = new JPanel(cards);
    private final HarvestChart chart = new HarvestChart();

    VarietiesView() {
        super(new GridLayout(1, 3, 8, 8));
        setName("varieties");
        setBorder(BorderFactory.createEmptyBorder(8, 8, 8, 8));
        tree.setName("varieties.tree");
        tree.setCellRenderer(new VarietyRenderer());
        tree.addTreeSelectionListener(event -> showSelected());
        JList<String> months = new JList<>(HarvestChart.MONTHS);
        months.setName("varieties.months");
        months.setCellRenderer(new MonthRenderer());
        add(titled("Varieties", new JScrollPane(tree)));
        add(titled("Months", new JScrollPane(months)));
        add(titled("Harvest", card));

        card.setName("varieties.card");
        card.add(new JLabel("Select a variety", JLabel.CENTER), "nothing");
        card.add(chart, "variety");
        for (int row = 0; row < tree.getRowCount(); row++) {
            tree.expandRow(row);
        }
        tree.setSelectionRow(2);
    }

    private static JPanel titled(String title, java.awt.Component content) {
        JPanel panel = new JPanel(new BorderLayout(0, 4));
        panel.add(new JLabel(title), BorderLayout.NORTH);
        panel.add(content, BorderLayout.CENTER);
        return panel;
    }

    private void showSelected() {
        DefaultMutableTreeNode node = (DefaultMutableTreeNode) tree.getLastSelectedPathComponent();
        boolean isVariety = node != null && node.getUserObject() instanceof Varieties.Variety;
        if (isVariety) {
            chart.show((Varieties.Variety) node.getUserObject());
        }
        cards.show(card, isVariety ? "variety" : "nothing");
    }
}
