package com.vantrel.model;

import java.awt.Button;
import java.awt.Checkbox;
import java.awt.Choice;
import java.awt.Component;
import java.awt.Dialog;
import java.awt.Frame;
import java.awt.Label;
import java.awt.List;
import java.awt.Panel;
import java.awt.ScrollPane;
import java.awt.Scrollbar;
import java.awt.TextArea;
import java.awt.TextField;
import java.awt.Window;

import javax.swing.AbstractButton;
import javax.swing.Box;
import javax.swing.JCheckBox;
import javax.swing.JComboBox;
import javax.swing.JComponent;
import javax.swing.JDesktopPane;
import javax.swing.JInternalFrame;
import javax.swing.JLabel;
import javax.swing.JList;
import javax.swing.JMenuBar;
import javax.swing.JMenuItem;
import javax.swing.JPanel;
import javax.swing.JPopupMenu;
import javax.swing.JProgressBar;
import javax.swing.JRadioButton;
import javax.swing.JScrollBar;
import javax.swing.JScrollPane;
import javax.swing.JSeparator;
import javax.swing.JSlider;
import javax.swing.JSpinner;
import javax.swing.JSplitPane;
import javax.swing.JTabbedPane;
import javax.swing.JTable;
import javax.swing.JTextArea;
import javax.swing.JToolBar;
import javax.swing.JTree;
import javax.swing.text.JTextComponent;

/**
 * The kinds of component that people tell apart at a glance. The first one that fits counts, so subclasses come before
 * their superclasses: a JCheckBox is a button, too.
 */
public enum Kind {
    FRAME(Frame.class, JInternalFrame.class, JInternalFrame.JDesktopIcon.class),
    DIALOG(Dialog.class),
    WINDOW(Window.class),
    CHECK(JCheckBox.class, Checkbox.class),
    RADIO(JRadioButton.class),
    MENU(JMenuItem.class, JMenuBar.class, JPopupMenu.class),
    BUTTON(AbstractButton.class, Button.class),
    LABEL(JLabel.class, Label.class),
    AREA(JTextArea.class, javax.swing.JEditorPane.class, TextArea.class),
    FIELD(JTextComponent.class, TextField.class),
    COMBO(JComboBox.class, Choice.class),
    SPINNER(JSpinner.class),
    SLIDER(JSlider.class, JProgressBar.class, JScrollBar.class, Scrollbar.class),
    LIST(JList.class, List.class),
    TABLE(JTable.class),
    TREE(JTree.class),
    TABS(JTabbedPane.class),
    SPLIT(JSplitPane.class),
    SCROLL(JScrollPane.class, ScrollPane.class),
    TOOL_BAR(JToolBar.class),
    SPACE(JSeparator.class, Box.Filler.class),
    PANEL(JPanel.class, Panel.class, Box.class, JDesktopPane.class),
    /** Painted by itself, or made of others in a way of its own. */
    OTHER(JComponent.class, Component.class);

    private final Class<?>[] classes;

    Kind(Class<?>... classes) {
        this.classes = classes;
    }

    static Kind of(Class<?> type) {
        for (Kind kind : values()) {
            for (Class<?> known : kind.classes) {
                if (known.isAssignableFrom(type)) {
                    return kind;
                }
            }
        }
        return OTHER;
    }
}
