package com.vantrel.view;

import java.awt.event.ActionEvent;
import java.awt.event.InputEvent;
import java.awt.event.KeyEvent;
import java.util.function.BooleanSupplier;

import javax.swing.AbstractAction;
import javax.swing.Action;
import javax.swing.JComponent;
import javax.swing.KeyStroke;

/** Something that the inspector does when it is told: by a button, a menu or a key. */
final class Command extends AbstractAction {
    private static final long serialVersionUID = 1L;

    private final transient Runnable task;
    private final transient BooleanSupplier possible;

    /**
     * @param name     as menus have it
     * @param key      as {@link KeyStroke#getKeyStroke(String)} takes it, "ctrl" for the platform's own key; or null
     * @param purpose  what it does, in a sentence without its full stop, for the tooltip
     * @param possible whether there is anything to do now
     */
    Command(String name, String key, String purpose, BooleanSupplier possible, Runnable task) {
        super(name);
        this.task = task;
        this.possible = possible;
        KeyStroke stroke = key == null ? null : keyStroke(key);
        putValue(ACCELERATOR_KEY, stroke);
        describe(purpose);
    }

    /** Says anew what it does, in a sentence without its full stop. */
    void describe(String purpose) {
        KeyStroke stroke = (KeyStroke) getValue(ACCELERATOR_KEY);
        putValue(SHORT_DESCRIPTION, stroke == null ? purpose : purpose + " (" + keyText(stroke) + ")");
    }

    /** A key as KeyStroke takes it, with the platform's own key for shortcuts in the place of "ctrl". */
    static KeyStroke keyStroke(String key) {
        boolean meta = Tips.shortcutMask() == InputEvent.META_DOWN_MASK;
        return KeyStroke.getKeyStroke(meta ? key.replace("ctrl", "meta") : key);
    }

    static String keyText(KeyStroke stroke) {
        String modifiers = InputEvent.getModifiersExText(stroke.getModifiers());
        return (modifiers.isEmpty() ? "" : modifiers + "+") + KeyEvent.getKeyText(stroke.getKeyCode());
    }

    /** Has its key work anywhere in a component, such as the window's content. */
    Command in(JComponent root) {
        KeyStroke stroke = (KeyStroke) getValue(ACCELERATOR_KEY);
        if (stroke != null) {
            root.getInputMap(JComponent.WHEN_ANCESTOR_OF_FOCUSED_COMPONENT).put(stroke, getValue(Action.NAME));
            root.getActionMap().put(getValue(Action.NAME), this);
        }
        return this;
    }

    /** Looks again whether there is anything to do. */
    void update() {
        setEnabled(possible.getAsBoolean());
    }

    @Override
    public void actionPerformed(ActionEvent event) {
        if (possible.getAsBoolean()) {
            task.run();
        }
    }
}
