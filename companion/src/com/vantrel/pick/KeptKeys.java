package com.vantrel.pick;

import java.awt.event.KeyEvent;
import java.util.HashSet;
import java.util.Set;
import java.util.function.BooleanSupplier;

/**
 * Which keys are kept from the program: a release whose press it has not seen, because that was kept or went to one of
 * our windows, and what a kept key types. A release whose press the program has seen always reaches it.
 */
final class KeptKeys {
    /** Keys that are down without the program's knowledge. */
    private final Set<Integer> unseen = new HashSet<>();
    private boolean keepsTyped;

    /**
     * Whether to keep an event.
     *
     * @param ours     whether it is for one of our windows
     * @param pressed  asked of a press: whether to keep it
     * @param released run for each release
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
