package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.Cursor;
import java.awt.GridLayout;
import java.awt.Rectangle;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;
import java.util.ArrayList;
import java.util.List;

import javax.swing.BorderFactory;
import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.JTable;

import com.vantrel.model.AddedAt;
import com.vantrel.model.CallSite;
import com.vantrel.model.Code;
import com.vantrel.model.Facts;
import com.vantrel.model.Reading;
import com.vantrel.model.Row;
import com.vantrel.model.Target;

/** What is selected, in three lines: class and name, size and state, and the line of the program that added it. */
final class Header extends JPanel {
    private static final long serialVersionUID = 1L;

    private final JLabel what = new JLabel();
    private final JLabel state = new JLabel();
    private final JLabel where = new JLabel();
    private StackTraceElement line;

    /** @param open opens the line that added the component */
    Header(Runnable open) {
        super(new BorderLayout());
        setName("vantrel.header");
        what.setName("vantrel.header.what");
        state.setName("vantrel.header.state");
        where.setName("vantrel.header.where");
        JPanel lines = new JPanel(new GridLayout(0, 1, 0, 2));
        lines.add(what);
        lines.add(state);
        lines.add(where);
        add(lines, BorderLayout.CENTER);
        where.addMouseListener(new MouseAdapter() {
            @Override
            public void mousePressed(MouseEvent event) {
                if (line != null) {
                    open.run();
                }
            }
        });
        look();
    }

    private void look() {
        setBorder(BorderFactory.createCompoundBorder(BorderFactory.createMatteBorder(0, 0, 1, 0, Look.line()),
                BorderFactory.createEmptyBorder(Look.GAP, 2 * Look.GAP, Look.GAP, 2 * Look.GAP)));
        what.setFont(Look.bold().deriveFont(Look.bold().getSize2D() + 2));
        state.setFont(Look.font());
        where.setFont(Look.font());
        state.setForeground(Look.dim());
    }

    @Override
    public void updateUI() {
        super.updateUI();
        if (what != null) { // it is called by the superclass's constructor, too
            look();
        }
    }

    /** Adds something below the lines. */
    void addBelow(Component part) {
        add(part, BorderLayout.SOUTH);
    }

    /** @param reading null for nothing */
    void show(Reading reading) {
        Component component = reading == null ? null : reading.target().component();
        if (component == null) {
            set(what, "");
            set(state, "");
            showLine(null, "");
            return;
        }
        Target target = reading.target();
        String cell = target.isCell() ? cell(target, component) + " of " : "";
        set(what, cell + Code.describe(component));
        what.setForeground(Code.isMachinery(component.getClass()) ? Look.foreground() : Look.own());
        set(state, String.join("  \u00b7  ", states(reading, component)));
        AddedAt added = AddedAt.of(component);
        showLine(added.where(), added.line());
    }

    private static String cell(Target target, Component owner) {
        return owner instanceof JTable ? "Cell " + target.row() + ", " + target.column() : "Cell " + target.row();
    }

    private void showLine(StackTraceElement now, String otherwise) {
        line = now;
        set(where, now == null ? otherwise : "added at " + CallSite.summary(now));
        where.setToolTipText(now == null ? null : "Click to open it in the editor");
        where.setForeground(now == null ? Look.dim() : Look.own());
        where.setCursor(Cursor.getPredefinedCursor(now == null ? Cursor.DEFAULT_CURSOR : Cursor.HAND_CURSOR));
    }

    private static List<String> states(Reading reading, Component component) {
        List<String> states = new ArrayList<>();
        Rectangle box = reading.target().isCell() ? reading.cellBounds() : Facts.bounds(component);
        if (box != null) {
            states.add(box.width + " \u00d7 " + box.height + " at " + box.x + ", " + box.y);
        }
        if (reading.target().isCell()) {
            states.add("the renderer's component, read-only");
            return states;
        }
        if (!component.isDisplayable()) {
            return states; // the banner above says that it is in no window any more
        }
        addIf(states, reading, "enabled", false, "disabled");
        addIf(states, reading, "visible", false, "invisible");
        if (isTicked(reading, "visible", true)) {
            addIf(states, reading, "showing", false, "not showing");
        }
        addIf(states, reading, "valid", false, "not laid out");
        addIf(states, reading, "editable", false, "not editable");
        addIf(states, reading, "selected", true, "selected");
        addIf(states, reading, "focusOwner", true, "has the focus");
        return states;
    }

    private static void addIf(List<String> states, Reading reading, String property, boolean value, String text) {
        if (isTicked(reading, property, value)) {
            states.add(text);
        }
    }

    private static boolean isTicked(Reading reading, String property, boolean value) {
        Row row = reading.row(property);
        return row != null && row.check() != null && row.check() == value;
    }

    /**
     * Sets a label's text only if it has changed, because each setting lays out the label and everything around it
     * anew.
     */
    private static void set(JLabel label, String text) {
        String shown = text.isEmpty() ? " " : RowPainter.oneLine(text);
        if (!shown.equals(label.getText())) {
            // The program's names and texts are shown as they stand.
            label.putClientProperty("html.disable", Boolean.TRUE);
            label.setText(shown);
            if (!shown.equals(" ")) {
                label.setToolTipText(Tips.of(shown));
            }
        }
    }
}
