package orchard;

import java.awt.Window;

import javax.swing.ButtonGroup;
import javax.swing.JMenu;
import javax.swing.JRadioButtonMenuItem;
import javax.swing.SwingUtilities;
import javax.swing.UIManager;
import javax.swing.UnsupportedLookAndFeelException;

/** The looks and feels that this Java has. */
final class Looks {
    private Looks() {
    }

    /** Changes the look of all windows. A look that this Java does not have changes nothing. */
    static void use(String name) {
        for (UIManager.LookAndFeelInfo look : UIManager.getInstalledLookAndFeels()) {
            if (look.getName().equalsIgnoreCase(name)) {
                use(look);
            }
        }
    }

    private static void use(UIManager.LookAndFeelInfo look) {
        try {
            UIManager.setLookAndFeel(look.getClassName());
        } catch (ReflectiveOperationException | UnsupportedLookAndFeelException e) {
            System.err.println("The look " + look.getName() + " cannot be used: " + e.getMessage());
            return;
        }
        for (Window window : Window.getWindows()) {
            SwingUtilities.updateComponentTreeUI(window);
        }
    }

    static JMenu menu() {
        JMenu menu = new JMenu("Look");
        menu.setName("menu.look");
        ButtonGroup group = new ButtonGroup();
        for (UIManager.LookAndFeelInfo look : UIManager.getInstalledLookAndFeels()) {
            boolean isUsed = UIManager.getLookAndFeel().getClass().getName().equals(look.getClassName());
            JRadioButtonMenuItem item = new JRadioButtonMenuItem(look.getName(), isUsed);
            item.addActionListener(event -> use(look));
            group.add(item);
            menu.add(item);
        }
        return menu;
    }
}
