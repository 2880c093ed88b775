package com.vantrel.why;

import java.awt.Component;
import java.awt.Dimension;

import com.vantrel.model.Facts;
import com.vantrel.model.Formats;

/** Clauses that tell what the width and height of a component have to do with those that it wants. */
final class Extent {
    private Extent() {
    }

    static Dimension size(Component component) {
        return Facts.bounds(component).getSize();
    }

    static int along(Dimension size, boolean wide) {
        return wide ? size.width : size.height;
    }

    /**
     * Which of its sizes a component has in one direction; null for none of them. A size that only the program's code
     * could tell is not asked for.
     */
    static Wants wanted(Component component, boolean wide) {
        int is = along(size(component), wide);
        for (Wants wants : new Wants[] {Wants.PREFERRED, Wants.MAXIMUM, Wants.MINIMUM}) {
            Dimension size = wants.of(component);
            if (size != null && along(size, wide) == is) {
                return wants;
            }
        }
        return null;
    }

    /** "gives it its preferred size, 60 × 20, set by X", or "makes it 80 wide, its maximum, and 25 high". */
    static Object[] clause(Component component) {
        Wants width = wanted(component, true);
        if (width != null && width == wanted(component, false)) {
            return new Object[] {"gives it its " + width.word + " size, " + text(component), width.origin(component)};
        }
        if (width == null && wanted(component, false) == null) {
            return new Object[] {"makes it ", text(component)};
        }
        return new Object[] {"makes it ", clause(component, true), ", and ", clause(component, false)};
    }

    /** "80 wide, its maximum, set by X", "20 high, as it prefers, computed" or "25 high". */
    static Object[] clause(Component component, boolean wide) {
        String is = along(size(component), wide) + (wide ? " wide" : " high");
        Wants wants = wanted(component, wide);
        if (wants == null) {
            return new Object[] {is};
        }
        return new Object[] {
                is + (wants == Wants.PREFERRED ? ", as it prefers" : ", its " + wants.word), wants.origin(component)};
    }

    /** "as high as it prefers, 20, set by X", where the manager gives what is preferred. */
    static Object[] preferred(Component component, boolean wide) {
        String how = wide ? "as wide" : "as high";
        int is = along(size(component), wide);
        Dimension preferred = Wants.PREFERRED.of(component);
        if (preferred != null && along(preferred, wide) != is) {
            return new Object[] {how + " as it preferred when it was laid out, " + is + ", where it prefers "
                            + along(preferred, wide) + " now",
                    Wants.PREFERRED.origin(component)};
        }
        return new Object[] {how + " as it prefers, " + is, Wants.PREFERRED.origin(component)};
    }

    /** "; its preferred size, 60 × 20, set by X, does not count"; nothing where the program has set none. */
    static Object[] doesNotCount(Component component) {
        Dimension preferred = Wants.PREFERRED.isSet(component) ? Wants.PREFERRED.of(component) : null;
        if (preferred == null || preferred.equals(size(component))) {
            return new Object[0];
        }
        return new Object[] {"; its preferred size, " + Formats.write(preferred), Wants.PREFERRED.origin(component),
                ", does not count"};
    }

    static String text(Component component) {
        return Formats.write(size(component));
    }
}
