package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.FlowLayout;
import java.awt.Rectangle;
import java.awt.Window;

import javax.swing.JViewport;

import com.vantrel.model.Facts;
import com.vantrel.model.Formats;

/** Of what a container around it cuts off, all of it or a part. A view of which a part is scrolled away is no news. */
final class CutOff {
    private CutOff() {
    }

    static Sentence of(Component component) {
        Sight sight = Sight.of(component);
        Container cutter = sight.cutter;
        if (cutter == null) {
            return null;
        }
        if (!sight.rest.isEmpty()) {
            return cutter instanceof JViewport || cutter instanceof Window
                    ? null
                    : Sentence.of("Of its ", Extent.text(component), " only ", Formats.write(sight.rest.getSize()),
                            " can be seen: ", cutter, " cuts off the rest.");
        }
        if (cutter instanceof JViewport) {
            return scrolled(component, (JViewport) cutter, sight.inCutter);
        }
        boolean isFlow = Facts.parent(component) == cutter && Managed.layout(cutter) instanceof FlowLayout;
        int height = Facts.bounds(cutter).height;
        if (isFlow && sight.inCutter.y >= height) {
            return Sentence.of(
                    "It is cut off: FlowLayout has begun a new line for it, " + sight.inCutter.y + " below the top of ",
                    cutter, ", which is " + height + " high.");
        }
        return Sentence.of("It is cut off: it lies at " + sight.inCutter.x + ", " + sight.inCutter.y + " in ", cutter,
                ", which is ", Extent.text(cutter), " large.");
    }

    private static Sentence scrolled(Component component, JViewport viewport, Rectangle inViewport) {
        Component view = component;
        while (Facts.parent(view) != viewport) {
            view = Facts.parent(view);
        }
        Rectangle of = Facts.bounds(view);
        Rectangle shown = new Rectangle(Facts.bounds(viewport).getSize());
        shown.translate(-of.x, -of.y);
        return Sentence.of("It is scrolled out of sight: ", Viewports.pane(viewport), " shows ", Formats.write(shown),
                " of ", view, ", and it lies at " + (inViewport.x - of.x) + ", " + (inViewport.y - of.y) + ".");
    }
}
