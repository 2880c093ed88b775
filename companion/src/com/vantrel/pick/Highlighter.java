package com.vantrel.pick;

import java.awt.Color;
import java.awt.Component;
import java.awt.Graphics2D;
import java.awt.GraphicsConfiguration;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.Window;
import java.util.function.BiConsumer;

import javax.swing.Timer;

import com.vantrel.model.Facts;
import com.vantrel.model.Target;

/**
 * Shows where something is in the program: a box around what can be seen of it, one pixel wide, with a label, and a
 * tint over it. It follows the target when that moves, and disappears when that does. It neither changes the program's
 * components nor causes events for them. For the event thread.
 */
public final class Highlighter {
    private static final Color COLOR = new Color(0xFC7E00);
    private static final int MILLIS_BETWEEN_LOOKS = 100;

    private final Window owner;
    private final Tint tint;
    private final Timer looks = new Timer(MILLIS_BETWEEN_LOOKS, event -> follow());
    /** Top, bottom, left, right; null until they are needed. */
    private Mark[] sides;
    private Label label;
    private Target target;
    /** Where the box is on the screen; null for nowhere. */
    private Rectangle shownAt;

    /**
     * @param owner the inspector's window, which will own the box: no modal dialog of the program blocks it, and it
     *              goes with that window
     * @param tint  paints over the whole of a component
     */
    public Highlighter(Window owner, BiConsumer<Component, Graphics2D> tint) {
        this.owner = owner;
        this.tint = new Tint(tint);
    }

    /** Shows where a target is, in the place of the last one; null for nothing. */
    public void show(Target newTarget) {
        if (newTarget == null) {
            hide();
        } else if (!newTarget.isSameAs(target)) {
            target = newTarget;
            shownAt = null; // another component may be at the same place
            follow();
            if (target != null) {
                looks.start();
            }
        }
    }

    /** What is shown; null for nothing. */
    Target target() {
        return target;
    }

    public void hide() {
        looks.stop();
        target = null;
        tint.remove();
        if (sides != null) {
            for (Mark side : sides) {
                side.setVisible(false);
            }
            label.setVisible(false);
        }
        shownAt = null;
    }

    /** Hides, and disposes of the windows. Can be used again. */
    public void dispose() {
        hide();
        if (sides != null) {
            for (Mark side : sides) {
                side.dispose();
            }
            label.dispose();
            sides = null;
            label = null;
        }
    }

    private void follow() {
        Rectangle whole = new Rectangle();
        Rectangle part = Places.visiblePart(target, whole);
        if (part == null) {
            hide();
            return;
        }
        Component component = target.component();
        Window window = Places.windowOf(component);
        Point at = Places.onScreen(window);
        Rectangle box = new Rectangle(part.x + at.x, part.y + at.y, part.width, part.height);
        if (!box.equals(shownAt)) {
            shownAt = box;
            place(box);
            label.show(type(component), name(component), whole.width + " × " + whole.height, box, screenOf(window));
            tint.put(component, cellOf(component, part), window, part);
        }
    }

    private void place(Rectangle box) {
        if (sides == null) {
            sides = new Mark[4];
            for (int i = 0; i < sides.length; i++) {
                sides[i] = new Mark(owner, "vantrel.highlight." + i, COLOR);
            }
            label = new Label(owner);
        }
        sides[0].place(box.x, box.y, box.width, 1);
        sides[1].place(box.x, box.y + box.height - 1, box.width, box.height > 1 ? 1 : 0);
        sides[2].place(box.x, box.y + 1, 1, box.height - 2);
        sides[3].place(box.x + box.width - 1, box.y + 1, box.width > 1 ? 1 : 0, box.height - 2);
    }

    /** A cell's visible part, in its owner's coordinates; null for a component. */
    private Rectangle cellOf(Component component, Rectangle inWindow) {
        if (!target.isCell()) {
            return null;
        }
        Point origin = Places.inWindow(component, new Point());
        return new Rectangle(inWindow.x - origin.x, inWindow.y - origin.y, inWindow.width, inWindow.height);
    }

    private String type(Component component) {
        Class<?> type = component.getClass();
        while (type.isAnonymousClass()) {
            type = type.getSuperclass();
        }
        String simple = type.getSimpleName();
        if (!target.isCell()) {
            return simple;
        }
        return simple + " [" + target.row() + (component instanceof javax.swing.JTable ? ", " + target.column() : "")
                + "]";
    }

    private static String name(Component component) {
        String name = Facts.name(component);
        return name == null ? "" : name;
    }

    private static Rectangle screenOf(Window window) {
        GraphicsConfiguration configuration = window.getGraphicsConfiguration();
        return configuration == null ? new Rectangle(0, 0, Short.MAX_VALUE, Short.MAX_VALUE)
                                     : configuration.getBounds();
    }
}
