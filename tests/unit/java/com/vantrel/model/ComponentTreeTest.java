package com.vantrel.model;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertTrue;

import java.awt.Component;
import java.awt.Container;
import java.util.ArrayList;
import java.util.List;

import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.JRootPane;
import javax.swing.JScrollBar;
import javax.swing.JScrollPane;
import javax.swing.JTextArea;

import org.junit.Test;

/** The rows of the tree, on panels that stand in for windows, and what a search finds in them. */
public class ComponentTreeTest {
    private final JPanel window = named("window", new JPanel());
    private final JPanel form = named("form", new JPanel());
    private final JButton ok = named("ok", new JButton("Accept"));
    private final JScrollPane scroll = named("scroll", new JScrollPane(named("notes", new JTextArea("some\nlines"))));
    private final ComponentTree tree = new ComponentTree(() -> new Component[] {window});
    private final TreeSearch search = new TreeSearch(tree);

    public ComponentTreeTest() {
        window.add(form);
        form.add(ok);
        form.add(scroll);
    }

    private static <C extends JComponent> C named(String name, C component) {
        component.setName(name);
        return component;
    }

    /** The rows' names, or classes, each after a dot for every level. */
    private String rows() {
        List<String> rows = new ArrayList<>();
        for (TreeNode node : tree.rows()) {
            String name = Facts.name(node.component());
            StringBuilder row = new StringBuilder();
            for (int level = 0; level < node.level(); level++) {
                row.append('.');
            }
            rows.add(row + (name == null ? node.facts().name() : name));
        }
        return String.join(" ", rows);
    }

    private TreeNode node(Component component) {
        TreeNode node = tree.nodeOf(component);
        assertNotNull(node);
        return node;
    }

    @Test
    public void machineryIsFoldedUnlessItIsAskedForOrSelected() {
        tree.refresh();
        assertEquals("window .form ..ok ..scroll ...notes", rows());
        assertEquals(5, tree.count());

        JScrollBar bar = scroll.getVerticalScrollBar();
        tree.reveal(node(bar.getComponent(0)));
        assertEquals("a part of a part, in its place", "window .form ..ok ..scroll ...notes ...ScrollBar ....",
                rows().replaceAll("\\.\\.\\.\\.\\w+", "...."));
        tree.reveal(node(scroll.getViewport()));
        assertEquals("window .form ..ok ..scroll ...JViewport ....notes", rows());
        assertSame(node(scroll), tree.parentOf(node(scroll.getViewport())));
        tree.reveal(null);
        assertSame("not the viewport", node(scroll), tree.parentOf(node(scroll.getViewport().getView())));

        JRootPane root = new JRootPane();
        assertEquals(Machinery.PART, Machinery.of(root.getGlassPane(), root));
        root.getGlassPane().setVisible(true);
        assertEquals("somebody uses it", Machinery.NO, Machinery.of(root.getGlassPane(), root));

        tree.showMachinery(true);
        assertTrue(rows(), rows().startsWith("window .form ..ok ..scroll ...JViewport ....notes ...ScrollBar"));
    }

    @Test
    public void followsByDifference() {
        tree.refresh();
        TreeNode before = node(ok);
        tree.setExpanded(node(scroll), false);
        assertFalse("nothing has changed", tree.refresh());

        JPanel late = named("late", new JPanel());
        late.add(named("deep", new JLabel()));
        form.add(late, 0);
        assertTrue(tree.refresh());
        assertEquals("window .form ..late ...deep ..ok ..scroll", rows());
        assertSame(before, node(ok));
        form.setComponentZOrder(late, 2);
        assertTrue(tree.refresh());
        assertEquals("window .form ..ok ..scroll ..late ...deep", rows());
        form.remove(late);
        assertTrue(tree.refresh());
        assertNull(tree.nodeOf(late));
        assertEquals("window .form ..ok ..scroll", rows());
    }

    @Test
    public void aLargeWindowIsExpandedAsFarAsThereIsRoom() {
        Container many = named("many", new JPanel());
        window.add(many);
        for (int i = 0; i < 300; i++) {
            many.add(new JLabel());
        }
        tree.refresh();
        assertEquals("window .form ..ok ..scroll ...notes .many", rows());
        tree.setAllExpanded(true);
        assertEquals(306, tree.rows().size());
        tree.setAllExpanded(false);
        assertEquals("window", rows());
        tree.reveal(node(ok));
        assertEquals("window .form ..ok ..scroll .many", rows());
    }

    @Test
    public void aSearchShowsWhatItFindsAndWhatThatIsIn() {
        ok.setEnabled(false);
        ok.setToolTipText("Takes the order");
        ok.getAccessibleContext().setAccessibleName("Confirmation");
        form.setBackground(new java.awt.Color(1, 2, 3));
        String[][] cases = {
                // typed, found
                {"jbut", "ok"},
                {"javax.swing.jb", "ok"},
                {"swing", ""}, // a package only where it is meant
                {"NOTES", "notes"},
                {"accept", "ok"},
                {"order", "ok"},
                {"confirm", "ok"},
                {"\"some lines\"", ""},
                {"lines", "notes"},
                {"jb accept", "ok"},
                {"jb lines", ""},
                {"enabled=false", "ok"},
                {"enabled!=true", "ok"},
                {"text=acc*", "ok"},
                {"text=Acc", ""},
                {"background=#010203", "form"},
                {"background=1,2,3", "form"},
                {"background.red<2 name=form", "form"},
                {"layout=FlowLayout", "window form"},
                {"background.red<1 name=form", ""},
                {"rows>-1", "notes"},
                {"rows>many", ""},
                {"noSuchThing=1", ""},
                {"name=ok enabled=true", ""},
                {"toolTipText=null name=ok", ""},
                {"class=", "window form ok scroll notes"},
        };
        tree.refresh();
        String all = rows();
        for (String[] each : cases) {
            search.start(each[0]);
            while (search.isWorking()) {
                search.work(0);
            }
            List<String> found = new ArrayList<>();
            for (TreeNode node : tree.rows()) {
                if (node.isMatch()) {
                    found.add(Facts.name(node.component()));
                }
            }
            assertEquals(each[0], each[1], String.join(" ", found));
            assertEquals(each[0], found.size(), search.found());
        }
        search.start("accept");
        search.work(Long.MAX_VALUE / 4);
        assertEquals("window .form ..ok", rows());
        search.start("");
        assertEquals(all, rows());
    }

    @Test
    public void pathsTellLikeComponentsApart() {
        form.add(new JLabel("first"));
        JLabel second = new JLabel("second");
        form.add(second);
        assertEquals("JPanel \"window\" > JPanel \"form\" > JLabel[1]", Description.pathText(second));
        assertEquals("JPanel \"window\" > JPanel \"form\" > JScrollPane \"scroll\" > JTextArea \"notes\"",
                Description.pathText(scroll.getViewport().getView()));
        JButton icon = named("icon", new JButton());
        icon.setToolTipText("Saves it");
        form.add(icon);
        tree.refresh();
        assertEquals("JButton icon \"Saves it\" (in no window)", node(icon).toString());
        assertTrue(Description.of(second), Description.of(second).contains("text     second"));
    }
}
