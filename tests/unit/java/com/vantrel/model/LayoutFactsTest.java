package com.vantrel.model;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import java.awt.BorderLayout;
import java.awt.CardLayout;
import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.FlowLayout;
import java.awt.GridLayout;
import java.awt.LayoutManager;
import java.util.ArrayList;
import java.util.List;

import javax.swing.Box;
import javax.swing.BoxLayout;
import javax.swing.GroupLayout;
import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JDesktopPane;
import javax.swing.JInternalFrame;
import javax.swing.JLayeredPane;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JTextArea;
import javax.swing.JToolBar;
import javax.swing.OverlayLayout;
import javax.swing.SpringLayout;

import net.miginfocom.layout.CC;
import net.miginfocom.swing.MigLayout;
import org.junit.Test;

/** What is told of the layout of a component, for every manager that is explained. */
public class LayoutFactsTest {
    private JButton one = button("one");
    private JButton two = button("two");

    private static JButton button(String name) {
        JButton button = new JButton(name);
        button.setName(name);
        button.setMinimumSize(new Dimension(10, 10));
        button.setPreferredSize(new Dimension(60, 20));
        button.setMaximumSize(new Dimension(80, 30));
        return button;
    }

    private JPanel panel(LayoutManager layout) {
        JPanel panel = new JPanel(layout);
        panel.add(one);
        panel.add(two);
        return panel;
    }

    /** What is said of a component in a panel of 300 x 100, without the lines that do not depend on the manager. */
    private static String told(Container parent, Component child) {
        parent.setSize(300, 100);
        layOut(parent);
        List<String> lines = new ArrayList<>();
        for (Row row : LayoutFacts.of(reading(child))) {
            boolean own = row.group().equals("Its own layout");
            boolean left = row.value().equals("as preferred") || row.name().matches("bounds|parent|m.*Size|pref.*");
            if (!own && !left) {
                lines.add(row.name() + ": " + row.value() + (row.note().isEmpty() ? "" : " (" + row.note() + ")"));
            }
        }
        return String.join("\n", lines);
    }

    private static Reading reading(Component child) {
        Reading reading = new Reading(Target.of(child));
        do {
            assertTrue(reading.refresh());
        } while (!reading.isComplete());
        return reading;
    }

    private static void layOut(Container container) {
        container.doLayout();
        for (Component child : container.getComponents()) {
            if (child instanceof Container) {
                layOut((Container) child);
            }
        }
    }

    private void expect(String title, Container parent, Component child, String... lines) {
        assertEquals(title, String.join("\n", lines), told(parent, child));
        one = button("one");
        two = button("two");
    }

    @Test
    public void everyManagerIsExplained() throws Exception {
        expect("flow", panel(new FlowLayout(FlowLayout.TRAILING, 1, 2)), one, "manager: FlowLayout",
                "alignment: TRAILING", "gaps: 1 horizontal, 2 vertical",
                "0  JButton \"one\": 178, 2, 60 × 20 (this one)", "1  JButton \"two\": 239, 2, 60 × 20");
        expect("grid", panel(new GridLayout(0, 2)), one,
                "its width: 90 more than preferred: all cells of the grid are alike",
                "its height: 80 more than preferred: all cells of the grid are alike", "manager: GridLayout",
                "rows: as many as needed", "columns: 2", "gaps: 0 horizontal, 0 vertical",
                "0  JButton \"one\": 0, 0, 150 × 100 (this one)", "1  JButton \"two\": 150, 0, 150 × 100");

        JPanel sides = new JPanel(new BorderLayout());
        sides.add(one, BorderLayout.PAGE_START);
        sides.add(two);
        expect("border", sides, one, "its width: 240 more than preferred: this side goes from end to end",
                "constraints: PAGE_START", "manager: BorderLayout", "gaps: 0 horizontal, 0 vertical",
                "Center: JButton \"two\"", "First: JButton \"one\"", "0  JButton \"one\": 0, 0, 300 × 20 (this one)",
                "1  JButton \"two\": 0, 20, 300 × 80 (CENTER)");

        JPanel cards = new JPanel(new CardLayout(3, 4));
        cards.add(one, "first");
        cards.add(two, "second");
        expect("cards", cards, two, "its width: 234 more than preferred: a card has all of its parent",
                "its height: 72 more than preferred: a card has all of its parent", "place: card “second”",
                "manager: CardLayout", "gaps: 3 horizontal, 4 vertical", "card on top: JButton \"one\"",
                "0  JButton \"one\": 3, 4, 294 × 92 (card “first”)", "1  JButton \"two\": 3, 4, 294 × 92 (this one)");

        JPanel overlay = panel(null);
        overlay.setLayout(new OverlayLayout(overlay));
        one.setAlignmentX(0);
        two.setAlignmentX(1);
        expect("overlay", overlay, one, "its width: 20 more than preferred: as its parent, up to the maximum",
                "its height: 10 more than preferred: as its parent, up to the maximum",
                "place: alignmentX 0.0, alignmentY 0.5", "manager: OverlayLayout",
                "0  JButton \"one\": 150, 35, 80 × 30 (this one)",
                "1  JButton \"two\": 70, 35, 80 × 30 (alignmentX 1.0, alignmentY 0.5)");

        Box box = Box.createVerticalBox();
        box.add(one);
        box.add(Box.createVerticalStrut(7));
        box.add(two);
        expect("box", box, one, "its width: 20 more than preferred: as its parent, up to the maximum",
                "its height: 10 more than preferred: BoxLayout shares out what is there", "place: alignmentX 0.0",
                "manager: BoxLayout", "axis: vertical", "0  JButton \"one\": 0, 0, 80 × 30 (this one)",
                "1  Filler: 0, 30, 300 × 7 (alignmentX 0.5)", "2  JButton \"two\": 0, 37, 80 × 30 (alignmentX 0.0)");

        JPanel line = panel(null);
        line.setLayout(new BoxLayout(line, BoxLayout.LINE_AXIS));
        assertTrue(told(line, one), told(line, one).contains("axis: horizontal\n0  JButton \"one\": 0, 35, 80 × 30"));
        assertEquals(one.getBaseline(80, 30), Boxes.of(reading(one)).baseline());

        SpringLayout springs = new SpringLayout();
        JPanel sprung = panel(springs);
        springs.putConstraint(SpringLayout.WEST, one, 5, SpringLayout.WEST, sprung);
        springs.putConstraint(SpringLayout.EAST, one, -5, SpringLayout.EAST, sprung);
        expect("springs", sprung, one, "its width: 230 more than preferred: SpringLayout decides",
                "place: x 5, y 0, width 290, height 20", "manager: SpringLayout",
                "0  JButton \"one\": 5, 0, 290 × 20 (this one)",
                "1  JButton \"two\": 0, 0, 60 × 20 (x 0, y 0, width 60, height 20)");

        JPanel grouped = new JPanel();
        GroupLayout groups = new GroupLayout(grouped);
        grouped.setLayout(groups);
        groups.setAutoCreateGaps(true);
        groups.setHorizontalGroup(groups.createSequentialGroup().addComponent(one).addGap(9).addComponent(
                two, GroupLayout.DEFAULT_SIZE, 90, Short.MAX_VALUE));
        groups.setVerticalGroup(groups.createParallelGroup().addComponent(one).addComponent(two));
        expect("groups", grouped, two, "its width: 151 more than preferred: GroupLayout decides",
                "its height: 10 more than preferred: GroupLayout decides", "manager: GroupLayout",
                "horizontally: [JButton \"one\", gap, gap 9, JButton \"two\" default..90..∞]",
                "vertically: {JButton \"one\", JButton \"two\"}", "automatic gaps: true between, false around",
                "0  JButton \"one\": 0, 0, 80 × 30", "1  JButton \"two\": 89, 0, 211 × 30 (this one)");

        JPanel free = panel(null);
        one.setBounds(3, 4, 50, 20);
        expect("none", free, one, "its width: 10 less than preferred: the program sets its bounds", "manager: none",
                "0  JButton \"one\": 3, 4, 50 × 20 (this one)", "1  JButton \"two\": 0, 0, 0 × 0");

        JLayeredPane layers = new JLayeredPane();
        layers.add(one, JLayeredPane.PALETTE_LAYER);
        one.setSize(60, 20);
        expect("layers", layers, one, "constraints: 100", "manager: none",
                "0  JButton \"one\": 0, 0, 60 × 20 (this one)");
    }

    @Test
    public void whatTheToolkitPutsBetweenAndLibrariesAreExplained() throws Throwable {
        JTextArea text = new JTextArea("text");
        JScrollPane scroll =
                new JScrollPane(text, JScrollPane.VERTICAL_SCROLLBAR_ALWAYS, JScrollPane.HORIZONTAL_SCROLLBAR_NEVER);
        String shown = told(scroll, text);
        assertTrue(shown,
                shown.contains("more than preferred: it follows the viewport\nmanager: ViewportLayout\n0  JTextArea"));
        shown = told(scroll, scroll.getViewport());
        assertTrue(shown, shown.contains("preferred: it gets what headers and scroll bars leave\nplace: viewport\n"));
        assertTrue(shown, shown.contains("\nmanager: ScrollPaneLayout\n"));
        shown = told(new JScrollPane(one), one);
        assertTrue(shown, shown.contains("more than preferred: at least as its viewport\n"));

        JToolBar tools = new JToolBar();
        tools.add(one);
        shown = told(tools, one);
        assertTrue(shown, shown.contains("manager: JToolBar.DefaultToolBarLayout\n"));

        JDesktopPane desktop = new JDesktopPane();
        JInternalFrame frame = new JInternalFrame("Orders", true, true, true, true);
        frame.setBounds(10, 10, 200, 80);
        frame.setVisible(true);
        desktop.add(frame);
        shown = told(desktop, frame);
        assertTrue(shown, shown.contains("preferred: the program and the user set its bounds\nconstraints: 0\n"));
        frame.setIcon(true);
        assertEquals(Showing.ICON, Showing.of(frame.getContentPane()));
        assertEquals("Orders", Facts.text(frame.getDesktopIcon()));
        assertEquals(Machinery.NO, Machinery.of(frame.getDesktopIcon(), desktop));
        JComponent part = (JComponent) frame.getDesktopIcon().getComponent(0);
        assertEquals(Machinery.PART, Machinery.of(part, frame.getDesktopIcon()));

        JPanel mig = new JPanel(new MigLayout("wrap 2", "[right][grow]", ""));
        mig.add(one, "growx, w 50::90");
        mig.add(two, new CC().width("70!"));
        shown = told(mig, one);
        assertTrue(shown,
                shown.contains("constraints: growx, w 50::90\nmanager: MigLayout\nlayout: wrap 2\n"
                        + "column: [right][grow]\n0  JButton \"one\""));
        Reading reading = reading(two);
        Row constraints = reading.row("constraints");
        assertEquals("an object that is no text", "CC", constraints.value().replaceAll("@.*", ""));
        assertEquals("is replaced by what is typed", "", reading.textToEdit(constraints));
        constraints.property().write(two, constraints.property().format().parse("w 33!", null));
        told(mig, two);
        assertEquals(33, two.getWidth());
    }
}
