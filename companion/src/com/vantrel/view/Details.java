package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.Container;
import java.awt.event.HierarchyEvent;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.function.Consumer;

import javax.swing.InputMap;
import javax.swing.JButton;
import javax.swing.JComponent;
import javax.swing.JList;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JTabbedPane;
import javax.swing.JTable;
import javax.swing.JTextPane;
import javax.swing.KeyStroke;
import javax.swing.SwingUtilities;
import javax.swing.Timer;

import com.vantrel.model.Editor;
import com.vantrel.model.Edits;
import com.vantrel.model.Listeners;
import com.vantrel.model.Reading;
import com.vantrel.model.Row;
import com.vantrel.model.Selection;
import com.vantrel.model.SetBy;
import com.vantrel.model.Target;
import com.vantrel.record.SetBys;
import com.vantrel.why.Sentence;
import com.vantrel.why.Why;

/**
 * Everything about the selected component, on the right of the window: a header, why it is as it is, and a tab each for
 * its properties, its layout, where it was added, changes, listeners and keys. Reads only while it shows, and only for
 * the tab in front. When the selection is cleared it drops everything. Belongs to the event thread.
 */
public final class Details extends JPanel {
    private static final long serialVersionUID = 1L;

    private static final int MILLIS_BETWEEN_READINGS = 200;
    /** Listeners and keys change seldom, and take longer to find. */
    private static final int READINGS_BETWEEN_SEARCHES = 5;

    private final transient Selection selection;
    private final transient Edits edits;
    private final Header header;
    private final JTabbedPane tabs = new JTabbedPane();
    private final RowsPanel properties = new RowsPanel("vantrel.properties", "Filter properties");
    private final LayoutPanel layout;
    private final RowsPanel listeners = new RowsPanel("vantrel.listeners", "Filter listeners");
    private final KeysPanel keys;
    private final ChangesPanel changes;
    private final WhyPane why;
    private transient Consumer<Editor.Outcome> elsewhere = outcome -> {};
    private final JButton readAll = new JButton("Read all");
    private final Timer readings = new Timer(MILLIS_BETWEEN_READINGS, event -> read());
    private transient Reading reading;
    /**
     * Whether the selected component has been shown already, so that a value that differs has changed and is to flash.
     */
    private boolean shown;
    private int count;
    private int whyCount;

    /**
     * @param selection whose component is shown; a click on a sibling changes it
     * @param edits     makes the changes that are entered here
     * @param addedAt   the panel that says where the component was added; openWhere opens the line
     */
    public Details(Selection selection, Edits edits, JComponent addedAt, Runnable openWhere) {
        super(new BorderLayout());
        this.selection = selection;
        this.edits = edits;
        header = new Header(openWhere);
        why = new WhyPane(selection::select, line -> OpenLine.open(line, outcome -> elsewhere.accept(outcome)));
        header.addBelow(why);
        layout = new LayoutPanel(selection, () -> reading, edits, this::showReading);
        keys = new KeysPanel(selection);
        changes = new ChangesPanel(selection);
        PropertyRows editing = new PropertyRows(properties, () -> reading, edits, this::showReading);
        readAll.setName("vantrel.properties.readAll");
        readAll.setToolTipText(Tips.of("Reads what only runs the program's own code, one after the other. "
                + "Nothing of that is read unasked."));
        readAll.addActionListener(event -> editing.askAll());
        properties.addTool(readAll);
        properties.table().addCommand("Show Where It Was Set", "F4", this::showChange);
        tabs.setName("vantrel.details");
        tabs.addTab("Properties", properties);
        tabs.addTab("Layout", layout);
        tabs.addTab("Added at", addedAt);
        tabs.addTab("Changes", changes);
        tabs.addTab("Listeners", listeners);
        tabs.addTab("Keys", keys);
        tabs.addChangeListener(event -> showInFront(false));
        leaveKeysToTabs(tabs);
        leaveKeysToTabs(why);
        goFromTabToTab("ctrl PAGE_UP", -1);
        goFromTabToTab("ctrl PAGE_DOWN", 1);
        add(header, BorderLayout.NORTH);
        add(tabs, BorderLayout.CENTER);
        selection.onChange(this::selectionChanged);
        edits.onChange(this::read);
        edits.onComplaint(text -> properties.table().complain(0, text));
        addHierarchyListener(event -> {
            if ((event.getChangeFlags() & HierarchyEvent.SHOWING_CHANGED) != 0) {
                showingChanged();
            }
        });
        selectionChanged();
    }

    /** Sets who else is told what became of an attempt to open a line, while its tab does not show. */
    void onOutcome(Consumer<Editor.Outcome> listener) {
        elsewhere = listener;
        changes.onOutcome(listener);
    }

    private void showChange(Row property) {
        tabs.setSelectedComponent(changes);
        changes.select(property.name());
    }

    /** The rows of what has been read, each with who has set the value. */
    private List<Row> rows() {
        Component component = reading.target().isCell() ? null : reading.target().component();
        if (component == null) {
            return reading.rows();
        }
        List<Row> rows = new ArrayList<>();
        for (Row row : reading.rows()) {
            SetBy setBy = SetBys.of(component, row.name());
            rows.add(setBy == null ? row : row.setBy(setBy));
        }
        return rows;
    }

    /**
     * Leaves Control+PageUp and PageDown to the tabs. Tables, lists and scroll panes use these keys, too, to scroll
     * sideways.
     */
    private static void leaveKeysToTabs(Container in) {
        for (Component child : in.getComponents()) {
            if (child instanceof JTable || child instanceof JList || child instanceof JScrollPane
                    || child instanceof JTextPane) {
                for (int condition : new int[] {WHEN_FOCUSED, WHEN_ANCESTOR_OF_FOCUSED_COMPONENT}) {
                    InputMap keys = ((JComponent) child).getInputMap(condition);
                    keys.put(KeyStroke.getKeyStroke("ctrl PAGE_UP"), "none");
                    keys.put(KeyStroke.getKeyStroke("ctrl PAGE_DOWN"), "none");
                }
            }
            if (child instanceof Container) {
                leaveKeysToTabs((Container) child);
            }
        }
    }

    /** Takes the keys of the tabs above them, too. */
    private void goFromTabToTab(String key, int step) {
        RowsPanel.bind(this, WHEN_ANCESTOR_OF_FOCUSED_COMPONENT, KeyStroke.getKeyStroke(key), () -> {
            int count = tabs.getTabCount();
            tabs.setSelectedIndex((tabs.getSelectedIndex() + step + count) % count);
        });
    }

    private void showingChanged() {
        if (isShowing()) {
            read();
            readings.start();
        } else {
            readings.stop();
        }
    }

    private void selectionChanged() {
        Target target = selection.target();
        reading = target == null ? null : new Reading(target);
        shown = false;
        count = 0;
        whyCount = 0;
        keys.forget();
        listeners.show(Collections.emptyList(), false);
        readAll.setEnabled(false);
        if (isShowing() || reading == null) {
            read();
        }
    }

    private void read() {
        boolean there = reading != null && reading.refresh();
        if (reading != null && !there && selection.target() == null) {
            // The component has been collected. What was read of it stays to look at, but nothing can be done with it.
            header.show(reading);
            return;
        }
        edits.forgetGone();
        showReading();
        // The first reading takes longer than the event thread may be held, so it goes on in another event.
        if (reading != null && !reading.isComplete()) {
            SwingUtilities.invokeLater(this::readOn);
        }
    }

    private void readOn() {
        if (reading != null && isShowing() && !reading.isComplete()) {
            read();
        }
    }

    private void showReading() {
        header.show(reading);
        if (reading == null || whyCount++ % READINGS_BETWEEN_SEARCHES == 0) {
            Component component = reading == null || reading.target().isCell() ? null : selection.component();
            why.show(component == null ? Collections.<Sentence>emptyList() : Why.of(component));
        }
        readAll.setEnabled(reading != null && !reading.unasked().isEmpty());
        showInFront(shown);
        shown = reading != null;
    }

    /** Shows what has been read in the tab in front. Other tabs do so when they come to the front. */
    private void showInFront(boolean flash) {
        Component front = tabs.getSelectedComponent();
        if (front == properties || reading == null) {
            properties.show(reading == null ? Collections.<Row>emptyList() : rows(), flash);
        }
        if (front == layout || reading == null) {
            layout.show(reading, flash);
        }
        if (front == listeners && (count++ % READINGS_BETWEEN_SEARCHES == 0 || !flash)) {
            Component component = selection.component();
            listeners.show(component == null ? Collections.emptyList() : Listeners.of(component), flash);
        }
        if (front == changes) {
            changes.refresh(flash);
        }
        if (front == keys && (count++ % READINGS_BETWEEN_SEARCHES == 0 || !flash)) {
            keys.refresh(flash);
        }
    }
}
