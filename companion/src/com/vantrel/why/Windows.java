package com.vantrel.why;

import java.awt.Dimension;
import java.awt.Window;

/**
 * The size of a window. What the user and the window system make of it is not recorded: it reaches a window past all
 * methods that set bounds.
 */
final class Windows {
    private Windows() {
    }

    static Sentence of(Window window) {
        Dimension preferred = Wants.PREFERRED.of(window);
        boolean isPreferred = preferred != null && preferred.equals(Extent.size(window));
        Who who = Who.last(window, "bounds");
        String size = ": it is as large as what is in it prefers, " + Extent.text(window) + ".";
        if (who != null && who.isPacking()) {
            return Sentence.of(
                    who, " packed it", isPreferred ? size : "; since then it was resized, or prefers another size.");
        }
        if (who != null) {
            return Sentence.of(who, " set its bounds; the user and the window system may change them.");
        }
        return isPreferred ? Sentence.of("It is as large as what is in it prefers, ", Extent.text(window), ".") : null;
    }
}
