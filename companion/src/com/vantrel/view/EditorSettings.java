package com.vantrel.view;

import java.awt.GridBagConstraints;
import java.awt.GridBagLayout;
import java.awt.Insets;
import java.awt.event.FocusAdapter;
import java.awt.event.FocusEvent;
import java.util.function.Consumer;

import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.JTextField;

import com.vantrel.model.Editor;
import com.vantrel.model.EditorCommand;
import com.vantrel.model.Settings;

/** Where the user says which editor opens lines, and where the sources are. Belongs to the event thread. */
final class EditorSettings extends JPanel {
    private static final long serialVersionUID = 1L;

    private static final int COLUMNS = 24;
    private static final float HINT_SIZE = 0.9f;

    private final transient Consumer<Editor.Outcome> told;
    private int row;

    /** @param told is told what is wrong with the entered text, or that it is remembered */
    EditorSettings(Consumer<Editor.Outcome> told) {
        super(new GridBagLayout());
        this.told = told;
        setBorder(Look.padding());
        add("Editor command", Editor.COMMAND, "Such as: idea --line %line %file",
                "Quotes keep words together; no shell is used");
        add("Source folders", Editor.SOURCES, "The folder that the program runs in is searched, too",
                "Separated as in a class path");
    }

    private void add(String title, String setting, String hint, String more) {
        JTextField field = new JTextField(Settings.get(setting, ""), COLUMNS);
        field.setName("vantrel.addedAt." + setting);
        field.setToolTipText(more);
        field.addActionListener(event -> remember(setting, field));
        field.addFocusListener(new FocusAdapter() {
            @Override
            public void focusLost(FocusEvent event) {
                if (!field.getText().trim().equals(Settings.get(setting, ""))) {
                    remember(setting, field);
                }
            }
        });
        JLabel label = new PlainLabel(title, Look::foreground, 1);
        label.setLabelFor(field);
        JLabel help = new PlainLabel(hint, Look::dim, HINT_SIZE);
        add(label, at(0, row, 0));
        add(field, at(1, row, 1));
        add(help, at(1, row + 1, 1));
        row += 2;
    }

    private static GridBagConstraints at(int column, int row, double weight) {
        return new GridBagConstraints(column, row, 1, 1, weight, 0, GridBagConstraints.LINE_START,
                GridBagConstraints.HORIZONTAL, new Insets(0, 0, row % 2 == 0 ? 1 : Look.GAP, 2 * Look.GAP), 0, 0);
    }

    private void remember(String setting, JTextField field) {
        String value = field.getText().trim();
        boolean isRemembered = Settings.set(setting, value);
        told.accept(new Editor.Outcome(isRemembered ? "remembered"
                                                    : "holds until the program ends; the settings file "
                                + "cannot be written",
                !isRemembered));
        if (setting.equals(Editor.COMMAND) && !value.isEmpty()) {
            try {
                new EditorCommand(value);
            } catch (IllegalArgumentException e) {
                told.accept(new Editor.Outcome(e.getMessage(), true));
            }
        }
    }
}
