package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Component;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.function.Consumer;

import javax.swing.JPanel;
import javax.swing.JSplitPane;

import com.vantrel.model.CallStack;
import com.vantrel.model.Editor;
import com.vantrel.model.Row;
import com.vantrel.model.Selection;
import com.vantrel.record.Change;
import com.vantrel.record.ChangeRecorder;
import com.vantrel.record.SetBys;

/**
 * Who has set the properties of the selected component: the recorded changes, the last one first, and the whole stack
 * of the one that is selected. Belongs to the event thread.
 */
final class ChangesPanel extends JPanel {
    private static final long serialVersionUID = 1L;

    private static final String NONE_YET = "no change was recorded";
    private static final String WHY_NONE = "Nothing has set a property of this component since this window was opened. "
            + "-Dvantrel.record=changes records from the program's start.";

    private final transient Selection selection;
    private final RowsPanel rows = new RowsPanel("vantrel.changes", "Filter changes");
    private final StackPanel stack = new StackPanel("vantrel.changes.stack");
    /** The changes that the rows stand for, in their order. */
    private transient List<Change> changes = Collections.emptyList();
    private transient List<Row> shown = Collections.emptyList();
    private transient Change stackOf;

    ChangesPanel(Selection selection) {
        super(new BorderLayout());
        this.selection = selection;
        Split split = new Split(JSplitPane.VERTICAL_SPLIT, rows, stack);
        split.setResizeWeight(0.5);
        rows.hideStrip();
        add(split);
        rows.table().getSelectionModel().addListSelectionListener(event -> showStack());
        rows.table().onActivate(row -> {
            showStack();
            stack.openWhere();
            return true;
        });
        stack.show(CallStack.of(), NONE_YET);
    }

    /** Sets who else is told what became of an attempt to open a line, while this panel does not show. */
    void onOutcome(Consumer<Editor.Outcome> listener) {
        stack.onOutcome(listener);
    }

    /** Shows the changes as they are now. */
    void refresh(boolean flash) {
        Component component = selection.component();
        changes = component == null ? Collections.<Change>emptyList() : ChangeRecorder.of(component);
        shown = new ArrayList<>();
        for (Change change : changes) {
            shown.add(SetBys.row(change));
        }
        rows.show(changes.isEmpty() ? Collections.singletonList(Row.of("Changes", "none", WHY_NONE).kind(Row.Kind.DIM))
                                    : shown,
                flash);
        showStack();
    }

    /** Selects the last change of a property. */
    void select(String property) {
        for (int i = 0; i < changes.size(); i++) {
            if (changes.get(i).what().equalsIgnoreCase(property)) {
                rows.table().select(shown.get(i));
                return;
            }
        }
    }

    private void showStack() {
        Row row = rows.table().selectedRow();
        int at = shown.indexOf(row);
        Change change = at < 0 ? null : changes.get(at);
        if (change != stackOf) {
            stackOf = change;
            stack.show(change == null ? CallStack.of() : change.stack(), NONE_YET);
        }
    }
}
