package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.Window;
import java.util.EventListener;

import javax.swing.JComponent;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;

/**
 * Of what would take the mouse's events, were there not something in front that takes them first: a glass pane, or a
 * component beside it. Painted or not makes no difference, but whether it has mouse listeners, as tooltips are, too.
 * The toolkit looks in the same order, in Container.getMouseEventTarget.
 */
final class Intercepted {
    private Intercepted() {
    }

    static Sentence of(Component component) {
        Rectangle rest = Sight.of(component).rest; // in the window, and from there back to each container
        if (rest.isEmpty() || component instanceof Window || !Facts.takesMouse(component)) {
            return null;
        }
        Point middle = new Point((int) rest.getCenterX(), (int) rest.getCenterY());
        for (Component at : Around.of(component)) {
            Container parent = Around.parent(at);
            if (parent == null) {
                continue;
            }
            for (Component other : Facts.children(parent)) {
                Component taker = other == at ? null : taker(other, middle);
                if (taker != null) {
                    return Sentence.of(taker, " lies over it and takes its mouse events", reason(taker), ".");
                }
                if (other == at) {
                    break;
                }
            }
            Rectangle bounds = Facts.bounds(at);
            middle.translate(-bounds.x, -bounds.y);
        }
        return null;
    }

    /**
     * What takes the mouse's events at a point of a component's container: it, or something in it; null for neither.
     */
    private static Component taker(Component component, Point inParent) {
        Rectangle bounds = Facts.bounds(component);
        // A class of the program that decides by itself which points are its own is not asked.
        boolean isThere = !(component instanceof Window) && Facts.isVisible(component) && bounds.contains(inParent)
                && Code.overrider(component.getClass(), "contains", int.class, int.class) == null;
        if (!isThere) {
            return null;
        }
        Point point = new Point(inParent.x - bounds.x, inParent.y - bounds.y);
        if (component instanceof Container) {
            for (Component child : Facts.children(component)) {
                Component taker = taker(child, point);
                if (taker != null) {
                    return taker;
                }
            }
        }
        return Facts.takesMouse(component) ? component : null;
    }

    private static Object[] reason(Component taker) {
        if (Code.getterOverrider(taker.getClass()) != null) {
            return new Object[0];
        }
        EventListener[][] all = {
                taker.getMouseListeners(), taker.getMouseMotionListeners(), taker.getMouseWheelListeners()};
        for (EventListener[] listeners : all) {
            for (EventListener listener : listeners) {
                if (!Code.isMachinery(listener.getClass())) {
                    return new Object[] {": " + Code.shortName(listener.getClass()) + " listens to them"};
                }
            }
        }
        boolean hasToolTip = taker instanceof JComponent
                && ((JComponent) taker).getClientProperty(JComponent.TOOL_TIP_TEXT_KEY) != null;
        return new Object[] {hasToolTip ? ": it has a tooltip" : ""};
    }
}
