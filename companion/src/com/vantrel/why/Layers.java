package com.vantrel.why;

import java.awt.AWTEvent;
import java.awt.Component;

import javax.swing.JLayer;
import javax.swing.plaf.LayerUI;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;

/** Of what is in a JLayer whose user interface looks at the mouse's events first. */
final class Layers {
    private static final long MOUSE =
            AWTEvent.MOUSE_EVENT_MASK | AWTEvent.MOUSE_MOTION_EVENT_MASK | AWTEvent.MOUSE_WHEEL_EVENT_MASK;

    private Layers() {
    }

    static Sentence of(Component component) {
        if (!Facts.takesMouse(component)) {
            return null;
        }
        for (Component at : Around.of(component)) {
            if (at instanceof JLayer && at != component && (((JLayer<?>) at).getLayerEventMask() & MOUSE) != 0) {
                LayerUI<?> ui = ((JLayer<?>) at).getUI();
                if (ui != null && !Code.isMachinery(ui.getClass())) {
                    return Sentence.of(at,
                            " sees its mouse events first, and " + Code.shortName(ui.getClass())
                                    + " may keep them from it.");
                }
            }
        }
        return null;
    }
}
