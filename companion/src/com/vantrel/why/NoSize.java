package com.vantrel.why;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.LayoutManager;
import java.awt.Rectangle;

import javax.swing.Icon;
import javax.swing.JLabel;
import javax.swing.JSplitPane;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;
import com.vantrel.model.Formats;
import com.vantrel.model.Managers;

/** Of what has no width or no height, or is in something that has none: why that is so. The outermost one counts. */
final class NoSize {
    private NoSize() {
    }

    static Sentence of(Component component) throws Throwable {
        for (Component at : Around.of(component)) {
            Rectangle bounds = Facts.bounds(at);
            Container parent = Around.parent(at);
            if (bounds.isEmpty() && parent != null) {
                boolean both = bounds.width <= 0 && bounds.height <= 0;
                String none = both ? "no size" : bounds.width <= 0 ? "no width" : "no height";
                return Sentence.of(Around.subject(at, component), " has " + none + ": ", reason(at, parent));
            }
        }
        return null;
    }

    /** The rest of the sentence. */
    private static Object[] reason(Component component, Container parent) throws Throwable {
        LayoutManager layout = Managed.layout(parent);
        if (layout == null) {
            return Unmanaged.noSize(component, parent);
        }
        boolean isBorder = layout instanceof BorderLayout && !Managed.isPrograms(layout);
        Object[] lost = isBorder ? Regions.notLaidOut(component, (BorderLayout) layout, parent) : null;
        if (lost != null) {
            return new Object[] {"it ", lost};
        }
        if (parent instanceof JSplitPane) {
            return new Object[] {"the divider of ", parent, " leaves it none."};
        }
        if (!Facts.isValid(parent)) {
            return new Object[] {parent, " has not been laid out since it changed; revalidate() has that done."};
        }
        Dimension preferred = Wants.PREFERRED.of(component);
        if (preferred != null && preferred.equals(Extent.size(component))) {
            return new Object[] {Managed.of(layout, parent), "gives it its preferred size, and that is ",
                    Formats.write(preferred), because(component), "."};
        }
        return new Object[] {Managers.name(layout), " of ", parent, " leaves it none."};
    }

    /** Why it prefers none. */
    private static Object[] because(Component component) {
        if (Wants.PREFERRED.isSet(component)) {
            return Wants.PREFERRED.origin(component);
        }
        if (component instanceof JLabel && Code.getterOverrider(component.getClass()) == null) {
            String text = ((JLabel) component).getText();
            Icon icon = ((JLabel) component).getIcon();
            return new Object[] {
                    (text == null || text.isEmpty()) && icon == null ? ", for it has neither text nor icon" : ""};
        }
        boolean isEmpty = component instanceof Container && Facts.children(component).length == 0;
        return new Object[] {isEmpty ? ", for there is nothing in it" : ""};
    }
}
