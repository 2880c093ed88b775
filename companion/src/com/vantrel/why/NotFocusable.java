package com.vantrel.why;

import java.awt.Component;
import java.awt.Window;

import javax.swing.AbstractButton;
import javax.swing.JComboBox;
import javax.swing.JList;
import javax.swing.JMenuItem;
import javax.swing.JSlider;
import javax.swing.JTable;
import javax.swing.JTree;
import javax.swing.text.JTextComponent;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;
import com.vantrel.model.Machinery;

/** Of what people would type into or press by key, and that never has the focus. */
final class NotFocusable {
    private static final Class<?>[] TYPES = {JTextComponent.class, AbstractButton.class, JComboBox.class, JList.class,
            JTable.class, JTree.class, JSlider.class};

    private NotFocusable() {
    }

    static Sentence of(Component component) {
        Component top = Around.top(component);
        if (isOne(component) && top instanceof Window
                && Code.overrider(top.getClass(), "getFocusableWindowState") == null
                && !((Window) top).getFocusableWindowState()) {
            return Sentence.of(Around.window((Window) top, component), " never has the focus",
                    Who.did(top, "focusableWindowState", "made it so"), ".");
        }
        boolean canTell = isOne(component) && Code.overrider(component.getClass(), "isFocusable") == null
                && Machinery.of(component, Facts.parent(component)) == Machinery.NO;
        return canTell && !component.isFocusable()
                ? Sentence.of("It never has the focus", Who.did(component, "focusable", "made it not focusable"), ".")
                : null;
    }

    private static boolean isOne(Component component) {
        for (Class<?> type : TYPES) {
            if (type.isInstance(component)) {
                return !(component instanceof JMenuItem);
            }
        }
        return false;
    }
}
