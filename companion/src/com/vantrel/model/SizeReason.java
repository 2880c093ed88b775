package com.vantrel.model;

import java.awt.BorderLayout;
import java.awt.CardLayout;
import java.awt.Component;
import java.awt.Container;
import java.awt.FlowLayout;
import java.awt.GridBagConstraints;
import java.awt.GridBagLayout;
import java.awt.GridLayout;
import java.awt.LayoutManager;
import java.util.Arrays;

import javax.swing.BoxLayout;
import javax.swing.JDesktopPane;
import javax.swing.JScrollPane;
import javax.swing.JViewport;
import javax.swing.OverlayLayout;
import javax.swing.ScrollPaneLayout;
import javax.swing.Scrollable;
import javax.swing.ViewportLayout;

/** Why a layout manager gives a child the width or height that it has. For the event thread. */
final class SizeReason {
    private SizeReason() {
    }

    /**
     * The reason as the rest of a sentence; null where it is not known.
     *
     * @param wide whether it is about the width
     */
    static String of(Component child, boolean wide) {
        Container parent = child.getParent();
        LayoutManager layout = parent == null ? null : parent.getLayout();
        if (parent == null) {
            return null;
        }
        if (layout == null) {
            return parent instanceof JDesktopPane ? "the program and the user set its bounds"
                                                  : "the program sets its bounds";
        }
        if (layout instanceof BorderLayout) {
            return border((BorderLayout) layout, child, wide);
        }
        if (layout instanceof GridBagLayout) {
            int fill = ((GridBagLayout) layout).getConstraints(child).fill;
            boolean filled = fill == GridBagConstraints.BOTH
                    || fill == (wide ? GridBagConstraints.HORIZONTAL : GridBagConstraints.VERTICAL);
            return filled ? "it fills its grid cell" : "its grid cell has no room";
        }
        if (layout instanceof GridLayout) {
            return "all cells of the grid are alike";
        }
        if (layout instanceof CardLayout) {
            return "a card has all of its parent";
        }
        if (layout instanceof FlowLayout) {
            return "FlowLayout gives what is preferred";
        }
        if (layout instanceof BoxLayout) {
            boolean along = Managers.isHorizontal((BoxLayout) layout, parent) == wide;
            return along ? "BoxLayout shares out what is there" : "as its parent, up to the maximum";
        }
        if (layout instanceof OverlayLayout) {
            return "as its parent, up to the maximum";
        }
        if (layout instanceof ScrollPaneLayout && parent instanceof JScrollPane) {
            return child == ((JScrollPane) parent).getViewport() ? "it gets what headers and scroll bars leave"
                                                                 : "it goes along the viewport";
        }
        if (layout instanceof ViewportLayout && parent instanceof JViewport) {
            boolean follows = child instanceof Scrollable
                    && (wide ? ((Scrollable) child).getScrollableTracksViewportWidth()
                             : ((Scrollable) child).getScrollableTracksViewportHeight());
            return follows ? "it follows the viewport" : "at least as its viewport";
        }
        return Managers.name(layout) + " decides";
    }

    private static String border(BorderLayout layout, Component child, boolean wide) {
        Object region = layout.getConstraints(child);
        if (region == null) {
            return "it has no region, and is not laid out";
        }
        boolean stretched = wide ? Arrays.asList("North", "South", "First", "Last").contains(region)
                                 : Arrays.asList("West", "East", "Before", "After").contains(region);
        return region.equals(BorderLayout.CENTER) ? "the CENTER gets what is left"
                : stretched                       ? "this side goes from end to end"
                                                  : "BorderLayout gives this side what it prefers";
    }
}
