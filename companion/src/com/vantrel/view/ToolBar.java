package com.vantrel.view;

import java.awt.Graphics;
import java.awt.GridBagConstraints;
import java.awt.GridBagLayout;
import java.awt.Insets;

import javax.swing.AbstractButton;
import javax.swing.Action;
import javax.swing.BorderFactory;
import javax.swing.JComponent;

/** The row of buttons at the top of the window, with the search among them. */
final class ToolBar extends JComponent {
    private static final long serialVersionUID = 1L;

    private final FlatButton pick;
    private final FlatButton machinery;
    private int column;

    ToolBar(Commands commands, SearchBar search) {
        setLayout(new GridBagLayout());
        setBorder(BorderFactory.createEmptyBorder(Look.GAP, Look.GAP, Look.GAP, Look.GAP));
        pick = new FlatButton(commands.pick, ToolIcon.PICK, true).named();
        pick.setName("vantrel.pick");
        machinery = new FlatButton(commands.machinery, ToolIcon.MACHINERY, true);
        machinery.setName("vantrel.machinery");
        put(pick, 0, Look.GAP);
        put(FlatButton.of(commands.back, ToolIcon.BACK), 0, 0);
        put(FlatButton.of(commands.forward, ToolIcon.FORWARD), 0, Look.GAP);
        put(search, 1, Look.GAP);
        put(machinery, 0, Look.GAP);
        put(FlatButton.of(commands.undo, ToolIcon.UNDO), 0, 0);
        put(FlatButton.of(commands.redo, ToolIcon.REDO), 0, 0);
    }

    private void put(JComponent part, int weight, int gap) {
        if (part instanceof AbstractButton && part.getName() == null) {
            part.setName("vantrel."
                    + ((AbstractButton) part)
                              .getAction()
                              .getValue(Action.NAME)
                              .toString()
                              .toLowerCase(java.util.Locale.ROOT));
        }
        add(part,
                new GridBagConstraints(column++, 0, 1, 1, weight, 0, GridBagConstraints.CENTER,
                        weight > 0 ? GridBagConstraints.HORIZONTAL : GridBagConstraints.NONE, new Insets(0, 0, 0, gap),
                        0, 0));
    }

    /** Shows what is switched on. */
    void update(boolean picking, boolean showsMachinery) {
        pick.setSelected(picking);
        machinery.setSelected(showsMachinery);
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        graphics.setColor(Look.background());
        graphics.fillRect(0, 0, getWidth(), getHeight());
        graphics.setColor(Look.line());
        graphics.fillRect(0, getHeight() - 1, getWidth(), 1);
    }
}
