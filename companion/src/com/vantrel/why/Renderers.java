package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;

import javax.swing.CellRendererPane;

import com.vantrel.model.Facts;

/** Of a component that paints the cells of a table, tree or list: it is in a pane of theirs, out of sight. */
final class Renderers {
    private Renderers() {
    }

    static Sentence of(Component component) {
        for (Component at = component; at != null; at = Around.parent(at)) {
            Container of = at instanceof CellRendererPane ? Facts.parent(at) : null;
            if (of != null) {
                return Sentence.of("It paints cells of ", of, ", and is never itself on the screen.");
            }
        }
        return null;
    }
}
