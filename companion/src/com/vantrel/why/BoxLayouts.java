package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.LayoutManager;

import javax.swing.BoxLayout;

import com.vantrel.model.Facts;
import com.vantrel.model.Managers;

/** BoxLayout: how it shares out the room, and where it puts what is aligned otherwise than the rest. */
final class BoxLayouts {
    private static final float LEAST_DIFFERENCE = 0.01f;

    private BoxLayouts() {
    }

    static Sentence of(Component component, Container parent, BoxLayout layout) {
        boolean along = Managers.isHorizontal(layout, parent);
        Object[] which = {"BoxLayout of ", parent, along ? ", from side to side, " : ", from top to bottom, "};
        Wants width = Extent.wanted(component, true);
        if (width != null && width == Extent.wanted(component, false)) {
            return Sentence.of(which, Extent.clause(component), ".");
        }
        return Sentence.of(
                which, "makes it ", clause(component, true, along), ", and ", clause(component, false, !along), ".");
    }

    private static Object[] clause(Component component, boolean wide, boolean along) {
        boolean isOwn = Extent.wanted(component, wide) != null;
        return new Object[] {Extent.clause(component, wide),
                isOwn           ? ""
                        : along ? ", its share of the room"
                                : ", as there is room"};
    }

    /** That it begins beside the line of others, for a BoxLayout aligns all of them with each other. */
    static Sentence aside(Component component) {
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
