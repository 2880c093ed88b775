package com.vantrel.why;

import java.awt.Component;
import java.awt.Window;

import javax.swing.AbstractAction;
import javax.swing.AbstractButton;
import javax.swing.Action;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;

/** Of what is disabled, by itself or with its action. */
final class Disabled {
    private Disabled() {
    }

    /** Of what is in a window that is disabled: that gets neither mouse nor keys, and nor does anything in it. */
    static Sentence window(Component component) {
        Component top = Around.top(component);
        return top == component || !(top instanceof Window) || Facts.isEnabled(top)
                ? null
                : Sentence.of(Around.window((Window) top, component), " is disabled",
                        Who.did(top, "enabled", "disabled it"), ".");
    }

    static Sentence of(Component component) {
        if (Facts.isEnabled(component)) {
            return null;
        }
        Object[] who = Who.did(component, "enabled", "disabled it");
        Action action = action(component);
        if (action == null || action.isEnabled()) {
            return Sentence.of("It is disabled", who, ".");
        }
        Object name = action.getValue(Action.NAME);
        return Sentence.of(
                "It is disabled, as its action" + (name instanceof String ? " \"" + name + "\"" : "") + " is", who,
                ".");
    }

    /** A component's action, where that can be asked; null for none. */
    private static Action action(Component component) {
        boolean canTell =
                component instanceof AbstractButton && Code.overrider(component.getClass(), "getAction") == null;
        Action action = canTell ? ((AbstractButton) component).getAction() : null;
        boolean isPlain = action instanceof AbstractAction && Code.overrider(action.getClass(), "isEnabled") == null
                && Code.overrider(action.getClass(), "getValue", String.class) == null;
        return isPlain ? action : null;
    }
}
