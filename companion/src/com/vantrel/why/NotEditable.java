package com.vantrel.why;

import java.awt.Component;

import javax.swing.text.JTextComponent;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;

/** Of a text that cannot be typed into. */
final class NotEditable {
    private NotEditable() {
    }

    static Sentence of(Component component) {
        boolean canTell = component instanceof JTextComponent && Facts.isEnabled(component)
                && Code.overrider(component.getClass(), "isEditable") == null;
        return canTell && !((JTextComponent) component).isEditable()
                ? Sentence.of("It cannot be edited", Who.did(component, "editable", "made it so"), ".")
                : null;
    }
}
