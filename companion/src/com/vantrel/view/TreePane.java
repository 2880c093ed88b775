package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.CardLayout;
import java.awt.Component;
import java.awt.event.ComponentAdapter;
import java.awt.event.ComponentEvent;
import java.util.List;
import java.util.concurrent.TimeUnit;

import javax.swing.BorderFactory;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.SwingUtilities;
import javax.swing.Timer;

import com.vantrel.model.ComponentTree;
import com.vantrel.model.ProgramWindows;
import com.vantrel.model.Selection;
import com.vantrel.model.TreeNode;
import com.vantrel.model.TreeSearch;

/** The tree of the program's components with its search, kept up to date while it is shown. */
final class TreePane extends JPanel {
    private static final long serialVersionUID = 1L;

    /**
     * How often it looks at the program. A change shows within half a second: at most twice this, and the time that a
     * look takes.
     */
    private static final int MILLIS_BETWEEN_LOOKS = 200;
    /**
     * A pause is at least this many times as long as the last look took: in a very large program, it looks less often.
     */
    private static final int MOST_SHARE = 8;
    private static final int MOST_MILLIS_BETWEEN_LOOKS = 2000;
    /** How long a search may hold the event thread at a time. */
    private static final long PIECE = TimeUnit.MILLISECONDS.toNanos(40);
    /** A search that takes longer shows how far it is. */
    private static final long LONG_SEARCH = TimeUnit.MILLISECONDS.toNanos(500);

    private static final String ROWS = "rows";
    private static final String STATE = "state";

    private final transient Selection selection;
    private final transient ComponentTree tree = new ComponentTree(ProgramWindows::withoutOwner);
    private final transient TreeSearch search = new TreeSearch(tree);
    private final TreeView view = new TreeView(tree, search);
    private final SearchBar bar = new SearchBar(this::searchChanged);
    private final StatePanel state = new StatePanel(Look::paper);
    private final CardLayout cards = new CardLayout();
    private final Timer looks = new Timer(MILLIS_BETWEEN_LOOKS, event -> look());
    private boolean willGoOn;
    private long searchStarted;
    private long searchTook;
    private boolean goToFirst;
    private boolean isReady;
    /** The step to take when the search is done, if Enter was pressed before; 0 for none. */
    private int stepWhenDone;
    private transient Runnable onLook = () -> {};

    TreePane(Selection selection) {
        this.selection = selection;
        setLayout(cards);
        JScrollPane scroll = new JScrollPane(view);
        scroll.setBorder(BorderFactory.createEmptyBorder());
        scroll.getVerticalScrollBar().setUnitIncrement(3 * TreeRowPainter.height());
        scroll.getHorizontalScrollBar().setUnitIncrement(20);
        scroll.getViewport().addChangeListener(event -> view.lookAgain());
        scroll.getViewport().addComponentListener(new ComponentAdapter() {
            private int height;

            @Override
            public void componentResized(ComponentEvent event) {
                view.keepInSight(height);
                height = scroll.getViewport().getHeight();
            }
        });
        scroll.getViewport().setBackground(Look.paper());
        add(scroll, ROWS);
        JPanel states = new JPanel(new BorderLayout());
        states.add(state);
        add(states, STATE);
        state.show(ToolIcon.SEARCH, "Looking at the program\u2026");
        cards.show(this, STATE);

        view.onSelect(node -> selection.select(node.component()));
        view.addPropertyChangeListener("typed", event -> typeInSearch((String) event.getNewValue()));
        selection.onChange(this::showSelected);
        bar.onKey("ENTER", () -> step(1));
        bar.onKey("shift ENTER", () -> step(-1));
        bar.onKey("ESCAPE", this::endSearch);
        bar.onKey("DOWN", view::requestFocusInWindow);
        looks.setInitialDelay(0);
        looks.setCoalesce(true);
    }

    TreeView view() {
        return view;
    }

    SearchBar searchBar() {
        return bar;
    }

    ComponentTree tree() {
        return tree;
    }

    /** What to do whenever the program has been looked at. */
    void onLook(Runnable task) {
        onLook = task;
    }

    /** Whether it has looked at the program at all. */
    boolean isReady() {
        return isReady;
    }

    void start() {
        looks.start();
    }

    void stop() {
        looks.stop();
    }

    /** Forgets everything: the window is being closed. */
    void clear() {
        stop();
        search.clear();
        tree.clear();
        view.clear();
    }

    private void look() {
        long start = System.nanoTime();
        boolean changed = tree.refresh();
        if (!isReady) {
            isReady = true;
            showSelected(); // a component may have been selected before the tree was there
            showState();
            view.requestFocusInWindow();
        } else if (changed) {
            showRows(false);
        }
        if (search.isOn() && !search.isWorking()) {
            search.startOver(); // it may find more now, or less
            goOnLater();
        }
        view.lookAgain();
        showState();
        onLook.run();
        int took = (int) TimeUnit.NANOSECONDS.toMillis(System.nanoTime() - start + searchTook);
        searchTook = 0;
        looks.setDelay(Math.max(MILLIS_BETWEEN_LOOKS, Math.min(MOST_SHARE * took, MOST_MILLIS_BETWEEN_LOOKS)));
    }

    /** Shows the rows as they are now, and selects the selected component's, which may be new. */
    private void showRows(boolean scroll) {
        Component component = selection.component();
        TreeNode node = component == null ? null : tree.nodeOf(component);
        if (scroll) {
            view.select(node);
        } else {
            view.keep(node);
        }
        view.lookAgain();
    }

    private void showSelected() {
        Component component = selection.component();
        TreeNode node = component == null ? null : tree.nodeOf(component);
        if (component != null && node == null) {
            tree.refresh(); // the component may be new
            node = tree.nodeOf(component);
        }
        tree.reveal(node);
        view.select(node);
        view.lookAgain();
        tellCount();
    }

    private void searchChanged() {
        search.start(bar.field().getText());
        searchStarted = System.nanoTime();
        goToFirst = true;
        if (search.isOn()) {
            goOnLater(); // and not at once: there may be more keys waiting
        } else {
            showSelected();
            showState();
        }
    }

    /** Goes on in an event of its own, after those that wait already. */
    private void goOnLater() {
        if (!willGoOn) {
            willGoOn = true;
            SwingUtilities.invokeLater(this::goOnSearching);
        }
    }

    private void goOnSearching() {
        willGoOn = false;
        long start = System.nanoTime();
        boolean done = search.work(PIECE);
        searchTook += System.nanoTime() - start;
        if (done) {
            Component component = selection.component();
            TreeNode node = component == null ? null : tree.nodeOf(component);
            boolean toFirst = goToFirst && (node == null || !node.isMatch());
            goToFirst = false;
            view.keep(node);
            if (toFirst) {
                view.scrollToFirst();
            }
            view.lookAgain();
            showState();
            if (stepWhenDone != 0) {
                step(stepWhenDone);
            }
        } else if (search.isWorking()) { // the user has not ended it meanwhile
            goOnLater();
        }
        tellCount();
    }

    private void tellCount() {
        if (search.isWorking() && System.nanoTime() - searchStarted > LONG_SEARCH && goToFirst) {
            bar.tell("searching, " + search.percent() + " %", false);
        } else if (!search.isOn()) {
            bar.tell(tree.count() + (tree.count() == 1 ? " component" : " components"), false);
        } else if (!goToFirst) {
            bar.tell(search.found() + " of " + tree.count(), search.found() == 0);
        }
    }

    private void showState() {
        tellCount();
        boolean empty = tree.rows().isEmpty();
        if (empty && search.isOn()) {
            state.show(ToolIcon.SEARCH, "Nothing matches \u201c" + bar.field().getText().trim() + "\u201d",
                    "Escape\tshows everything again");
        } else if (empty) {
            state.show(ToolIcon.SEARCH, "The program has no windows", "They appear here as soon as there are any.");
        }
        cards.show(this, empty ? STATE : ROWS);
    }

    /** Selects the next component that the search has found, in a direction. */
    private void step(int direction) {
        stepWhenDone = search.isWorking() && goToFirst ? direction : 0;
        if (stepWhenDone != 0) {
            return;
        }
        List<TreeNode> rows = tree.rows();
        int from = view.getSelectedIndex();
        if (from < 0) {
            from = direction > 0 ? -1 : 0;
        }
        for (int i = 1; i <= rows.size() && search.isOn(); i++) {
            TreeNode node = rows.get(Math.floorMod(from + direction * i, rows.size()));
            if (node.isMatch() && node.component() != null) {
                selection.select(node.component());
                return;
            }
        }
    }

    private void endSearch() {
        bar.field().setText("");
        view.requestFocusInWindow();
    }

    private void typeInSearch(String text) {
        bar.field().setText(bar.field().getText() + text);
        bar.field().requestFocusInWindow();
        SwingUtilities.invokeLater(() -> bar.field().setCaretPosition(bar.field().getText().length()));
    }

    void showMachinery(boolean show) {
        tree.showMachinery(show);
        if (search.isOn()) {
            search.startOver();
            goOnLater();
        }
        showRows(true);
        showState();
    }

    void setAllExpanded(boolean expanded) {
        tree.setAllExpanded(expanded);
        showRows(true);
    }
}
