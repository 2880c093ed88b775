package com.vantrel.pick;

import java.awt.Color;
import java.awt.Window;

import com.vantrel.model.Ours;

/**
 * A narrow window that lies over the program: one side of a box, or its label. It takes no focus, and is over heavy
 * components and popups, too, where nothing that is painted would be.
 */
class Mark extends Window implements Ours {
    private static final long serialVersionUID = 1L;

    Mark(Window owner, String name, Color color) {
        super(owner, owner.getGraphicsConfiguration());
        setName(name);
        setBackground(color);
        setFocusableWindowState(false);
        setAlwaysOnTop(true);
    }

    /** Lies somewhere from now on, before everything else; no rectangle hides it. */
    final void place(int x, int y, int width, int height) {
        if (width <= 0 || height <= 0) {
            setVisible(false);
            return;
        }
        setBounds(x, y, width, height);
        if (isVisible()) {
            toFront();
        } else {
            setVisible(true);
        }
    }
}
