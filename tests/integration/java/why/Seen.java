package why;

import static why.Stage.button;
import static why.Stage.named;
import static why.Stage.panel;
import static why.Stage.sized;

import java.awt.BorderLayout;
import java.awt.CardLayout;
import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.FlowLayout;
import java.awt.Frame;
import java.awt.GridLayout;
import java.awt.Window;
import java.beans.PropertyVetoException;
import java.util.Map;
import java.util.function.Function;

import javax.swing.CellRendererPane;
import javax.swing.JButton;
import javax.swing.JComboBox;
import javax.swing.JDesktopPane;
import javax.swing.JDialog;
import javax.swing.JInternalFrame;
import javax.swing.JLabel;
import javax.swing.JMenu;
import javax.swing.JMenuBar;
import javax.swing.JMenuItem;
import javax.swing.JPanel;
import javax.swing.JPopupMenu;
import javax.swing.JScrollPane;
import javax.swing.JSplitPane;
import javax.swing.JTabbedPane;
import javax.swing.JTable;
import javax.swing.JWindow;

/** Components that cannot be seen, or not all of them, each for a reason of its own. */
final class Seen {
    private Seen() {
    }

    static void list(Map<String, Function<Stage, Component>> cases) {
        cases.put("invisible", Seen::invisible);
        cases.put("in an invisible panel", Seen::inInvisible);
        cases.put("in invisible panels, and invisible", Seen::inInvisibles);
        cases.put("in a panel without a name", Seen::inUnnamed);
        cases.put("a scroll bar that is not needed", Seen::scrollBar);
        cases.put("in a window that is not shown", Seen::windowNotShown);
        cases.put("in a window that was hidden", Seen::windowHidden);
        cases.put("in a minimised window", Seen::minimised);
        cases.put("on another card", Seen::card);
        cases.put("on another tab", Seen::tab);
        cases.put("in a closed menu", Seen::menu);
        cases.put("in a closed popup", Seen::popup);
        cases.put("in a closed combo box", Seen::comboBox);
        cases.put("in an icon", Seen::icon);
        cases.put("never added", Seen::neverAdded);
        cases.put("removed", Seen::removed);
        cases.put("a renderer", Seen::renderer);
        cases.put("no bounds", Seen::noBounds);
        cases.put("replaced in its region", Seen::replaced);
        cases.put("not laid out", Seen::notLaidOut);
        cases.put("empty label", Seen::emptyLabel);
        cases.put("behind the divider", Seen::divided);
        cases.put("in a panel without size", Seen::inNoSize);
        cases.put("cut off", Seen::cutOff);
        cases.put("wrapped", Seen::wrapped);
        cases.put("scrolled away", Seen::scrolled);
        cases.put("cut off in part", Seen::cutInPart);
        cases.put("outside of the screen", Seen::outside);
        cases.put("covered", Seen::covered);
        cases.put("covered by an internal frame", Seen::coveredByFrame);
    }

    private static Component invisible(Stage stage) {
        JLabel label = sized(named("label", new JLabel("text")));
        stage.set(new FlowLayout(), label);
        label.setVisible(false);
        return label;
    }

    private static Component inInvisible(Stage stage) {
        JPanel side = named("side", new JPanel());
        JButton button = sized(button("ok"));
        side.add(button);
        stage.set(new FlowLayout(), side);
        stage.then(() -> side.setVisible(false));
        return button;
    }

    private static Component inInvisibles(Stage stage) {
        JPanel inner = named("inner", new JPanel());
        JPanel outer = named("outer", new JPanel());
        JButton button = sized(button("ok"));
        inner.add(button);
        outer.add(inner);
        stage.set(new FlowLayout(), outer);
        inner.setVisible(false);
        outer.setVisible(false);
        button.setVisible(false);
        return button;
    }

    private static Component inUnnamed(Stage stage) {
        JPanel unnamed = new JPanel();
        unnamed.add(sized(named("label", new JLabel("text"))));
        stage.set(new FlowLayout(), named("first", new JPanel()), unnamed);
        unnamed.setVisible(false);
        return unnamed.getComponent(0);
    }

    private static Component scrollBar(Stage stage) {
        JScrollPane scroll = named("scroll", new JScrollPane(named("small", new JPanel())));
        stage.set(new GridLayout(), scroll);
        return named("bar", scroll.getVerticalScrollBar());
    }

    private static Component windowNotShown(Stage stage) {
        JDialog dialog = new JDialog(stage.frame, "Options");
        JLabel label = sized(named("label", new JLabel("text")));
        dialog.add(label);
        dialog.pack();
        return label;
    }

    private static Component windowHidden(Stage stage) {
        JDialog dialog = new JDialog(stage.frame, "Options");
        JLabel label = sized(named("label", new JLabel("text")));
        dialog.add(label);
        dialog.pack();
        stage.then(() -> dialog.setVisible(true));
        stage.then(() -> dialog.setVisible(false));
        return label;
    }

    private static Component minimised(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new FlowLayout(), button);
        stage.then(() -> stage.frame.setExtendedState(Frame.ICONIFIED));
        return button;
    }

    private static Component card(Stage stage) {
        JPanel page = named("page", new JPanel());
        JButton button = sized(button("ok"));
        page.add(button);
        stage.panel.setLayout(new CardLayout());
        stage.panel.add(named("cover", new JPanel()), "first");
        stage.panel.add(page, "second");
        return button;
    }

    private static Component tab(Stage stage) {
        JPanel page = named("page", new JPanel());
        JButton button = sized(button("ok"));
        page.add(button);
        JTabbedPane tabs = named("tabs", new JTabbedPane());
        tabs.addTab("General", new JPanel());
        tabs.addTab("More", page);
        stage.set(new BorderLayout(), tabs);
        return button;
    }

    private static Component menu(Stage stage) {
        JMenu menu = named("file", new JMenu("File"));
        JMenuItem item = named("save", new JMenuItem("Save"));
        item.addActionListener(event -> {});
        menu.add(item);
        JMenuBar bar = new JMenuBar();
        bar.add(menu);
        stage.frame.setJMenuBar(bar);
        return item;
    }

    private static Component popup(Stage stage) {
        JPopupMenu popup = named("context", new JPopupMenu());
        JMenuItem item = named("copy", new JMenuItem("Copy"));
        item.addActionListener(event -> {});
        popup.add(item);
        stage.panel.setComponentPopupMenu(popup);
        return item;
    }

    private static Component comboBox(Stage stage) {
        JComboBox<String> box = named("box", new JComboBox<>(new String[] {"one"}));
        stage.set(new FlowLayout(), box);
        stage.then(box::showPopup);
        stage.then(box::hidePopup);
        return ((Container) box.getUI().getAccessibleChild(box, 0)).getComponent(0);
    }

    private static Component icon(Stage stage) {
        JDesktopPane desktop = named("desktop", new JDesktopPane());
        JInternalFrame inner = named("inner", new JInternalFrame("Inner", true, true, true, true));
        JButton button = sized(button("ok"));
        inner.add(button);
        inner.setBounds(10, 10, 150, 100);
        inner.setVisible(true);
        desktop.add(inner);
        stage.set(new BorderLayout(), desktop);
        stage.then(() -> {
            try {
                inner.setIcon(true);
            } catch (PropertyVetoException e) {
                throw new IllegalStateException(e);
            }
        });
        return button;
    }

    private static Component neverAdded(Stage stage) {
        JPanel lost = named("lost", new JPanel());
        JButton button = sized(button("ok"));
        lost.add(button);
        return button;
    }

    private static Component removed(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new FlowLayout(), button);
        stage.then(() -> stage.panel.remove(button));
        return button;
    }

    private static Component renderer(Stage stage) {
        JTable table = named("table", new JTable(2, 2));
        stage.set(new BorderLayout(), table);
        Component renderer = table.prepareRenderer(table.getCellRenderer(0, 0), 0, 0);
        stage.then(() -> {
            CellRendererPane pane = (CellRendererPane) table.getComponent(0);
            pane.paintComponent(pane.getGraphics(), renderer, table, 0, 0, 60, 16, true);
        });
        return renderer;
    }

    private static Component noBounds(Stage stage) {
        JButton button = button("ok");
        stage.set(null, button);
        return button;
    }

    private static Component replaced(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new BorderLayout(), button, sized(button("later")));
        return button;
    }

    private static Component notLaidOut(Stage stage) {
        JButton button = sized(button("ok"));
        stage.panel.setLayout(new FlowLayout());
        stage.then(() -> stage.panel.add(button));
        return button;
    }

    private static Component emptyLabel(Stage stage) {
        JLabel label = named("status", new JLabel());
        stage.set(new FlowLayout(), label);
        return label;
    }

    private static Component divided(Stage stage) {
        JPanel left = named("left", new JPanel());
        left.setMinimumSize(new Dimension(0, 0));
        JSplitPane split = named("split", new JSplitPane(JSplitPane.HORIZONTAL_SPLIT, left, new JPanel()));
        stage.set(new BorderLayout(), split);
        stage.then(() -> split.setDividerLocation(0));
        return left;
    }

    private static Component inNoSize(Stage stage) {
        JPanel outer = named("outer", new JPanel(new BorderLayout()));
        JButton button = sized(button("ok"));
        outer.add(button);
        stage.set(null, outer);
        return button;
    }

    private static Component cutOff(Stage stage) {
        JPanel small = panel("small", 100, 40);
        JButton button = button("ok");
        button.setBounds(120, 10, 60, 20);
        small.add(button);
        stage.set(new FlowLayout(), small);
        return button;
    }

    private static Component wrapped(Stage stage) {
        JPanel row = named("row", new JPanel(new FlowLayout(FlowLayout.LEFT, 0, 0)));
        row.setPreferredSize(new Dimension(100, 20));
        JButton last = sized(button("last"));
        row.add(sized(button("first")));
        row.add(last);
        stage.set(new FlowLayout(), row);
        return last;
    }

    private static Component scrolled(Stage stage) {
        JPanel longer = panel("long", 100, 1000);
        JButton button = button("ok");
        button.setBounds(0, 500, 60, 20);
        longer.add(button);
        JScrollPane scroll = named("scroll", new JScrollPane(longer));
        scroll.setBorder(null);
        scroll.setHorizontalScrollBarPolicy(JScrollPane.HORIZONTAL_SCROLLBAR_NEVER);
        scroll.setVerticalScrollBarPolicy(JScrollPane.VERTICAL_SCROLLBAR_NEVER);
        stage.set(new GridLayout(), scroll);
        return button;
    }

    private static Component cutInPart(Stage stage) {
        JPanel small = panel("small", 100, 40);
        JButton button = button("ok");
        button.setBounds(70, 10, 60, 20);
        small.add(button);
        stage.set(new FlowLayout(), small);
        return button;
    }

    private static Component outside(Stage stage) {
        JWindow away = named("away", new JWindow(stage.frame));
        JLabel label = sized(named("label", new JLabel("text")));
        away.add(label);
        away.setType(Window.Type.POPUP); // which window managers leave alone
        away.setBounds(9000, 10, 60, 20);
        stage.then(() -> away.setVisible(true));
        return label;
    }

    private static Component covered(Stage stage) {
        JPanel over = named("over", new JPanel());
        JLabel label = named("label", new JLabel("text"));
        over.setBounds(0, 0, 100, 100);
        label.setBounds(10, 10, 50, 20);
        stage.set(null, over, label);
        return label;
    }

    private static Component coveredByFrame(Stage stage) {
        JDesktopPane desktop = named("desktop", new JDesktopPane());
        JInternalFrame lower = named("lower", new JInternalFrame("Lower"));
        JInternalFrame upper = named("upper", new JInternalFrame("Upper"));
        JButton button = sized(button("ok"));
        lower.setLayout(new FlowLayout());
        lower.add(button);
        lower.setBounds(20, 20, 100, 60);
        upper.setBounds(0, 0, 200, 150);
        desktop.add(upper);
        desktop.add(lower);
        lower.setVisible(true);
        upper.setVisible(true);
        stage.set(new BorderLayout(), desktop);
        return button;
    }
}
