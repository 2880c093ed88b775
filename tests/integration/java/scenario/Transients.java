package scenario;

import java.awt.Component;
import java.awt.Dialog.ModalityType;
import java.awt.Frame;
import java.awt.Window;
import java.awt.event.MouseAdapter;
import java.util.Map;

import javax.swing.JButton;
import javax.swing.JComboBox;
import javax.swing.JComponent;
import javax.swing.JDialog;
import javax.swing.JFrame;
import javax.swing.JMenuItem;
import javax.swing.JPanel;
import javax.swing.JPopupMenu;
import javax.swing.SwingUtilities;

/** Windows that come and go: popup menus, a combo box's list, dialogs, a second frame; and the glass pane. */
final class Transients {
    private static final Map<String, ModalityType> MODALITIES = Map.of("document", ModalityType.DOCUMENT_MODAL,
            "application", ModalityType.APPLICATION_MODAL, "toolkit", ModalityType.TOOLKIT_MODAL);

    private final Things things;
    private JDialog dialog;
    private JPopupMenu popup;

    Transients(Things things) {
        this.things = things;
    }

    /** Opens a popup menu below the OK button: "light" or "heavy"; "none" closes it. Tells whether one is open. */
    String popup(String kind) {
        if (popup != null && !kind.equals("?")) {
            popup.setVisible(false);
            popup = null;
        }
        if (kind.equals("light") || kind.equals("heavy")) {
            popup = things.named("popup", new JPopupMenu());
            popup.add(things.named("popup.cut", new JMenuItem("Cut")));
            popup.add(things.named("popup.paste", new JMenuItem("Paste")));
            popup.setLightWeightPopupEnabled(kind.equals("light"));
            Component invoker = things.get("ok");
            popup.show(invoker, 5, invoker.getHeight());
        }
        return popup != null && popup.isVisible() ? "open" : "closed";
    }

    /** Opens or closes the combo box's list: "open", "closed". Tells whether it is open. */
    String combo(String state) {
        JComboBox<?> combo = things.get("currency", JComboBox.class);
        if (!state.equals("?")) {
            combo.setPopupVisible(state.equals("open"));
        }
        return combo.isPopupVisible() ? "open" : "closed";
    }

    /** Shows a dialog of a modality ("modeless" and so on), in the place of the last one; "none" closes that. */
    String dialog(String modality) {
        if (modality.equals("?")) {
            return dialog != null && dialog.isShowing() ? "open" : "closed";
        }
        if (dialog != null) {
            dialog.dispose();
            dialog = null;
        }
        if (!modality.equals("none")) {
            dialog = things.named("dialog", new JDialog(things.get("main", Frame.class), modality));
            dialog.setModalityType(MODALITIES.getOrDefault(modality, ModalityType.MODELESS));
            dialog.add(things.named("dialog.button", new JButton("In the dialog")));
            dialog.setBounds(200, 200, 200, 100);
            JDialog shown = dialog;
            SwingUtilities.invokeLater(() -> shown.setVisible(true)); // returns only once a modal one is closed
        }
        return "";
    }

    String frame(String name) {
        JFrame frame = things.named(name, new JFrame(name));
        frame.add(new JPanel());
        frame.setBounds(100, 640, 300, 100);
        frame.setVisible(true);
        return "";
    }

    String glass(String state) {
        JComponent glass = (JComponent) things.get("main", JFrame.class).getGlassPane();
        glass.addMouseListener(new MouseAdapter() {});
        glass.setVisible(state.equals("on"));
        return "";
    }

    /** Gives the main window the whole screen, or takes it back, by the toolkit's own function. */
    String fullScreen(String state) {
        JFrame main = things.get("main", JFrame.class);
        main.getGraphicsConfiguration().getDevice().setFullScreenWindow(state.equals("on") ? main : null);
        return "";
    }

    String disposeAll() {
        for (Window window : Window.getWindows()) {
            if (!Scenario.isInspectors(window)) {
                window.dispose();
            }
        }
        return "";
    }
}
