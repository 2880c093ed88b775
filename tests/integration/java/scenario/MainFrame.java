package scenario;

import java.awt.BorderLayout;
import java.awt.Button;
import java.awt.Checkbox;
import java.awt.Color;
import java.awt.Component;
import java.awt.Dimension;
import java.awt.FlowLayout;
import java.awt.GridBagConstraints;
import java.awt.GridBagLayout;
import java.awt.GridLayout;
import java.awt.Insets;
import java.awt.Panel;
import java.awt.Rectangle;
import java.awt.TextField;

import javax.swing.BorderFactory;
import javax.swing.Box;
import javax.swing.BoxLayout;
import javax.swing.GroupLayout;
import javax.swing.JButton;
import javax.swing.JCheckBox;
import javax.swing.JComboBox;
import javax.swing.JComponent;
import javax.swing.JDesktopPane;
import javax.swing.JFrame;
import javax.swing.JInternalFrame;
import javax.swing.JLabel;
import javax.swing.JList;
import javax.swing.JMenu;
import javax.swing.JMenuBar;
import javax.swing.JMenuItem;
import javax.swing.JPanel;
import javax.swing.JRadioButton;
import javax.swing.JScrollPane;
import javax.swing.JSlider;
import javax.swing.JSpinner;
import javax.swing.JSplitPane;
import javax.swing.JTabbedPane;
import javax.swing.JTable;
import javax.swing.JTextArea;
import javax.swing.JTextField;
import javax.swing.JToolBar;
import javax.swing.JTree;
import javax.swing.table.DefaultTableCellRenderer;

/** The program's window: components of the usual kinds in the usual layouts, each with a name. */
final class MainFrame {
    private static final String TITLE = "Scenario";

    private final Things things;

    private MainFrame(Things things) {
        this.things = things;
    }

    /** Makes and shows the window, in the upper left corner of the screen so that the inspector has room beside it. */
    static void show(Things things) {
        MainFrame maker = new MainFrame(things);
        JFrame frame = things.named("main", new JFrame(TITLE));
        frame.setDefaultCloseOperation(JFrame.DISPOSE_ON_CLOSE);
        frame.setJMenuBar(maker.menus());
        frame.add(maker.tools(), BorderLayout.NORTH);
        JSplitPane split = things.named("split", new JSplitPane(JSplitPane.VERTICAL_SPLIT, maker.top(), maker.tabs()));
        frame.add(split);
        frame.setSize(640, 620);
        split.setDividerLocation(300);
        frame.setVisible(true);
    }

    private JMenuBar menus() {
        JMenuBar bar = things.named("menus", new JMenuBar());
        JMenu file = things.named("file", new JMenu("File"));
        file.add(things.named("file.open", new JMenuItem("Open…")));
        file.add(things.named("file.save", new JMenuItem("Save")));
        bar.add(file);
        return bar;
    }

    private JToolBar tools() {
        JToolBar bar = things.named("tools", new JToolBar());
        bar.add(things.named("tools.refresh", new JButton("Refresh")));
        JButton shy = things.named("tools.shy", new JButton("No input methods"));
        shy.enableInputMethods(false);
        bar.add(shy);
        return bar;
    }

    private JComponent top() {
        JPanel top = things.named("top", new JPanel(new GridLayout(1, 2)));
        top.add(form());
        JPanel right = things.named("right", new JPanel());
        right.setLayout(new BoxLayout(right, BoxLayout.Y_AXIS));
        right.add(awt());
        right.add(group());
        JLabel invisible = things.named("invisible", new JLabel("Not shown"));
        invisible.setVisible(false);
        right.add(invisible);
        // Where additions, removals and misbehaving components go.
        JPanel room = things.named("room", new JPanel(new FlowLayout(FlowLayout.LEFT, 2, 2)));
        room.setPreferredSize(new Dimension(100, 100));
        right.add(room);
        right.add(Box.createVerticalGlue());
        top.add(right);
        return top;
    }

    private JPanel form() {
        JPanel form = things.named("form", new JPanel(new GridBagLayout()));
        form.setBorder(BorderFactory.createTitledBorder("Order"));
        JTextField amount = things.named("amount", new JTextField("12.50", 8));
        amount.setToolTipText("What it costs");
        row(form, 0, things.named("amount.label", new JLabel("Amount")), amount);
        row(form, 1, things.named("currency.label", new JLabel("Currency")),
                things.named("currency", new JComboBox<>(new String[] {"EUR", "USD", "CHF"})));
        row(form, 2, things.named("urgent", new JCheckBox("Urgent", true)),
                things.named("later", new JRadioButton("Later")));
        row(form, 3, things.named("count", new JSpinner()), things.named("level", new JSlider(0, 10, 4)));
        JButton cancel = things.named("cancel", new JButton("Cancel"));
        cancel.setEnabled(false);
        row(form, 4, things.named("ok", new JButton("OK")), cancel);
        JTextArea notes = things.named("notes", new JTextArea("Notes that are\nlonger than one line", 3, 12));
        row(form, 5, things.named("notes.label", new JLabel("Notes")), new JScrollPane(notes));
        return form;
    }

    private static void row(JPanel form, int row, Component left, Component right) {
        Insets insets = new Insets(2, 4, 2, 4);
        form.add(left,
                new GridBagConstraints(
                        0, row, 1, 1, 0, 0, GridBagConstraints.LINE_START, GridBagConstraints.NONE, insets, 0, 0));
        form.add(right,
                new GridBagConstraints(
                        1, row, 1, 1, 1, 0, GridBagConstraints.CENTER, GridBagConstraints.HORIZONTAL, insets, 0, 0));
    }

    private Panel awt() {
        Panel panel = things.named("awt", new Panel(new FlowLayout()));
        panel.add(things.named("awt.button", new Button("Heavy")));
        panel.add(things.named("awt.field", new TextField("text", 6)));
        panel.add(things.named("awt.check", new Checkbox("check")));
        return panel;
    }

    private JPanel group() {
        JPanel panel = things.named("group", new JPanel());
        GroupLayout layout = new GroupLayout(panel);
        panel.setLayout(layout);
        JLabel label = things.named("group.label", new JLabel("In groups"));
        JTextField field = things.named("group.field", new JTextField(6));
        layout.setHorizontalGroup(layout.createSequentialGroup().addComponent(label).addComponent(field));
        layout.setVerticalGroup(layout.createParallelGroup().addComponent(label).addComponent(field));
        panel.setMaximumSize(new Dimension(Short.MAX_VALUE, panel.getPreferredSize().height));
        return panel;
    }

    private JTabbedPane tabs() {
        JTabbedPane tabs = things.named("tabs", new JTabbedPane());
        JPanel many = things.named("collections", new JPanel(new GridLayout(1, 3)));
        many.add(new JScrollPane(things.named("table", table())));
        many.add(new JScrollPane(things.named("tree", new JTree())));
        many.add(new JScrollPane(things.named("list", new JList<>(new String[] {"one", "two", "three"}))));
        tabs.addTab("Collections", many);
        tabs.addTab("Desktop", desktop());
        return tabs;
    }

    private static JTable table() {
        JTable table = new JTable(new Object[][] {{"apple", 3, true}, {"pear", 5, false}, {"plum", 8, true}},
                new Object[] {"Fruit", "Count", "Ripe"});
        table.getColumnModel().getColumn(1).setCellRenderer(new CountRenderer());
        return table;
    }

    private JDesktopPane desktop() {
        JDesktopPane desktop = things.named("desktop", new JDesktopPane());
        desktop.add(internal("inner", "Inner", new Rectangle(10, 10, 200, 100)));
        desktop.add(internal("lower", "Lower", new Rectangle(110, 60, 200, 100)));
        desktop.setPreferredSize(new Dimension(200, 150));
        return desktop;
    }

    private JInternalFrame internal(String name, String title, Rectangle bounds) {
        JInternalFrame frame = things.named(name, new JInternalFrame(title, true, true, true, true));
        frame.add(things.named(name + ".button", new JButton("Inside")));
        frame.setBounds(bounds);
        frame.setVisible(true);
        things.known(name + ".icon", frame.getDesktopIcon());
        return frame;
    }

    /** A renderer of the program's own. */
    @SuppressWarnings("serial")
    static final class CountRenderer extends DefaultTableCellRenderer {
        @Override
        public Component getTableCellRendererComponent(
                JTable table, Object value, boolean selected, boolean focused, int row, int column) {
            super.getTableCellRendererComponent(table, value, selected, focused, row, column);
            setForeground((Integer) value > 4 ? Color.RED : Color.BLUE);
            return this;
        }
    }
}
