package com.vantrel.why;

import java.awt.BorderLayout;
import java.awt.CardLayout;
import java.awt.Component;
import java.awt.Container;
import java.awt.FlowLayout;
import java.awt.GridBagLayout;
import java.awt.GridLayout;
import java.awt.LayoutManager;
import java.awt.Window;

import javax.swing.BoxLayout;
import javax.swing.GroupLayout;
import javax.swing.JLayer;
import javax.swing.JScrollPane;
import javax.swing.JSplitPane;
import javax.swing.JTabbedPane;
import javax.swing.JViewport;
import javax.swing.SpringLayout;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;
import com.vantrel.model.Managers;
import com.vantrel.model.MigLayouts;

/** What decides a component's size and place: one manager of its parent, or the program. */
final class Managed {
    private Managed() {
    }

    static Sentence of(Component component) throws Throwable {
        if (component instanceof Window) {
            return Windows.of((Window) component);
        }
        Container parent = Around.parent(component);
        LayoutManager layout = layout(parent);
        if (parent == null) {
            return null;
        }
        if (parent instanceof JLayer) {
            return Sentence.of(
                    parent, " gives it all its room, ", Extent.text(component), Extent.doesNotCount(component), ".");
        }
        if (layout == null) {
            return Unmanaged.of(component, parent);
        }
        if (MigLayouts.isOne(layout)) {
            return Told.mig(component, parent, layout);
        }
        if (isPrograms(layout)) {
            String whose = Code.isMachinery(layout.getClass()) ? "look and feel's" : "program's own";
            return Sentence.of(Managers.name(layout), " of ", parent, ", a manager of the " + whose + ", makes it ",
                    Extent.text(component), ", and tells nobody why.");
        }
        if (layout instanceof BorderLayout) {
            return Regions.of(component, parent, (BorderLayout) layout);
        }
        if (layout instanceof GridBagLayout) {
            return GridBags.of(component, parent, (GridBagLayout) layout);
        }
        if (layout instanceof FlowLayout) {
            return Flows.of(component, parent, (FlowLayout) layout);
        }
        if (layout instanceof GridLayout) {
            return Sentence.of(of(layout, parent), "makes all cells alike, ", Extent.text(component),
                    Extent.doesNotCount(component), ".");
        }
        if (layout instanceof CardLayout) {
            return Sentence.of(of(layout, parent), "gives a card all the room, ", Extent.text(component),
                    Extent.doesNotCount(component), ".");
        }
        if (layout instanceof BoxLayout) {
            return BoxLayouts.of(component, parent, (BoxLayout) layout);
        }
        if (layout instanceof GroupLayout) {
            return Told.group(component, parent, (GroupLayout) layout);
        }
        if (layout instanceof SpringLayout) {
            return Springs.of(component, parent, (SpringLayout) layout);
        }
        return ofPart(component, parent, layout);
    }

    /** Of managers that belong to one class of container. */
    private static Sentence ofPart(Component component, Container parent, LayoutManager layout) {
        if (parent instanceof JViewport) {
            return Viewports.of(component, (JViewport) parent);
        }
        if (parent instanceof JSplitPane) {
            return Splits.of(component, (JSplitPane) parent);
        }
        if (parent instanceof JTabbedPane) {
            return Sentence.of(parent, " gives each page all the room that its tabs leave, ", Extent.text(component),
                    Extent.doesNotCount(component), ".");
        }
        if (parent instanceof JScrollPane) {
            return component instanceof JViewport
                    ? Sentence.of(parent, " gives it what headers and scroll bars leave, ", Extent.text(component), ".")
                    : Sentence.of(parent, " places it along its viewport, and makes it ", Extent.text(component), ".");
        }
        return Sentence.of(Managers.name(layout), " of ", parent, ", a manager inside of the toolkit, ",
                Extent.clause(component), ".");
    }

    /** "FlowLayout of JPanel "form" ". */
    static Object[] of(LayoutManager layout, Container parent) {
        return new Object[] {Managers.name(layout), " of ", parent, " "};
    }

    /** The manager of a container; null for none. */
    static LayoutManager layout(Container container) {
        return container == null ? null : Facts.layout(container);
    }

    /** Whether a manager lays out, or answers, by code of the program's. */
    static boolean isPrograms(LayoutManager layout) {
        return Code.overrider(layout.getClass(), "layoutContainer", Container.class) != null
                || Code.getterOverrider(layout.getClass()) != null;
    }
}
