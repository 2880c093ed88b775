package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.event.HierarchyEvent;
import java.util.function.Consumer;

import javax.swing.JPanel;
import javax.swing.Timer;

import com.vantrel.model.AddedAt;
import com.vantrel.model.Editor;
import com.vantrel.model.Selection;

/** Where the selected component was added: its recorded stack. Belongs to the event thread. */
public final class AddedAtPanel extends JPanel {
    private static final long serialVersionUID = 1L;

    /** Looks again and again, because a selected component can be removed and added anew. */
    private static final int MILLIS_BETWEEN_LOOKS = 500;

    private final transient Selection selection;
    private final StackPanel stack = new StackPanel("vantrel.addedAt");
    private final Timer looks = new Timer(MILLIS_BETWEEN_LOOKS, event -> refresh());
    private transient AddedAt shown;

    public AddedAtPanel(Selection selection) {
        super(new BorderLayout());
        this.selection = selection;
        add(stack);
        refresh();
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
        stack.openWhere();
    }

    /** Sets who else is told what became of an attempt to open a line, while this panel does not show. */
    public void onOutcome(Consumer<Editor.Outcome> listener) {
        stack.onOutcome(listener);
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
        stack.clearMessage();
        if (isShowing() || selection.component() == null) {
            refresh();
        }
    }

    private void refresh() {
        AddedAt now = AddedAt.of(selection.component());
        if (!now.isSameAs(shown)) {
            shown = now;
            stack.show(now.stack(), now.line());
        }
    }
}
