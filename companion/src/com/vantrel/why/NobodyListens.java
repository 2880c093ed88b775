package com.vantrel.why;

import java.awt.Component;
import java.awt.event.ActionEvent;
import java.util.EventListener;

import javax.swing.AbstractButton;
import javax.swing.JMenu;
import javax.swing.ButtonModel;
import javax.swing.DefaultButtonModel;
import javax.swing.JCheckBoxMenuItem;
import javax.swing.JRadioButtonMenuItem;
import javax.swing.JToggleButton;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;
import com.vantrel.model.Machinery;

/** Of a button or menu item that nothing happens upon. What is ticked is ticked all the same, and is left out. */
final class NobodyListens {
    private NobodyListens() {
    }

    static Sentence of(Component component) {
        if (!isButton(component) || Machinery.of(component, Facts.parent(component)) != Machinery.NO) {
            return null;
        }
        AbstractButton button = (AbstractButton) component;
        boolean canTell = Code.getterOverrider(button.getClass()) == null
                && Code.overrider(button.getClass(), "fireActionPerformed", ActionEvent.class) == null;
        if (!canTell || button.getActionListeners().length != 0) {
            return null; // an action listens, too
        }
        if (hasPrograms(button.getChangeListeners()) || hasPrograms(button.getItemListeners())
                || hasPrograms(button.getMouseListeners()) || hasPrograms(button.getKeyListeners())
                || hasListeners(button.getModel())) {
            return null;
        }
        return Sentence.of("Pressing it does nothing: it has no action, and nobody listens to it.");
    }

    private static boolean hasPrograms(EventListener[] listeners) {
        for (EventListener listener : listeners) {
            if (!Code.isMachinery(listener.getClass())) {
                return true;
            }
        }
        return false;
    }

    /** Whether the program listens to a button's model, or might, where the model is the program's own. */
    private static boolean hasListeners(ButtonModel model) {
        if (model == null || !Code.isToolkit(model.getClass()) || !(model instanceof DefaultButtonModel)) {
            return model != null;
        }
        DefaultButtonModel all = (DefaultButtonModel) model;
        return hasPrograms(all.getActionListeners()) || hasPrograms(all.getItemListeners())
                || hasPrograms(all.getChangeListeners());
    }

    private static boolean isButton(Component component) {
        boolean isTicked = component instanceof JToggleButton || component instanceof JCheckBoxMenuItem
                || component instanceof JRadioButtonMenuItem;
        boolean isMenu = component instanceof JMenu;
        return component instanceof AbstractButton && !isTicked && !isMenu;
    }
}
