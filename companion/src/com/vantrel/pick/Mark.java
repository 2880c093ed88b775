package com.vantrel.pick;

import java.awt.Color;
import java.awt.GraphicsDevice;
import java.awt.Rectangle;
import java.awt.Window;
import java.awt.geom.AffineTransform;
import java.awt.geom.Area;

import com.vantrel.model.Ours;

/**
 * A narrow window that lies over the program: one side of a box, or its label. It takes no focus, and lies over heavy
 * components and popups, too, over which nothing could be painted.
 */
class Mark extends Window implements Ours {
    private static final long serialVersionUID = 1L;

    private boolean isCut;

    Mark(Window owner, String name, Color color) {
        super(owner, owner.getGraphicsConfiguration());
        setName(name);
        // The window manager leaves popups alone. Other windows it maps some time after it was asked to; if such a
        // window is hidden before that, the toolkit unmaps what is not mapped yet, and then the window comes to stay.
        setType(Type.POPUP);
        setBackground(color);
        setFocusableWindowState(false);
        setAlwaysOnTop(true);
    }

    /**
     * Moves the window, and brings it to the front; an empty size hides it. While the user works with the inspector's
     * own window, the part that would lie over that is cut off.
     */
    final void place(int x, int y, int width, int height) {
        Rectangle all = new Rectangle(x, y, Math.max(width, 0), Math.max(height, 0));
        Area beside = new Area(all);
        boolean behind = getOwner().isActive() && canBeCut() && getOwner().getBounds().intersects(all);
        if (behind) {
            beside.subtract(new Area(getOwner().getBounds()));
        }
        if (beside.isEmpty()) {
            setVisible(false);
            return;
        }
        setBounds(all);
        if (behind || isCut) {
            setShape(behind ? beside.createTransformedArea(AffineTransform.getTranslateInstance(-x, -y)) : null);
            isCut = behind;
        }
        if (isVisible()) {
            toFront();
        } else {
            setVisible(true);
        }
    }

    private boolean canBeCut() {
        return getGraphicsConfiguration().getDevice().isWindowTranslucencySupported(
                GraphicsDevice.WindowTranslucency.PERPIXEL_TRANSPARENT);
    }
}
