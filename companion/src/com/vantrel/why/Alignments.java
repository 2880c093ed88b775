package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.LayoutManager;

import javax.swing.BoxLayout;

import com.vantrel.model.Facts;
import com.vantrel.model.Managers;

/** That a BoxLayout puts a component beside the line of others, for it aligns all of them with each other. */
final class Alignments {
    private static final float LEAST_DIFFERENCE = 0.01f;

    private Alignments() {
    }

    static Sentence of(Component component) {
        Container parent = Around.parent(component);
        LayoutManager layout = Managed.layout(parent);
        if (!(layout instanceof BoxLayout) || !Managers.canTellAlignment(component)) {
            return null;
        }
        boolean along = Managers.isHorizontal((BoxLayout) layout, parent);
        float own = alignment(component, along);
        for (Component other : Facts.children(parent)) {
            if (other != component && Facts.isVisible(other) && Managers.canTellAlignment(other)
                    && Math.abs(alignment(other, along) - own) > LEAST_DIFFERENCE) {
                String at = along ? "y = " + Facts.bounds(component).y : "x = " + Facts.bounds(component).x;
                return Sentence.of("It begins at " + at + " because its " + (along ? "alignmentY, " : "alignmentX, ")
                                + own + ", is not that of all others: ",
                        other, " has " + alignment(other, along) + ".");
            }
        }
        return null;
    }

    private static float alignment(Component component, boolean along) {
        return along ? component.getAlignmentY() : component.getAlignmentX();
    }
}
