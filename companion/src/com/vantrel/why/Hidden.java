package com.vantrel.why;

import java.awt.CardLayout;
import java.awt.Component;
import java.awt.Container;
import java.awt.LayoutManager;
import java.awt.Window;

import javax.swing.JTabbedPane;

import com.vantrel.model.Cards;
import com.vantrel.model.Code;
import com.vantrel.model.Facts;

/**
 * Of what is invisible, or in something that is: the outermost of what is around it counts, for that hides the rest.
 */
final class Hidden {
    private Hidden() {
    }

    static Sentence of(Component component) throws Throwable {
        for (Component at : Around.of(component)) {
            if (!Facts.isVisible(at)) {
                return of(at, component);
            }
        }
        return null;
    }

    /** That it is invisible itself, where something around it is, too. */
    static Sentence itself(Component component) {
        if (Facts.isVisible(component)) {
            return null;
        }
        for (Component at = Around.parent(component); at != null; at = Around.parent(at)) {
            if (!Facts.isVisible(at)) {
                return Sentence.of("It is invisible itself", Who.did(component, "visible", "hid it"), ".");
            }
        }
        return null;
    }

    private static Sentence of(Component invisible, Component component) throws Throwable {
        Object[] who = Who.did(invisible, "visible", "hid it");
        if (invisible instanceof Window) {
            return Sentence.of(Around.window((Window) invisible, component), " is not shown", who, ".");
        }
        Container parent = Facts.parent(invisible);
        LayoutManager layout = Managed.layout(parent);
        Object[] subject = Around.subject(invisible, component);
        if (layout instanceof CardLayout && shown(parent) != null) {
            return card((CardLayout) layout, parent, invisible, subject);
        }
        if (parent instanceof JTabbedPane && Code.getterOverrider(parent.getClass()) == null) {
            JTabbedPane tabs = (JTabbedPane) parent;
            int index = tabs.indexOfComponent(invisible);
            int front = tabs.getSelectedIndex();
            if (index >= 0 && front >= 0 && index != front) {
                return Sentence.of(
                        subject, " is ", tab(tabs, index), " of ", tabs, ", which shows ", tab(tabs, front), ".");
            }
        }
        return Sentence.of(subject, " is invisible", who, ".");
    }

    private static String tab(JTabbedPane tabs, int index) {
        String title = tabs.getTitleAt(index);
        return title == null || title.isEmpty() ? "tab " + (index + 1) : "tab \"" + title + "\"";
    }

    private static Sentence card(CardLayout layout, Container parent, Component invisible, Object[] subject)
            throws Throwable {
        Component shown = shown(parent);
        String name = Cards.name(layout, invisible);
        String front = Cards.name(layout, shown);
        return Sentence.of(subject, " is ", name == null ? "a card" : "card \"" + name + "\"", " of ", parent,
                ", which shows ", front == null ? shown : "card \"" + front + "\"", ".");
    }

    private static Component shown(Container parent) {
        for (Component child : Facts.children(parent)) {
            if (Facts.isVisible(child)) {
                return child;
            }
        }
        return null;
    }
}
