package why;

import static why.Stage.button;
import static why.Stage.named;
import static why.Stage.sized;

import java.awt.AWTEvent;
import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.FlowLayout;
import java.awt.event.ActionEvent;
import java.awt.event.MouseAdapter;
import java.util.Map;
import java.util.function.Function;

import javax.swing.AbstractAction;
import javax.swing.Action;
import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JDialog;
import javax.swing.JLabel;
import javax.swing.JLayer;
import javax.swing.JPanel;
import javax.swing.JTextField;
import javax.swing.plaf.LayerUI;

/**
 * Components that do not react to the mouse or the keyboard. They lie in a FlowLayout, in the size that they prefer.
 */
final class Reacting {
    private Reacting() {
    }

    static void list(Map<String, Function<Stage, Component>> cases) {
        cases.put("disabled", Reacting::disabled);
        cases.put("disabled by way of its own method", Reacting::byOverride);
        cases.put("disabled by its action", Reacting::byAction);
        cases.put("in a disabled window", Reacting::windowDisabled);
        cases.put("in a window without focus", Reacting::windowNotFocusable);
        cases.put("nobody listens", Reacting::nobodyListens);
        cases.put("not editable", Reacting::notEditable);
        cases.put("not focusable", Reacting::notFocusable);
        cases.put("behind a modal dialog", Reacting::modal);
        cases.put("below a glass pane", Reacting::glass);
        cases.put("below a label with a tooltip", Reacting::toolTip);
        cases.put("below a transparent panel", Reacting::transparent);
        cases.put("in a layer", Reacting::layer);
    }

    private static Component disabled(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new FlowLayout(), button);
        button.setEnabled(false);
        return button;
    }

    private static final class Switch extends JButton {
        private static final long serialVersionUID = 1L;

        Switch() {
            super("On");
            addActionListener(event -> {});
        }

        @Override
        public void setEnabled(boolean enabled) {
            super.setEnabled(enabled);
        }
    }

    private static Component byOverride(Stage stage) {
        Switch button = sized(named("switch", new Switch()));
        stage.set(new FlowLayout(), button);
        button.setEnabled(false);
        return button;
    }

    private static Component byAction(Stage stage) {
        Action save = new AbstractAction("Save") {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
                // Nothing is to be saved.
            }
        };
        JButton button = sized(named("save", new JButton(save)));
        stage.set(new FlowLayout(), button);
        save.setEnabled(false);
        return button;
    }

    private static Component windowDisabled(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new FlowLayout(), button);
        stage.frame.setEnabled(false);
        return button;
    }

    private static Component windowNotFocusable(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new FlowLayout(), button);
        stage.frame.setFocusableWindowState(false);
        return button;
    }

    private static Component nobodyListens(Stage stage) {
        JButton button = sized(named("help", new JButton("Help")));
        stage.set(new FlowLayout(), button);
        return button;
    }

    private static Component notEditable(Stage stage) {
        JTextField field = sized(named("field", new JTextField()));
        stage.set(new FlowLayout(), field);
        field.setEditable(false);
        return field;
    }

    private static Component notFocusable(Stage stage) {
        JTextField field = sized(named("field", new JTextField()));
        stage.set(new FlowLayout(), field);
        field.setFocusable(false);
        return field;
    }

    private static Component modal(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new FlowLayout(), button);
        JDialog dialog = new JDialog(stage.frame, "Log in", true);
        dialog.add(new JLabel("Who are you?"));
        dialog.pack();
        dialog.setLocation(600, 400);
        stage.then(() -> dialog.setVisible(true));
        return button;
    }

    private static Component glass(Stage stage) {
        JButton button = sized(button("ok"));
        stage.set(new FlowLayout(), button);
        JComponent glass = named("glass", new JPanel());
        glass.setOpaque(false);
        glass.addMouseListener(new Blocker());
        stage.frame.setGlassPane(glass);
        glass.setVisible(true);
        return button;
    }

    private static final class Blocker extends MouseAdapter {}

    private static Component toolTip(Stage stage) {
        JLabel hint = named("hint", new JLabel());
        hint.setToolTipText("Press the button");
        hint.setBounds(0, 0, 300, 200);
        JButton button = button("ok");
        button.setBounds(10, 10, 60, 20);
        stage.set(null, hint, button);
        return button;
    }

    private static Component transparent(Stage stage) {
        JPanel over = named("over", new JPanel());
        over.setOpaque(false);
        over.setBounds(0, 0, 300, 200);
        JButton button = button("ok");
        button.setBounds(10, 10, 60, 20);
        stage.set(null, over, button);
        return button;
    }

    private static Component layer(Stage stage) {
        JButton button = sized(button("ok"));
        JPanel inside = named("inside", new JPanel());
        inside.add(button);
        stage.set(new BorderLayout(), named("layer", new JLayer<>(inside, new Veil())));
        return button;
    }

    /** Looks at the mouse events of all that is in its layer. */
    private static final class Veil extends LayerUI<JPanel> {
        private static final long serialVersionUID = 1L;

        @Override
        public void installUI(JComponent layer) {
            super.installUI(layer);
            ((JLayer<?>) layer).setLayerEventMask(AWTEvent.MOUSE_EVENT_MASK);
        }
    }
}
