package com.vantrel.pick;

import java.awt.event.KeyEvent;
import java.util.HashSet;
import java.util.Set;
import java.util.function.BooleanSupplier;

/**
 * Decides which key events are kept from the program: those that the picker takes, what such a key types, and each
 * release whose press the program has not seen, because it was kept or went to one of our windows. If the program has
 * seen a press, it also gets the release.
 */
final class KeptKeys {
    /** Keys that are down, and whose press the program has not seen. */
    private final Set<Integer> unseen = new HashSet<>();
    private boolean keepsTyped;

    /**
     * Whether to keep an event.
     *
     * @param ours     whether it is for one of our windows
     * @param pressed  called for each press: whether to keep it
     * @param released called for each release
     */
    boolean keep(KeyEvent event, boolean ours, BooleanSupplier pressed, Runnable released) {
        switch (event.getID()) {
            case KeyEvent.KEY_PRESSED:
                boolean kept = pressed.getAsBoolean();
                keepsTyped = kept;
                if (kept || ours) {
                    unseen.add(event.getKeyCode());
                } else {
                    unseen.remove(event.getKeyCode());
                }
                return kept;
            case KeyEvent.KEY_RELEASED:
                released.run();
                return unseen.remove(event.getKeyCode()) && !ours;
            default:
                return keepsTyped;
        }
    }
}
