package orchard;

import java.awt.Color;
import java.awt.Component;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.RenderingHints;

import javax.swing.Icon;

/** A round icon in one colour. */
final class DotIcon implements Icon {
    private static final int SIZE = 12;

    private final Color color;

    DotIcon(Color color) {
        this.color = color;
    }

    @Override
    public void paintIcon(Component component, Graphics graphics, int x, int y) {
        Graphics2D fine = (Graphics2D) graphics.create();
        fine.setRenderingHint(RenderingHints.KEY_ANTIALIASING, RenderingHints.VALUE_ANTIALIAS_ON);
        fine.setColor(component.isEnabled() ? color : Palette.LINE);
        fine.fillOval(x, y, SIZE, SIZE);
        fine.dispose();
    }

    @Override
    public int getIconWidth() {
        return SIZE;
    }

    @Override
    public int getIconHeight() {
        return SIZE;
    }
}
