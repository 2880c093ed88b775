package com.vantrel.why;

import java.awt.Component;

import javax.swing.JInternalFrame;
import javax.swing.JMenu;
import javax.swing.JPopupMenu;

import com.vantrel.model.Code;
import com.vantrel.model.Facts;

/** Of what is taken out of the window while it is closed: menus, other popups, and internal frames that are icons. */
final class Closed {
    private Closed() {
    }

    static Sentence of(Component component) {
        Component top = Around.top(component);
        if (top instanceof JInternalFrame && Code.overrider(top.getClass(), "isIcon") == null
                && ((JInternalFrame) top).isIcon()) {
            return Sentence.of(Around.subject(top, component), " is an icon.");
        }
        for (Component at = component; at != null; at = Around.parent(at)) {
            if (at instanceof JPopupMenu && !Facts.isVisible(at)) {
                Component menu = menu((JPopupMenu) at);
                return at == component && menu == null
                        ? Sentence.of("It is closed.")
                        : Sentence.of("It is in ", menu == null ? at : menu, ", which is closed.");
            }
        }
        return null;
    }

    /** The menu whose popup it is, which its user knows by that name; null for none. */
    private static Component menu(JPopupMenu popup) {
        Component invoker = Code.overrider(popup.getClass(), "getInvoker") == null ? popup.getInvoker() : null;
        return invoker instanceof JMenu ? invoker : null;
    }
}
