package com.vantrel.view;

import java.awt.Component;
import java.lang.ref.WeakReference;
import java.util.Arrays;
import java.util.List;

import javax.swing.JComponent;

import com.vantrel.model.Code;
import com.vantrel.model.Description;
import com.vantrel.model.Edits;
import com.vantrel.model.Facts;
import com.vantrel.model.Selection;
import com.vantrel.model.Showing;

/** Everything that the user can have the window do; its menus, buttons and keys share these commands. */
final class Commands {
    final Command pick;
    final Command find;
    final Command back;
    final Command forward;
    final Command parent;
    final Command outline;
    final Command copyPath;
    final Command copyClass;
    final Command copyDescription;
    final Command machinery;
    final Command expandAll;
    final Command collapseAll;
    final Command undo;
    final Command redo;

    private final Selection selection;
    private final TreePane tree;
    private final Edits edits;
    private final Sight sight;
    private final StatusLine status;
    /** The component that has a box around it in the program, until another one is selected. */
    private WeakReference<Component> shown = new WeakReference<>(null);

    Commands(Selection selection, Edits edits, TreePane tree, Sight sight, StatusLine status,
            Runnable machineryChanged) {
        this.selection = selection;
        this.tree = tree;
        this.edits = edits;
        this.sight = sight;
        this.status = status;
        selection.onChange(() -> {
            if (shown() != null && shown() != selection.component()) {
                hide();
            }
        });
        pick = new Command("Pick", "F8", "Selects what you click in the program next", sight::canPick,
                () -> sight.pick(!sight.isPicking()));
        find = new Command("Find", "ctrl F", "Searches for components", () -> true, () -> {
            tree.searchBar().field().requestFocusInWindow();
            tree.searchBar().field().selectAll();
        });
        back = new Command(
                "Back", "alt LEFT", "Selects what was selected before", selection::canGoBack, selection::back);
        forward = new Command(
                "Forward", "alt RIGHT", "Selects what was selected after", selection::canGoForward, selection::forward);
        parent = new Command("Select Parent", "alt UP", "Selects what the component is in",
                () -> parentOfSelected() != null, () -> selection.select(parentOfSelected()));
        outline = new Command("Show in Program", "alt ENTER",
                "Draws a box around the component in the program, or takes it away again", this::hasSelected,
                this::showOrHide);
        copyPath = new Command("Copy Path", "ctrl shift C", "Copies where the component is, from its window on",
                this::hasSelected, () -> status.copied("path", Description.pathText(selection.component())));
        copyClass = new Command("Copy Class", null, "Copies the full name of the component's class", this::hasSelected,
                () -> status.copied("class", selection.component().getClass().getName()));
        copyDescription = new Command("Copy Description", "ctrl shift D",
                "Copies what there is to know of the component, to paste into a report", this::hasSelected,
                () -> status.copied("description", Description.of(selection.component())));
        machinery = new Command(
                "Machinery", "ctrl M", "Shows root panes, viewports, scroll bars and the like, too", () -> true, () -> {
                    tree.showMachinery(!tree.tree().showsMachinery());
                    machineryChanged.run();
                });
        expandAll = new Command(
                "Expand All", "ctrl shift E", "Expands everything", () -> true, () -> tree.setAllExpanded(true));
        collapseAll = new Command(
                "Collapse All", "ctrl shift W", "Collapses everything", () -> true, () -> tree.setAllExpanded(false));
        undo = new Command("Undo", "ctrl Z", "", edits::canUndo, edits::undo);
        redo = new Command("Redo", "ctrl Y", "", edits::canRedo, edits::redo);
    }

    private void showOrHide() {
        Component component = selection.component();
        Showing showing = Showing.of(component);
        if (component == shown()) {
            hide();
        } else if (showing == Showing.YES) {
            shown = new WeakReference<>(component);
            sight.outline(component);
        } else {
            status.say(Code.describe(component) + " cannot be seen: " + showing.words() + ".", true);
        }
    }

    private void hide() {
        shown.clear();
        sight.outline(null);
    }

    /**
     * The component that the user wants a box around; null for none. A box around another row's component takes its
     * place for a while.
     */
    Component shown() {
        return shown.get();
    }

    private boolean hasSelected() {
        return selection.component() != null;
    }

    private Component parentOfSelected() {
        Component component = selection.component();
        if (component == null) {
            return null;
        }
        List<Component> path = Description.path(component);
        return tree.tree().showsMachinery() ? Facts.parent(component)
                : path.size() < 2           ? null
                                            : path.get(path.size() - 2);
    }

    private List<Command> all() {
        return Arrays.asList(pick, find, back, forward, parent, outline, copyPath, copyClass, copyDescription,
                machinery, expandAll, collapseAll, undo, redo);
    }

    /** Has the commands' keys work anywhere in the window. */
    void bind(JComponent root) {
        for (Command command : all()) {
            command.in(root);
        }
    }

    /** Looks again at what can be done now. */
    void update() {
        undo.describe(("Undoes " + edits.whatToUndo()).trim());
        redo.describe(("Does again " + edits.whatToRedo()).trim());
        for (Command command : all()) {
            command.update();
        }
    }
}
