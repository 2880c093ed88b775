package why;

import java.awt.Component;
import java.awt.Dimension;
import java.awt.LayoutManager;
import java.awt.Window;
import java.util.ArrayList;
import java.util.List;

import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JFrame;
import javax.swing.JPanel;

/** Where a case is played: a window of a known size, with one panel in it, which is called "stage". */
final class Stage {
    static final int WIDTH = 300;
    static final int HEIGHT = 200;

    final JFrame frame = new JFrame();
    final JPanel panel = named("stage", new JPanel());
    /** What happens once the window is there and laid out. */
    private final List<Runnable> later = new ArrayList<>();

    Stage(String title) {
        frame.setTitle(title);
        frame.setUndecorated(true); // so that it is as large as it is told
        frame.setContentPane(panel);
        frame.setBounds(40, 40, WIDTH, HEIGHT);
    }

    /** Gives the panel a manager, and adds components to it without constraints. */
    void set(LayoutManager layout, Component... components) {
        panel.setLayout(layout);
        for (Component component : components) {
            panel.add(component);
        }
    }

    void then(Runnable task) {
        later.add(task);
    }

    List<Runnable> later() {
        return later;
    }

    void close() {
        for (Window window : frame.getOwnedWindows()) {
            window.dispose();
        }
        frame.dispose();
    }

    static <C extends Component> C named(String name, C component) {
        component.setName(name);
        return component;
    }

    /** A button that somebody listens to. */
    static JButton button(String name) {
        JButton button = named(name, new JButton(name));
        button.addActionListener(event -> {});
        return button;
    }

    /** A panel that is as large as it is told, whatever is in it. */
    static JPanel panel(String name, int width, int height) {
        JPanel panel = named(name, new JPanel(null));
        panel.setPreferredSize(new Dimension(width, height));
        return panel;
    }

    /** The same component, with sizes that no font decides. */
    static <C extends JComponent> C sized(C component) {
        component.setMinimumSize(new Dimension(10, 10));
        component.setPreferredSize(new Dimension(60, 20));
        component.setMaximumSize(new Dimension(80, 30));
        return component;
    }
}
