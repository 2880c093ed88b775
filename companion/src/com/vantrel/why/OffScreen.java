package com.vantrel.why;

import java.awt.Component;
import java.awt.GraphicsDevice;
import java.awt.GraphicsEnvironment;
import java.awt.Rectangle;
import java.awt.Window;

import com.vantrel.model.Facts;

/** Of what no screen shows, because its window lies elsewhere, or reaches beyond the edge. */
final class OffScreen {
    private OffScreen() {
    }

    static Sentence of(Component component) {
        Component top = Around.top(component);
        if (!(top instanceof Window) || GraphicsEnvironment.isHeadless()) {
            return null;
        }
        Rectangle window = Facts.bounds(top);
        if (!isOnScreen(window)) {
            return Sentence.of(Around.window((Window) top, component),
                    " is outside of the screen, at " + window.x + ", " + window.y + ".");
        }
        Rectangle rest = component == top ? new Rectangle() : Sight.of(component).rest;
        rest.translate(window.x, window.y);
        return rest.isEmpty() || isOnScreen(rest)
                ? null
                : Sentence.of("It is outside of the screen, at " + rest.x + ", " + rest.y + ", for ", top,
                        " reaches beyond the edge.");
    }

    private static boolean isOnScreen(Rectangle area) {
        for (GraphicsDevice screen : GraphicsEnvironment.getLocalGraphicsEnvironment().getScreenDevices()) {
            if (screen.getDefaultConfiguration().getBounds().intersects(area)) {
                return true;
            }
        }
        return false;
    }
}
