package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;

import javax.swing.JScrollPane;
import javax.swing.JViewport;
import javax.swing.Scrollable;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;

/** What a viewport makes of the component that it shows a part of. */
final class Viewports {
    private Viewports() {
    }

    static Sentence of(Component view, JViewport viewport) {
        return Sentence.of(pane(viewport), " makes it ", clause(view, viewport, true), ", and ",
                clause(view, viewport, false), ".");
    }

    /** The scroll pane that people know a viewport by; the viewport where it is in none. */
    static Component pane(JViewport viewport) {
        Container parent = Facts.parent(viewport);
        return parent instanceof JScrollPane ? parent : viewport;
    }

    private static Object[] clause(Component view, JViewport viewport, boolean wide) {
        int is = Extent.along(Extent.size(view), wide);
        int room = Extent.along(Extent.size(viewport), wide);
        Dimension preferred = Wants.PREFERRED.of(view);
        if (is != room || preferred != null && Extent.along(preferred, wide) == is) {
            return Extent.preferred(view, wide);
        }
        String why = follows(view, wide) ? ", for it follows that " + (wide ? "width" : "height")
                : preferred != null      ? ", which is more than it prefers"
                                         : "";
        return new Object[] {(wide ? "as wide" : "as high") + " as there is room, " + is + why};
    }

    private static boolean follows(Component view, boolean wide) {
        String method = wide ? "getScrollableTracksViewportWidth" : "getScrollableTracksViewportHeight";
        if (!(view instanceof Scrollable) || Code.overrider(view.getClass(), method) != null
                || !Code.isToolkit(Code.toolkitClass(view.getClass()))
                || !Scrollable.class.isAssignableFrom(Code.toolkitClass(view.getClass()))) {
            return false;
        }
        Scrollable scrollable = (Scrollable) view;
        return wide ? scrollable.getScrollableTracksViewportWidth() : scrollable.getScrollableTracksViewportHeight();
    }
}
