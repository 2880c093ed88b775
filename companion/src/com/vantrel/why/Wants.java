package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.LayoutManager;

import javax.swing.Box;
import javax.swing.JComponent;
import javax.swing.JInternalFrame;
import javax.swing.JMenuBar;
import javax.swing.JPanel;
import javax.swing.JRootPane;
import javax.swing.JScrollPane;
import javax.swing.JToolBar;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;
import com.vantrel.model.Managers;
import com.vantrel.model.Patience;

/** The sizes that a component wants of its manager, where it can be asked for them, and where they come from. */
enum Wants {
    MINIMUM("minimum", "minimumSize", "getMinimumSize") {
        @Override
        Dimension ask(Component component) {
            return component.getMinimumSize();
        }

        @Override
        boolean asksSet(Component component) {
            return component.isMinimumSizeSet();
        }
    },
    PREFERRED("preferred", "preferredSize", "getPreferredSize") {
        @Override
        Dimension ask(Component component) {
            return component.getPreferredSize();
        }

        @Override
        boolean asksSet(Component component) {
            return component.isPreferredSizeSet();
        }
    },
    MAXIMUM("maximum", "maximumSize", "getMaximumSize") {
        @Override
        Dimension ask(Component component) {
            return component.getMaximumSize();
        }

        @Override
        boolean asksSet(Component component) {
            return component.isMaximumSizeSet();
        }
    };

    private static final Class<?>[] LEFT_TO_LAYOUT = {JPanel.class, Box.class, JScrollPane.class, JRootPane.class,
            JToolBar.class, JMenuBar.class, JInternalFrame.class};

    final String word;
    private final String property;
    private final String getter;

    Wants(String word, String property, String getter) {
        this.word = word;
        this.property = property;
        this.getter = getter;
    }

    abstract Dimension ask(Component component);

    abstract boolean asksSet(Component component);

    /**
     * The size; null where only the program's own code could tell it, where it takes too long to tell, or where
     * something in the component throws when it is asked. A component that has what the program has set tells it
     * whatever else its class overrides.
     */
    Dimension of(Component component) {
        Class<?> type = component.getClass();
        boolean isOwn = Code.overrider(type, getter) != null;
        if (isOwn || !isSet(component) && Code.getterOverrider(type) != null || Patience.isLost(type, property)) {
            return null;
        }
        long start = System.nanoTime();
        try {
            return ask(component);
        } catch (RuntimeException | LinkageError e) {
            return null;
        } finally {
            Patience.took(type, property, System.nanoTime() - start);
        }
    }

    /** Whether somebody has set it, as against one that is computed. */
    boolean isSet(Component component) {
        String asked = "is" + getter.substring("get".length()) + "Set";
        return Code.overrider(component.getClass(), asked) == null && asksSet(component);
    }

    /** Whether a component leaves its sizes to its layout, and not to what the look and feel makes of its class. */
    private static boolean isComputedByLayout(Component component) {
        boolean isPlain = !(component instanceof JComponent);
        for (Class<?> type : LEFT_TO_LAYOUT) {
            isPlain |= type.isInstance(component);
        }
        return isPlain && component instanceof Container && Facts.children(component).length > 0;
    }

    /** Parts that say where it comes from, such as ", set by X"; for the end of a clause. */
    Object[] origin(Component component) {
        Class<?> overrider = Code.overrider(component.getClass(), getter);
        if (overrider != null) {
            return new Object[] {", computed by " + Code.shortName(overrider)};
        }
        if (isSet(component)) {
            Who who = Who.last(component, property);
            return who == null ? new Object[] {", which was set"} : new Object[] {", set by ", who};
        }
        LayoutManager layout = isComputedByLayout(component) ? Managed.layout((Container) component) : null;
        return new Object[] {layout == null ? ", computed" : ", computed by its own " + Managers.name(layout)};
    }
}
