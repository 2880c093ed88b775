package com.vantrel.pick;

import java.awt.event.KeyEvent;
import java.util.HashSet;
import java.util.Set;
import java.util.function.BooleanSupplier;

/**
 * Which keys are kept from the program: a release is kept where its press was, and what a kept key types. A release
 * whose press the program has seen always reaches it.
 */
final class KeptKeys {
    private final Set<Integer> down = new HashSet<>();
    private boolean keepsTyped;

    /**
     * Whether to keep an event.
     *
     * @param pressed  asked of a press: whether to keep it
     * @param released run for each release
     */
    boolean keep(KeyEvent event, BooleanSupplier pressed, Runnable released) {
        switch (event.getID()) {
            case KeyEvent.KEY_PRESSED:
                boolean kept = pressed.getAsBoolean();
                keepsTyped = kept;
                if (kept) {
                    down.add(event.getKeyCode());
                } else {
                    down.remove(event.getKeyCode());
                }
                return kept;
            case KeyEvent.KEY_RELEASED:
                released.run();
                return down.remove(event.getKeyCode());
            default:
                return keepsTyped;
        }
    }
}
