package com.vantrel.view;

import java.awt.Color;
import java.awt.Dimension;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Rectangle;

import javax.swing.AbstractButton;
import javax.swing.Action;
import javax.swing.BorderFactory;
import javax.swing.Icon;
import javax.swing.JToggleButton;
import javax.swing.plaf.basic.BasicButtonUI;

/**
 * A button without a frame. Its background appears while the pointer is over it, and stays while it is switched on. The
 * same under every look and feel.
 */
final class FlatButton extends JToggleButton {
    private static final long serialVersionUID = 1L;
    private static final int ARC = 6;

    private final boolean isToggle;

    /** @param toggle whether a click switches it on or off; otherwise a click just runs the action */
    FlatButton(Action action, Icon icon, boolean toggle) {
        isToggle = toggle;
        if (!toggle) {
            setModel(new javax.swing.DefaultButtonModel());
        }
        setAction(action);
        setHideActionText(true);
        setText(null);
        setIcon(icon);
        setDisabledIcon(icon);
        setFocusable(false);
        setRolloverEnabled(true);
        setOpaque(false);
    }

    /** Shows the action's name beside the icon. */
    FlatButton named() {
        setHideActionText(false);
        setText((String) getAction().getValue(Action.NAME));
        return this;
    }

    @Override
    public void updateUI() {
        setUI(new BasicButtonUI() {
            @Override
            protected void paintText(Graphics graphics, AbstractButton button, Rectangle at, String text) {
                Graphics2D g = Look.smooth(graphics);
                Color color = button.getForeground();
                g.setColor(button.isEnabled() ? color : Look.mix(color, Look.background(), 0.65));
                g.drawString(text, at.x, at.y + g.getFontMetrics().getAscent());
                g.dispose();
            }
        });
        setBorder(BorderFactory.createEmptyBorder(4, 5, 4, 5));
        setFont(Look.font());
        setForeground(Look.foreground());
        setIconTextGap(Look.GAP);
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        boolean lit = isToggle && isSelected();
        boolean down = isEnabled() && getModel().isArmed() && getModel().isPressed();
        boolean over = isEnabled() && getModel().isRollover();
        setForeground(lit ? Look.own() : Look.foreground());
        if (lit || down || over) {
            Graphics2D g = Look.smooth(graphics);
            Color back = lit ? Look.mix(Look.own(), Look.background(), 0.82) : down ? Look.pressed() : Look.hover();
            g.setColor(back);
            g.fillRoundRect(0, 0, getWidth(), getHeight(), ARC, ARC);
            g.dispose();
        }
        super.paintComponent(graphics);
    }

    @Override
    public Dimension getMaximumSize() {
        return getPreferredSize();
    }

    static FlatButton of(Action action, Icon icon) {
        return new FlatButton(action, icon, false);
    }
}
