package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.FlowLayout;
import java.awt.event.ComponentAdapter;
import java.awt.event.ComponentEvent;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.function.Consumer;

import javax.swing.Action;
import javax.swing.BorderFactory;
import javax.swing.JPanel;
import javax.swing.JPopupMenu;
import javax.swing.JScrollPane;
import javax.swing.KeyStroke;
import javax.swing.SwingUtilities;

import com.vantrel.model.CallSite;
import com.vantrel.model.CallStack;
import com.vantrel.model.Editor;

/** A recorded stack, whose lines can be opened in an editor or copied. Belongs to the event thread. */
final class StackPanel extends JPanel {
    private static final long serialVersionUID = 1L;

    private static final List<StackTraceElement> NONE = Collections.emptyList();

    private final StackRows rows = new StackRows();
    private final StackList list = new StackList(rows);
    private final PlainLabel message = new PlainLabel(" ", Look::dim, 1);
    private transient CallStack shown = CallStack.of();
    private String whyNoWhere = "";

    private transient Consumer<Editor.Outcome> elsewhere = outcome -> {};

    private final Command open =
            new Command("Open in Editor", "ENTER", "Opens the line in your editor", this::hasTrace, this::openSelected);
    private final Command copy = new Command(
            "Copy Line", "ctrl C", "Copies the line, so that it can become a link", this::hasTrace, this::copySelected);
    private final Command copyAll = new Command(
            "Copy Stack", null, "Copies all lines", this::hasTrace, () -> copy(shown.text(), "copied the stack"));

    /** @param name the panel's, for scripts; those of its parts begin with it */
    StackPanel(String name) {
        super(new BorderLayout());
        setName(name);
        list.setName(name + ".list");
        message.setName(name + ".message");

        EditorSettings settings = new EditorSettings(this::tell);
        settings.setVisible(false);
        JScrollPane scroll = new JScrollPane(list);
        scroll.setBorder(BorderFactory.createEmptyBorder());
        JPanel foot = new JPanel(new BorderLayout());
        foot.add(settings, BorderLayout.CENTER);
        foot.add(message, BorderLayout.SOUTH);
        message.setBorder(Look.padding());
        add(tools(settings), BorderLayout.NORTH);
        add(scroll, BorderLayout.CENTER);
        add(foot, BorderLayout.SOUTH);
        prepareList();
    }

    /** Sets who else is told what became of an attempt to open a line, while this panel does not show. */
    void onOutcome(Consumer<Editor.Outcome> listener) {
        elsewhere = listener;
    }

    /** Shows a stack, and selects the program's innermost line. */
    void show(CallStack stack, String whyNone) {
        shown = stack;
        whyNoWhere = whyNone;
        rows.show(stack);
        list.rowsChanged(whyNone);
        int where = rows.whereRow();
        if (where >= 0) {
            list.setSelectedIndex(where);
            list.ensureIndexIsVisible(where);
        }
        for (Command command : new Command[] {open, copy, copyAll}) {
            command.update();
        }
    }

    /** Clears the message about the last attempt. */
    void clearMessage() {
        message.setText(" ");
    }

    /** Opens the program's innermost line, or copies it if there is no editor. */
    void openWhere() {
        open(shown.where());
    }

    private JPanel tools(EditorSettings settings) {
        JPanel tools = new JPanel(new FlowLayout(FlowLayout.LEADING, Look.GAP, Look.GAP));
        for (Command command : new Command[] {open, copy, copyAll}) {
            tools.add(FlatButton.of(command, null).named());
        }
        Command toggle = new Command(
                "Editor\u2026", "ctrl E", "Which editor opens lines, and where the sources are", () -> true, () -> {
                    settings.setVisible(!settings.isVisible());
                    revalidate();
                });
        FlatButton button = new FlatButton(toggle.in(this), null, true).named();
        button.setName(getName() + ".settings");
        settings.addComponentListener(new ComponentAdapter() {
            @Override
            public void componentShown(ComponentEvent event) {
                button.setSelected(true);
            }

            @Override
            public void componentHidden(ComponentEvent event) {
                button.setSelected(false);
            }
        });
        tools.add(button);
        return tools;
    }

    private void prepareList() {
        JPopupMenu menu = new JPopupMenu();
        for (Command command : new Command[] {open, copy, copyAll}) {
            bind(command);
            menu.add(command);
        }
        list.setComponentPopupMenu(menu);
        bind(new Command("Open Fold", "RIGHT", "", this::hasTrace, () -> setOpen(true)));
        bind(new Command("Close Fold", "LEFT", "", this::hasTrace, () -> setOpen(false)));
        list.addMouseListener(new MouseAdapter() {
            private final DoubleClick doubleClick = new DoubleClick();

            @Override
            public void mousePressed(MouseEvent event) {
                int row = list.locationToIndex(event.getPoint());
                boolean on = row >= 0 && list.getCellBounds(row, row).contains(event.getPoint());
                if (doubleClick.isEndedBy(event, on ? row : null)) {
                    openSelected();
                } else if (on && SwingUtilities.isRightMouseButton(event) && !list.isSelectedIndex(row)) {
                    list.setSelectedIndex(row); // the menu is about the row that was clicked
                }
            }
        });
    }

    /** Has a command's key work in the list, where it comes before the list's own use of that key. */
    private void bind(Command command) {
        list.getInputMap().put((KeyStroke) command.getValue(Action.ACCELERATOR_KEY), command);
        list.getActionMap().put(command, command);
    }

    private boolean hasTrace() {
        return rows.getSize() > 0;
    }

    private void setOpen(boolean isOpen) {
        StackRows.Row row = list.getSelectedValue();
        if (row != null) {
            select(rows.setOpen(row, isOpen));
        }
    }

    private void select(int row) {
        if (row >= 0) {
            list.rowsChanged(whyNoWhere);
            list.setSelectedIndex(row);
            list.ensureIndexIsVisible(row);
        }
    }

    private void openSelected() {
        StackRows.Row row = list.getSelectedValue();
        if (row == null) {
            open(shown.where());
        } else if (row.line() == null) {
            setOpen(!rows.isOpen(row));
        } else {
            open(row.line());
        }
    }

    private void open(StackTraceElement line) {
        if (line == null) {
            tell(new Editor.Outcome(whyNoWhere, true));
        } else {
            OpenLine.open(line, this::tell);
        }
    }

    private void copySelected() {
        List<String> lines = new ArrayList<>();
        for (StackRows.Row row : list.getSelectedValuesList()) {
            for (StackTraceElement line : rows.isOpen(row) && row.line() == null ? NONE : row.lines()) {
                lines.add(CallSite.link(line));
            }
        }
        if (lines.size() == 1) {
            copy(lines.get(0), "copied " + lines.get(0));
        } else if (!lines.isEmpty()) {
            copy("\t" + String.join("\n\t", lines), "copied " + lines.size() + " lines");
        }
    }

    private void copy(String text, String done) {
        OpenLine.copy(text, done, this::tell);
    }

    private void tell(Editor.Outcome outcome) {
        message.setText(outcome.line());
        message.setToolTipText(Tips.of(outcome.line()));
        message.setColor(outcome.isFailure() ? Look::error : Look::dim);
        if (!isShowing()) {
            elsewhere.accept(outcome);
        }
    }
}
