package com.vantrel.why;

import java.awt.Component;

import javax.swing.JComboBox;
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
                return at == component && invoker((JPopupMenu) at) == null
                        ? Sentence.of("It is closed.")
                        : Sentence.of("It is in ", name((JPopupMenu) at), ", which is closed.");
            }
        }
        return null;
    }

    /** What its user knows a popup by: the menu or combo box that opens it, or else itself. */
    private static Object[] name(JPopupMenu popup) {
        Component invoker = invoker(popup);
        return invoker instanceof JMenu ? new Object[] {invoker}
                : invoker == null       ? new Object[] {popup}
                                        : new Object[] {"the popup of ", invoker};
    }

    private static Component invoker(JPopupMenu popup) {
        Component invoker = Code.overrider(popup.getClass(), "getInvoker") == null ? popup.getInvoker() : null;
        return invoker instanceof JMenu || invoker instanceof JComboBox ? invoker : null;
    }
}
