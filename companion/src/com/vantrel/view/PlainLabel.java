package com.vantrel.view;

import java.awt.Color;
import java.util.function.Supplier;

import javax.swing.JLabel;

/** A label in the inspector's plain font and one of its colours, whatever the look and feel changes to. */
final class PlainLabel extends JLabel {
    private static final long serialVersionUID = 1L;

    private transient Supplier<Color> color;
    private final float size;

    /** @param size in relation to the usual font */
    PlainLabel(String text, Supplier<Color> color, float size) {
        super(text);
        this.color = color;
        this.size = size;
        updateUI();
    }

    void setColor(Supplier<Color> newColor) {
        color = newColor;
        setForeground(color.get());
    }

    @Override
    public void updateUI() {
        super.updateUI();
        if (color != null) { // the superclass's constructor calls this, too
            setFont(Look.font().deriveFont(Look.font().getSize2D() * size));
            setForeground(color.get());
        }
    }
}
