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
import java.awt.GridBagConstraints;
import java.awt.GridBagLayout;
import java.awt.GridLayout;
import java.awt.Insets;
import java.awt.LayoutManager;
import java.awt.Rectangle;
import java.util.Map;
import java.util.function.Function;

import javax.swing.Box;
import javax.swing.BoxLayout;
import javax.swing.GroupLayout;
import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JSplitPane;
import javax.swing.JTextArea;
import javax.swing.SpringLayout;

import net.miginfocom.swing.MigLayout;

/** Components that have their size and place from a manager, one of each kind, or from the program. */
final class Sized {
    private Sized() {
    }

    static void list(Map<String, Function<Stage, Component>> cases) {
        cases.put("flow, set", Sized::flow);
        cases.put("flow, computed", Sized::flowComputed);
        cases.put("flow, computed by the program", Sized::flowByProgram);
        cases.put("flow, around what throws", Sized::aroundMoody);
        cases.put("flow, set too late", Sized::flowLate);
        cases.put("flow, bounds overwritten", Sized::overwritten);
        cases.put("border, north", Sized::north);
        cases.put("border, set too late", Sized::northLate);
        cases.put("border, center", Sized::center);
        cases.put("grid", Sized::grid);
        cases.put("card", Sized::card);
        cases.put("grid bag, filled", Sized::gridBag);
        cases.put("grid bag, no weights", Sized::noWeights);
        cases.put("grid bag, too little room", Sized::gridBagMinimum);
        cases.put("box", Sized::box);
        cases.put("box, other alignments", Sized::boxAlignment);
        cases.put("group", Sized::group);
        cases.put("spring", Sized::spring);
        cases.put("mig", Sized::mig);
        cases.put("none", Sized::none);
        cases.put("in a viewport, following", Sized::following);
        cases.put("in a viewport, not following", Sized::notFollowing);
        cases.put("in a split pane", Sized::split);
        cases.put("a manager of the program's", Sized::own);
        cases.put("in a panel that throws", Sized::cross);
        cases.put("a window", Sized::window);
        cases.put("a packed window", Sized::packed);
    }

    private static Component flow(Stage stage) {
        JButton button = button("ok");
        button.setPreferredSize(new Dimension(60, 20));
        stage.set(new FlowLayout(), button);
        return button;
    }

    private static Component flowComputed(Stage stage) {
        JPanel panel = named("inside", new JPanel(new FlowLayout()));
        panel.add(sized(button("ok")));
        stage.set(new FlowLayout(), panel);
        return panel;
    }

    /** Tells its size as long as nobody but a layout asks. */
    private static final class Moody extends JComponent {
        private static final long serialVersionUID = 1L;

        private boolean isCross;

        @Override
        public Dimension getPreferredSize() {
            if (isCross) {
                throw new IllegalStateException("asked once too often");
            }
            return new Dimension(50, 25);
        }
    }

    private static Component flowByProgram(Stage stage) {
        Moody moody = named("moody", new Moody());
        stage.set(new FlowLayout(), moody);
        stage.then(() -> moody.isCross = true);
        return moody;
    }

    private static Component aroundMoody(Stage stage) {
        Moody moody = new Moody();
        JPanel panel = named("around", new JPanel(new FlowLayout()));
        panel.add(moody);
        stage.set(new FlowLayout(), panel);
        stage.then(() -> {
            moody.isCross = true;
            panel.invalidate(); // it forgets the sizes that were worked out
        });
        return panel;
    }

    private static Component flowLate(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new FlowLayout(), button);
        stage.then(() -> button.setPreferredSize(new Dimension(90, 40)));
        return button;
    }

    private static Component overwritten(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new FlowLayout(), button);
        button.setSize(200, 100);
        return button;
    }

    private static Component north(Stage stage) {
        JButton button = sized(button("ok"));
        stage.panel.setLayout(new BorderLayout());
        stage.panel.add(button, BorderLayout.NORTH);
        return button;
    }

    private static Component northLate(Stage stage) {
        Component button = north(stage);
        stage.then(() -> button.setPreferredSize(new Dimension(90, 40)));
        return button;
    }

    private static Component center(Stage stage) {
        JButton button = button("ok");
        button.setPreferredSize(new Dimension(60, 20));
        stage.set(new BorderLayout(), button);
        return button;
    }

    private static Component grid(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new GridLayout(2, 2), button, button("other"), button("third"));
        return button;
    }

    private static Component card(Stage stage) {
        JButton button = sized(button("ok"));
        stage.panel.setLayout(new CardLayout());
        stage.panel.add(button, "only");
        return button;
    }

    private static GridBagConstraints cell(int column, double weight, int fill) {
        return new GridBagConstraints(
                column, 0, 1, 1, weight, 0, GridBagConstraints.CENTER, fill, new Insets(0, 0, 0, 0), 0, 0);
    }

    private static Component gridBag(Stage stage) {
        JButton button = sized(button("ok"));
        stage.panel.setLayout(new GridBagLayout());
        stage.panel.add(sized(button("first")), cell(0, 0, GridBagConstraints.NONE));
        stage.panel.add(button, cell(1, 1, GridBagConstraints.HORIZONTAL));
        return button;
    }

    private static Component noWeights(Stage stage) {
        JButton button = sized(button("ok"));
        stage.panel.setLayout(new GridBagLayout());
        stage.panel.add(button, cell(0, 0, GridBagConstraints.BOTH));
        return button;
    }

    private static Component gridBagMinimum(Stage stage) {
        JButton button = sized(button("ok"));
        button.setPreferredSize(new Dimension(400, 20));
        stage.panel.setLayout(new GridBagLayout());
        stage.panel.add(button, cell(0, 1, GridBagConstraints.NONE));
        return button;
    }

    private static Component box(Stage stage) {
        Box box = named("box", Box.createVerticalBox());
        JButton button = sized(button("ok"));
        box.add(button);
        JPanel rest = named("rest", new JPanel());
        rest.setAlignmentX(button.getAlignmentX());
        box.add(rest);
        stage.set(new GridLayout(), box);
        return button;
    }

    private static Component boxAlignment(Stage stage) {
        JButton button = sized(button("ok"));
        JButton other = sized(button("other"));
        other.setAlignmentX(Component.RIGHT_ALIGNMENT);
        stage.panel.setLayout(new BoxLayout(stage.panel, BoxLayout.Y_AXIS));
        stage.panel.add(button);
        stage.panel.add(other);
        return button;
    }

    private static Component group(Stage stage) {
        JButton first = sized(button("first"));
        JButton second = sized(button("second"));
        GroupLayout layout = new GroupLayout(stage.panel);
        stage.panel.setLayout(layout);
        layout.setHorizontalGroup(layout.createSequentialGroup().addComponent(first).addComponent(
                second, GroupLayout.DEFAULT_SIZE, 90, Short.MAX_VALUE));
        layout.setVerticalGroup(layout.createParallelGroup().addComponent(first).addComponent(second));
        return second;
    }

    private static Component spring(Stage stage) {
        SpringLayout springs = new SpringLayout();
        JButton button = sized(button("ok"));
        stage.set(springs, button);
        springs.putConstraint(SpringLayout.WEST, button, 5, SpringLayout.WEST, stage.panel);
        springs.putConstraint(SpringLayout.EAST, button, -5, SpringLayout.EAST, stage.panel);
        return button;
    }

    private static Component mig(Stage stage) {
        JButton button = sized(button("ok"));
        stage.panel.setLayout(new MigLayout("insets 0", "[right][grow]"));
        stage.panel.add(button, "w 50:70:90");
        return button;
    }

    private static Component none(Stage stage) {
        JButton button = button("ok");
        stage.set(null, button);
        button.setBounds(3, 4, 50, 20);
        return button;
    }

    private static JScrollPane scroll(Component view) {
        JScrollPane scroll = named("scroll",
                new JScrollPane(view, JScrollPane.VERTICAL_SCROLLBAR_NEVER, JScrollPane.HORIZONTAL_SCROLLBAR_NEVER));
        scroll.setBorder(null);
        return scroll;
    }

    private static Component following(Stage stage) {
        JTextArea text = named("text", new JTextArea());
        text.setLineWrap(true);
        text.setPreferredSize(new Dimension(100, 500));
        stage.set(new GridLayout(), scroll(text));
        return text;
    }

    private static Component notFollowing(Stage stage) {
        JPanel view = panel("view", 400, 100);
        stage.set(new GridLayout(), scroll(view));
        return view;
    }

    private static Component split(Stage stage) {
        JPanel left = named("left", new JPanel());
        JSplitPane split = named("split", new JSplitPane(JSplitPane.HORIZONTAL_SPLIT, left, new JPanel()));
        split.setDividerLocation(120);
        stage.set(new GridLayout(), split);
        return left;
    }

    /** Lays out in a way of its own, and throws when it is asked for anything. */
    private static final class Spiral extends FlowLayout {
        private static final long serialVersionUID = 1L;

        @Override
        public void layoutContainer(Container target) {
            target.getComponent(0).setBounds(30, 30, 44, 33);
        }

        @Override
        public int getHgap() {
            throw new IllegalStateException("asked on purpose");
        }
    }

    private static Component own(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new Spiral(), button);
        return button;
    }

    /** Throws when it is asked for anything, once it is on the screen. */
    private static final class Cross extends JPanel {
        private static final long serialVersionUID = 1L;

        private boolean isCross;

        private <T> T answer(T answer) {
            if (isCross) {
                throw new IllegalStateException("asked on purpose");
            }
            return answer;
        }

        @Override
        public Rectangle getBounds() {
            return answer(super.getBounds());
        }

        @Override
        public Component[] getComponents() {
            return answer(super.getComponents());
        }

        @Override
        public LayoutManager getLayout() {
            return answer(super.getLayout());
        }
    }

    private static Component cross(Stage stage) {
        Cross cross = named("cross", new Cross());
        JButton button = sized(button("ok"));
        cross.add(button);
        stage.set(new FlowLayout(), cross);
        stage.then(() -> cross.isCross = true);
        return button;
    }

    private static Component window(Stage stage) {
        stage.frame.setBounds(50, 60, 200, 100);
        return stage.frame;
    }

    private static Component packed(Stage stage) {
        stage.set(new FlowLayout(), sized(button("ok")));
        stage.frame.pack();
        return stage.frame;
    }
}
