package orchard;

import java.awt.Color;
import java.awt.Component;
import java.awt.GridLayout;

import javax.swing.BorderFactory;
import javax.swing.JDesktopPane;
import javax.swing.JInternalFrame;
import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JTextArea;

/** Windows within the window: notes, the weather, and a chart. */
@SuppressWarnings("serial")
final class Desk extends JDesktopPane {
    private static final Color GREEN = new Color(0xDFE8D8);

    Desk() {
        setName("desk");
        setBackground(GREEN);
        addFrame("Notes", 24, 20, 280, 180,
                new JScrollPane(new JTextArea(
                        "Prune the Boskoop before March.\nNew crates are in the barn.\nCall the cider mill.")));
        addFrame("Weather", 330, 50, 200, 150, weather());
        addFrame("Elstar", 150, 190, 340, 200, chart());
    }

    private void addFrame(String title, int x, int y, int width, int height, Component content) {
        JInternalFrame frame = new JInternalFrame(title, true, true, true, true);
        frame.setName("desk." + title.toLowerCase());
        frame.setContentPane(new JPanel(new GridLayout()));
        frame.getContentPane().add(content);
        frame.setBounds(x, y, width, height);
        frame.setVisible(true);
        add(frame, 0);
    }

    private static JPanel weather() {
        JPanel weather = new JPanel(new GridLayout(0, 2, 8, 4));
        weather.setBorder(BorderFactory.createEmptyBorder(8, 12, 8, 12));
        String[] values = {"Today", "14 \u00B0C", "Night", "3 \u00B0C", "Wind", "south-west", "Rain", "2 mm"};
        for (String value : values) {
            weather.add(new JLabel(value));
        }
        return weather;
    }

    private static HarvestChart chart() {
        HarvestChart chart = new HarvestChart();
        chart.show(Varieties.all()[2]);
        return chart;
    }
}
