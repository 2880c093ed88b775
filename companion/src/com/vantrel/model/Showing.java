package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;
import java.awt.GraphicsDevice;
import java.awt.GraphicsEnvironment;
import java.awt.Rectangle;
import java.awt.Window;

import javax.swing.JInternalFrame;

/** Whether a component can be seen on the screen, or why not. Other windows in front of it do not count. */
public enum Showing {
    YES(""),
    INVISIBLE("invisible"),
    PARENT_INVISIBLE("parent invisible"),
    NO_SIZE("no size"),
    CLIPPED("clipped away"),
    OFF_SCREEN("outside of the screen"),
    /** In an internal frame that is iconified: it is in no window then, only its icon is. */
    ICON("in an icon"),
    NO_WINDOW("in no window");

    private final String words;

    Showing(String words) {
        this.words = words;
    }

    /** The reason in a word or two; empty for what is showing. */
    public String words() {
        return words;
    }

    /** Whether a component shows now, or the first reason that holds, from the component outwards to the screen. */
    public static Showing of(Component component) {
        if (!Facts.isVisible(component)) {
            return INVISIBLE;
        }
        Rectangle rest = new Rectangle(Facts.bounds(component));
        boolean empty = rest.isEmpty();
        Component at = component;
        boolean clipped = false;
        while (!(at instanceof Window)) {
            Container parent = Facts.parent(at);
            if (parent == null) {
                return isIcon(at) ? ICON : NO_WINDOW;
            }
            if (!Facts.isVisible(parent)) {
                return PARENT_INVISIBLE;
            }
            Rectangle bounds = Facts.bounds(parent);
            rest = rest.intersection(new Rectangle(bounds.width, bounds.height));
            clipped |= rest.isEmpty();
            rest.translate(bounds.x, bounds.y);
            at = parent;
        }
        if (empty) {
            return NO_SIZE;
        }
        if (clipped) {
            return CLIPPED;
        }
        return isOnScreen(rest) ? YES : OFF_SCREEN;
    }

    private static boolean isIcon(Component component) {
        return component instanceof JInternalFrame && Code.overrider(component.getClass(), "isIcon") == null
                && ((JInternalFrame) component).isIcon();
    }

    private static boolean isOnScreen(Rectangle area) {
        if (GraphicsEnvironment.isHeadless()) {
            return true;
        }
        for (GraphicsDevice screen : GraphicsEnvironment.getLocalGraphicsEnvironment().getScreenDevices()) {
            if (screen.getDefaultConfiguration().getBounds().intersects(area)) {
                return true;
            }
        }
        return false;
    }
}
