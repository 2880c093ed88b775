package com.vantrel.why;

import java.awt.Component;

import javax.swing.JSplitPane;

import com.vantrel.model.Code;

/** The two sides of a split pane. */
final class Splits {
    private Splits() {
    }

    static Sentence of(Component component, JSplitPane split) {
        if (Code.getterOverrider(split.getClass()) != null) {
            return null;
        }
        boolean across = split.getOrientation() == JSplitPane.HORIZONTAL_SPLIT;
        boolean first = component == split.getLeftComponent();
        if (!first && component != split.getRightComponent()) {
            return Sentence.of("It is the divider of ", split, ", which is at " + split.getDividerLocation() + ".");
        }
        String side = across ? first ? "left of" : "right of" : first ? "above" : "below";
        return Sentence.of(split,
                " gives it all that lies " + side + " its divider, which is at " + split.getDividerLocation() + ".");
    }
}
