package com.vantrel.model;

import java.awt.Component;
import java.awt.Container;

import javax.swing.AbstractButton;
import javax.swing.CellRendererPane;
import javax.swing.JComboBox;
import javax.swing.JDesktopPane;
import javax.swing.JInternalFrame;
import javax.swing.JLayeredPane;
import javax.swing.JPanel;
import javax.swing.JRootPane;
import javax.swing.JScrollBar;
import javax.swing.JScrollPane;
import javax.swing.JSpinner;
import javax.swing.JViewport;
import javax.swing.plaf.UIResource;
import javax.swing.plaf.basic.BasicInternalFrameTitlePane;
import javax.swing.plaf.basic.BasicSplitPaneDivider;

/**
 * What Swing and the look and feel put into a window of their own accord, and what people would rather not see while
 * they look for their own components.
 */
public enum Machinery {
    /** Somebody's own component. */
    NO,
    /** Stands between a component and its real content: a root pane, a viewport. */
    BETWEEN,
    /** A part that belongs to another component, with all that is in it: a scroll bar, a renderer pane. */
    PART;

    /** What a component is in its parent. Classes of the program are never machinery. */
    public static Machinery of(Component component, Container parent) {
        if (ClassFacts.of(component.getClass()).isPrograms()) {
            return NO;
        }
        if (component instanceof CellRendererPane || component instanceof BasicSplitPaneDivider
                || component instanceof BasicInternalFrameTitlePane || parent instanceof JInternalFrame.JDesktopIcon) {
            return PART;
        }
        if (component instanceof JViewport || component instanceof JRootPane
                || component instanceof JSpinner.DefaultEditor) {
            return BETWEEN;
        }
        if (component instanceof JLayeredPane && !(component instanceof JDesktopPane)) {
            return parent instanceof JRootPane ? BETWEEN : NO;
        }
        if (component instanceof JPanel) {
            return ofPanel(component, parent);
        }
        if (component instanceof java.awt.Window) {
            return component.getClass().getName().contains("SharedOwnerFrame") ? BETWEEN : NO;
        }
        boolean scrolls = component instanceof JScrollBar && parent instanceof JScrollPane;
        boolean arrow = component instanceof AbstractButton
                && (component instanceof UIResource || parent instanceof JScrollBar || parent instanceof JComboBox
                        || parent instanceof JSpinner);
        return scrolls || arrow ? PART : NO;
    }

    /**
     * The glass pane and content pane that every window begins with are plain panels. One of another class is the
     * program's choice.
     */
    private static Machinery ofPanel(Component panel, Container parent) {
        if (panel.getClass() == JPanel.class && parent instanceof JRootPane) {
            return Facts.isVisible(panel) ? NO : PART;
        }
        String name = panel.getClass() == JPanel.class && parent instanceof JLayeredPane ? Facts.name(panel) : null;
        return name != null && name.endsWith(".contentPane") ? BETWEEN : NO;
    }
}
