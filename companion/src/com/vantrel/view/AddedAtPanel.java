package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.FlowLayout;
import java.awt.Toolkit;
import java.awt.datatransfer.StringSelection;
import java.awt.event.ActionEvent;
import java.awt.event.HierarchyEvent;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;
import java.util.ArrayList;
import java.util.List;

import javax.swing.AbstractAction;
import javax.swing.Action;
import javax.swing.BorderFactory;
import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JPanel;
import javax.swing.JPopupMenu;
import javax.swing.JScrollPane;
import javax.swing.JToggleButton;
import javax.swing.KeyStroke;
import javax.swing.SwingUtilities;
import javax.swing.Timer;

import com.vantrel.model.AddedAt;
import com.vantrel.model.CallSite;
import com.vantrel.model.Editor;
import com.vantrel.model.Selection;

/**
 * Where the selected component was added: its recorded stack, of which the program's lines can be opened in an editor
 * or copied. Belongs to the event thread.
 */
public final class AddedAtPanel extends JPanel {
    private static final long serialVersionUID = 1L;

    /** A component can be added anew while it is selected. */
    private static final int MILLIS_BETWEEN_LOOKS = 500;

    private final transient Selection selection;
    private final StackRows rows = new StackRows();
    private final StackList list = new StackList(rows);
    private final PlainLabel message = new PlainLabel(" ", Look::dim, 1);
    private final Timer looks = new Timer(MILLIS_BETWEEN_LOOKS, event -> refresh());
    private transient AddedAt shown = AddedAt.of(null);

    private final Action open = action("Open in editor", KeyStroke.getKeyStroke(KeyEvent.VK_ENTER, 0),
            this::openSelected);
    private final Action copy = action("Copy line", shortcut(KeyEvent.VK_C, 0), this::copySelected);
    private final Action copyAll = action("Copy stack", shortcut(KeyEvent.VK_C, InputEvent.SHIFT_DOWN_MASK),
            () -> copy(shown.text(), "copied the stack"));

    public AddedAtPanel(Selection selection) {
        super(new BorderLayout());
        this.selection = selection;
        setName("vantrel.addedAt");
        list.setName("vantrel.addedAt.list");
        message.setName("vantrel.addedAt.message");

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
        show(shown);
        selection.onChange(this::selectionChanged);
        addHierarchyListener(event -> {
            if ((event.getChangeFlags() & HierarchyEvent.SHOWING_CHANGED) != 0) {
                showingChanged();
            }
        });
    }

    /** Opens the line that put the selected component where it is, or copies it if there is no editor. */
    public void openWhere() {
        refresh();
        open(shown.where());
    }

    private JPanel tools(EditorSettings settings) {
        JPanel tools = new JPanel(new FlowLayout(FlowLayout.LEADING, Look.GAP, Look.GAP));
        for (Action action : new Action[] {open, copy, copyAll}) {
            tools.add(new JButton(action));
        }
        JToggleButton toggle = new JToggleButton("Editor\u2026");
        toggle.setName("vantrel.addedAt.settings");
        toggle.setToolTipText("Which editor opens lines, and where the sources are");
        toggle.addActionListener(event -> {
            settings.setVisible(toggle.isSelected());
            revalidate();
        });
        tools.add(toggle);
        return tools;
    }

    private void prepareList() {
        JPopupMenu menu = new JPopupMenu();
        for (Action action : new Action[] {open, copy, copyAll}) {
            bind((KeyStroke) action.getValue(Action.ACCELERATOR_KEY), action);
            menu.add(action);
        }
        list.setComponentPopupMenu(menu);
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_RIGHT, 0), action("Open fold", null, () -> setOpen(true)));
        bind(KeyStroke.getKeyStroke(KeyEvent.VK_LEFT, 0), action("Close fold", null, () -> setOpen(false)));
        list.addMouseListener(new MouseAdapter() {
            @Override
            public void mousePressed(MouseEvent event) {
                int row = list.locationToIndex(event.getPoint());
                if (row < 0 || !list.getCellBounds(row, row).contains(event.getPoint())) {
                    return;
                }
                if (SwingUtilities.isRightMouseButton(event) && !list.isSelectedIndex(row)) {
                    list.setSelectedIndex(row); // what the menu is about
                } else if (SwingUtilities.isLeftMouseButton(event) && event.getClickCount() == 2) {
                    openSelected();
                }
            }
        });
    }

    private void bind(KeyStroke key, Action action) {
        list.getInputMap(JComponent.WHEN_FOCUSED).put(key, action.getValue(Action.NAME));
        list.getActionMap().put(action.getValue(Action.NAME), action);
    }

    private static Action action(String name, KeyStroke key, Runnable task) {
        Action action = new AbstractAction(name) {
            private static final long serialVersionUID = 1L;

            @Override
            public void actionPerformed(ActionEvent event) {
                task.run();
            }
        };
        action.putValue(Action.ACCELERATOR_KEY, key);
        if (key != null) {
            String keys = KeyEvent.getKeyModifiersText(key.getModifiers());
            action.putValue(Action.SHORT_DESCRIPTION,
                    name + " (" + keys + (keys.isEmpty() ? "" : "+") + KeyEvent.getKeyText(key.getKeyCode()) + ")");
        }
        return action;
    }

    private static KeyStroke shortcut(int key, int modifiers) {
        return KeyStroke.getKeyStroke(key, Toolkit.getDefaultToolkit().getMenuShortcutKeyMask() | modifiers);
    }

    private void showingChanged() {
        if (isShowing()) {
            refresh();
            looks.start();
        } else {
            looks.stop();
        }
    }

    private void selectionChanged() {
        message.setText(" ");
        if (isShowing() || selection.component() == null) {
            refresh();
        }
    }

    private void refresh() {
        AddedAt now = AddedAt.of(selection.component());
        if (!now.isSameAs(shown)) {
            show(now);
        }
    }

    private void show(AddedAt addedAt) {
        shown = addedAt;
        rows.show(addedAt);
        list.rowsChanged(addedAt.line());
        int where = rows.whereRow();
        if (where >= 0) {
            list.setSelectedIndex(where);
            list.ensureIndexIsVisible(where);
        }
        copyAll.setEnabled(rows.getSize() > 0);
        copy.setEnabled(rows.getSize() > 0);
        open.setEnabled(rows.getSize() > 0);
    }

    private void setOpen(boolean isOpen) {
        StackRows.Row row = list.getSelectedValue();
        if (row != null) {
            select(rows.setOpen(row, isOpen));
        }
    }

    private void select(int row) {
        if (row >= 0) {
            list.rowsChanged(shown.line());
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
            tell(new Editor.Outcome(shown.line(), true));
        } else if (Editor.isSet()) {
            Editor.open(line, outcome -> SwingUtilities.invokeLater(() -> tell(outcome)));
        } else {
            copy(CallSite.link(line), "no editor is set, so the line was copied");
        }
    }

    private void copySelected() {
        List<String> lines = new ArrayList<>();
        for (StackRows.Row row : list.getSelectedValuesList()) {
            if (row.line() != null) {
                lines.add(CallSite.link(row.line()));
            }
        }
        StackTraceElement where = shown.where();
        if (lines.isEmpty() && where != null) {
            lines.add(CallSite.link(where));
        }
        copy(String.join("\n", lines), lines.size() == 1 ? "copied " + lines.get(0) : "copied the lines");
    }

    private void copy(String text, String done) {
        try {
            Toolkit.getDefaultToolkit().getSystemClipboard().setContents(new StringSelection(text), null);
            tell(new Editor.Outcome(done, false));
        } catch (IllegalStateException e) {
            tell(new Editor.Outcome("the clipboard is in use by another program; try again", true));
        }
    }

    private void tell(Editor.Outcome outcome) {
        message.setText(outcome.line());
        message.setToolTipText(outcome.line());
        message.setColor(outcome.isFailure() ? Look::error : Look::dim);
    }
}
