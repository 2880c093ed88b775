import java.awt.BorderLayout;
import java.awt.FlowLayout;

import javax.swing.BorderFactory;
import javax.swing.JButton;
import javax.swing.JCheckBox;
import javax.swing.JFrame;
import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JTabbedPane;
import javax.swing.JTable;
import javax.swing.JTextField;
import javax.swing.JTree;
import javax.swing.SwingUtilities;
import javax.swing.WindowConstants;

/** A small program to inspect: one window with a handful of ordinary components. It ends when the window is closed. */
public final class Sample {
    private Sample() {
    }

    public static void main(String[] arguments) {
        SwingUtilities.invokeLater(Sample::show);
    }

    private static void show() {
        JFrame frame = new JFrame("Vantrel sample");
        frame.setDefaultCloseOperation(WindowConstants.DISPOSE_ON_CLOSE);
        frame.add(form(), BorderLayout.NORTH);
        frame.add(tabs(), BorderLayout.CENTER);
        frame.setSize(560, 360);
        frame.setLocationByPlatform(true);
        frame.setVisible(true);
    }

    private static JPanel form() {
        JTextField name = new JTextField("A text field", 20);
        JLabel greeting = new JLabel(" ");
        JButton greet = new JButton("Greet");
        greet.addActionListener(event -> greeting.setText("Hello, " + name.getText() + "!"));

        JPanel form = new JPanel(new FlowLayout(FlowLayout.LEADING));
        form.setBorder(BorderFactory.createTitledBorder("Form"));
        form.add(name);
        form.add(greet);
        form.add(new JCheckBox("Twice", true));
        form.add(greeting);
        return form;
    }

    private static JTabbedPane tabs() {
        Object[][] planets = {
            {"Mercury", 4879, 0}, {"Venus", 12104, 0}, {"Earth", 12756, 1}, {"Mars", 6792, 2},
            {"Jupiter", 142984, 95}, {"Saturn", 120536, 146}, {"Uranus", 51118, 28}, {"Neptune", 49528, 16},
        };
        JTabbedPane tabs = new JTabbedPane();
        tabs.addTab("Table", new JScrollPane(new JTable(planets, new Object[] {"Planet", "Diameter in km", "Moons"})));
        tabs.addTab("Tree", new JScrollPane(new JTree()));
        return tabs;
    }
}
