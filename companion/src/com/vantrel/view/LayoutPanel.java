package com.vantrel.view;

import java.awt.BorderLayout;
import java.util.Collections;
import java.util.function.Supplier;

import javax.swing.JPanel;

import com.vantrel.model.Boxes;
import com.vantrel.model.Edits;
import com.vantrel.model.LayoutFacts;
import com.vantrel.model.Reading;
import com.vantrel.model.Selection;

/**
 * Where the selected component is and why: drawings of its boxes and of its place among its siblings, and a table below
 * them.
 */
final class LayoutPanel extends JPanel {
    private static final long serialVersionUID = 1L;

    private final BoxDrawing boxes = new BoxDrawing();
    private final SiblingsDrawing siblings;
    private final RowsPanel rows = new RowsPanel("vantrel.layout.rows", "Filter");

    LayoutPanel(Selection selection, Supplier<Reading> reading, Edits edits, Runnable refresh) {
        super(new BorderLayout());
        setName("vantrel.layout");
        siblings = new SiblingsDrawing(selection::select);
        new PropertyRows(rows, reading, edits, refresh);
        JPanel drawings = new JPanel(new BorderLayout(2 * Look.GAP, 0));
        drawings.setBorder(Look.padding());
        drawings.add(boxes, BorderLayout.CENTER);
        drawings.add(siblings, BorderLayout.LINE_END);
        add(drawings, BorderLayout.NORTH);
        add(rows, BorderLayout.CENTER);
    }

    /** @param reading null for nothing */
    void show(Reading reading, boolean flash) {
        Boxes now = reading == null ? null : Boxes.of(reading);
        boxes.show(now);
        siblings.show(reading != null && reading.target().isCell() ? null : now);
        rows.show(reading == null ? Collections.emptyList() : LayoutFacts.of(reading), flash);
    }
}
