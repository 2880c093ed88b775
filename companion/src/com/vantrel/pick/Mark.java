package com.vantrel.pick;

import java.awt.Color;
import java.awt.GraphicsDevice;
import java.awt.Rectangle;
import java.awt.Window;
import java.awt.geom.AffineTransform;
import java.awt.geom.Area;

import com.vantrel.model.Ours;

/**
 * A narrow window that lies over the program: one side of a box, or its label. It takes no focus, and is over heavy
 * components and popups, too, where nothing that is painted would be.
 */
class Mark extends Window implements Ours {
    private static final long serialVersionUID = 1L;

    private boolean isCut;

    Mark(Window owner, String name, Color color) {
        super(owner, owner.getGraphicsConfiguration());
        setName(name);
        // As a popup it is not the window manager's. That would map it some time after it was asked to; when the window
        // is hidden before that, the toolkit unmaps what is not mapped yet, and the window then comes to stay.
        setType(Type.POPUP);
        setBackground(color);
        setFocusableWindowState(false);
        setAlwaysOnTop(true);
    }

    /**
     * Lies somewhere from now on, before everything else but the inspector's own window while somebody works with that;
     * no rectangle hides it.
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
