package com.vantrel.view;

import java.awt.BasicStroke;
import java.awt.Color;
import java.awt.Graphics2D;
import java.awt.Image;
import java.awt.geom.RoundRectangle2D;
import java.awt.image.BufferedImage;
import java.util.ArrayList;
import java.util.List;

/**
 * The inspector's icon in title bars and lists of windows, where its window must not look like one of the program's.
 */
public final class WindowIcon {
    private static final int[] SIZES = {16, 24, 32, 48, 64};
    /** The size that the drawing is made for. */
    private static final double UNIT = 16;
    private static final Color PAPER = new Color(0x2F4F6F);

    private WindowIcon() {
    }

    /** An image for each size that window managers ask for. */
    public static List<Image> images() {
        List<Image> images = new ArrayList<>();
        for (int size : SIZES) {
            BufferedImage image = new BufferedImage(size, size, BufferedImage.TYPE_INT_ARGB);
            Graphics2D g = Look.smooth(image.createGraphics());
            g.scale(size / UNIT, size / UNIT);
            g.setColor(PAPER);
            g.fill(new RoundRectangle2D.Double(0, 0, UNIT, UNIT, 5, 5));
            g.setColor(Color.WHITE);
            g.setStroke(new BasicStroke(1.3f, BasicStroke.CAP_ROUND, BasicStroke.JOIN_ROUND));
            ToolIcon.PICK.draw(g);
            g.dispose();
            images.add(image);
        }
        return images;
    }
}
