package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.Graphics;
import java.awt.event.HierarchyEvent;

import javax.swing.BorderFactory;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.LookAndFeel;
import javax.swing.Timer;
import javax.swing.UIManager;

import com.vantrel.model.Selection;

/** The line at the bottom: where the selected component is, what has just been done, and what the program runs on. */
final class StatusLine extends JComponent {
    private static final long serialVersionUID = 1L;
    private static final int MILLIS_OF_MESSAGE = 4000;

    private final transient Selection selection;
    private final Breadcrumb crumbs;
    private final JLabel system = new JLabel();
    private final Timer endOfMessage;

    StatusLine(Selection selection) {
        this.selection = selection;
        crumbs = new Breadcrumb(selection::select);
        crumbs.setName("vantrel.path");
        endOfMessage = new Timer(MILLIS_OF_MESSAGE, event -> tell("", false));
        endOfMessage.setRepeats(false);
        setLayout(new BorderLayout(2 * Look.GAP, 0));
        setBorder(BorderFactory.createEmptyBorder(4, Look.GAP + 2, 4, Look.GAP + 2));
        add(crumbs);
        add(system, BorderLayout.LINE_END);
        system.setText(systemText());
        style();
        selection.onChange(() -> tell("", false));
        addHierarchyListener(event -> {
            if ((event.getChangeFlags() & HierarchyEvent.DISPLAYABILITY_CHANGED) != 0 && !isDisplayable()) {
                endOfMessage.stop();
            }
        });
        tell("", false);
    }

    private static String systemText() {
        LookAndFeel look = UIManager.getLookAndFeel();
        String name = look == null ? "no look and feel" : look.getName();
        return "Java " + System.getProperty("java.version") + ", " + name;
    }

    private void style() {
        system.setFont(Look.font());
        system.setForeground(Look.dim());
    }

    /** Copies a text, and says so. */
    void copied(String what, String text) {
        boolean works = Clip.copy(text);
        say(works ? "The " + what + " is on the clipboard."
                  : "The clipboard is busy: another program holds it. Try again.",
                !works);
    }

    /** Says for a while what was done, or why it was not. */
    void say(String message, boolean fault) {
        tell(message, fault);
        endOfMessage.restart();
    }

    private void tell(String message, boolean fault) {
        Component component = selection.component();
        if (!message.isEmpty()) {
            crumbs.show(null, message, fault);
        } else {
            crumbs.show(component, component == null ? "Nothing is selected." : "", false);
        }
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        graphics.setColor(Look.background());
        graphics.fillRect(0, 0, getWidth(), getHeight());
        graphics.setColor(Look.line());
        graphics.fillRect(0, 0, getWidth(), 1);
    }
}
