package com.vantrel.view;

import java.awt.Toolkit;
import java.awt.event.MouseEvent;

import javax.swing.SwingUtilities;

/**
 * Tells a double click on a row from other clicks. An event's own click count cannot tell that: under X11 it also
 * counts a quick click before on another row or in another window. For the event thread.
 */
final class DoubleClick {
    private static final int USUAL_MILLIS = 500;

    private Object last;
    private long when;

    /**
     * Whether a press is the second one of a double click. To be called for every press of any button.
     *
     * @param on something that stands for the row, and equals nothing that stands for another row; null for none
     */
    boolean isEndedBy(MouseEvent press, Object on) {
        boolean left = SwingUtilities.isLeftMouseButton(press);
        boolean ended = left && on != null && on.equals(last) && press.getWhen() - when <= millis();
        last = left && !ended ? on : null; // a third click begins anew
        when = press.getWhen();
        return ended;
    }

    /** How long a double click may take, as the user has set it for the desktop. */
    private static int millis() {
        Object set = Toolkit.getDefaultToolkit().getDesktopProperty("awt.multiClickInterval");
        return set instanceof Integer ? (Integer) set : USUAL_MILLIS;
    }
}
