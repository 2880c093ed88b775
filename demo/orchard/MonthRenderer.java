package orchard;

import java.awt.BorderLayout;
import java.awt.Color;
import java.awt.Component;

import javax.swing.BorderFactory;
import javax.swing.JLabel;
import javax.swing.JList;
import javax.swing.JPanel;
import javax.swing.JProgressBar;
import javax.swing.ListCellRenderer;

/** A month, and how much of the whole harvest it brings: a renderer that is made of several components. */
@SuppressWarnings("serial")
final class MonthRenderer extends JPanel implements ListCellRenderer<String> {
    private final JLabel month = new JLabel();
    private final JProgressBar share = new JProgressBar();

    MonthRenderer() {
        super(new BorderLayout(8, 0));
        setName("month");
        month.setName("month.name");
        share.setName("month.share");
        share.setBorderPainted(false);
        setBorder(BorderFactory.createEmptyBorder(4, 6, 4, 6));
        add(month, BorderLayout.CENTER);
        add(share, BorderLayout.EAST);
    }

    @Override
    public Component getListCellRendererComponent(
            JList<? extends String> list, String value, int index, boolean isSelected, boolean hasFocus) {
        int sum = 0;
        int all = 0;
        for (Varieties.Variety variety : Varieties.all()) {
            sum += variety.harvest[index];
            for (int kilograms : variety.harvest) {
                all += kilograms;
            }
        }
        month.setText(value);
        share.setValue(100 * sum / all);
        // A copy: Nimbus replaces a colour object of its own, if it is a panel's background, by its colour for panels.
        setBackground(new Color((isSelected ? list.getSelectionBackground() : list.getBackground()).getRGB()));
        month.setForeground(isSelected ? list.getSelectionForeground() : list.getForeground());
        return this;
    }
}
