package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.LayoutManager;
import java.awt.Window;

import com.vantrel.model.Managers;
import com.vantrel.record.Change;
import com.vantrel.record.ChangeRecorder;

/** That the program has set the bounds of a component whose manager sets them, too. */
final class Overwritten {
    private static final String BOUNDS = "bounds";

    private Overwritten() {
    }

    /** That they did not last. */
    static Sentence before(Component component) {
        LayoutManager layout = layout(component);
        boolean isLast = true;
        for (Change change :
                layout == null ? java.util.Collections.<Change>emptyList() : ChangeRecorder.of(component)) {
            if (change.what().equals(BOUNDS)) {
                Who who = Who.of(component, change);
                if (who.isSetter()) {
                    return isLast ? null
                                  : Sentence.of(who, " set its bounds, and ", Managers.name(layout), " of ",
                                          Around.parent(component), " has set them anew since.");
                }
                isLast = false;
            }
        }
        return null;
    }

    /** That they will not last. */
    static Sentence after(Component component) {
        LayoutManager layout = layout(component);
        Who who = layout == null ? null : Who.last(component, BOUNDS);
        return who == null || !who.isSetter()
                ? null
                : Sentence.of(who, " set its bounds. ", Managers.name(layout), " of ", Around.parent(component),
                        " will set them anew with the next layout.");
    }

    private static LayoutManager layout(Component component) {
        Container parent = component instanceof Window ? null : Around.parent(component);
        return Managed.layout(parent);
    }
}
