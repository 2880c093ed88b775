package com.vantrel.why;

import java.awt.Dimension;
import java.awt.Window;

/** The size of a window. */
final class Windows {
    private Windows() {
    }

    static Sentence of(Window window) {
        Dimension preferred = Wants.PREFERRED.of(window);
        boolean isPreferred = preferred != null && preferred.equals(Extent.size(window));
        Who who = Who.last(window, "bounds");
        String size = ": it is as large as what is in it prefers, " + Extent.text(window) + ".";
        if (who != null && who.isPacking()) {
            return Sentence.of(who, " packed it", isPreferred ? size : ".");
        }
        if (who != null) {
            return Sentence.of(who, " set its bounds.");
        }
        return isPreferred ? Sentence.of("It is as large as what is in it prefers, ", Extent.text(window), ".") : null;
    }
}
