package com.vantrel.pick;

import java.awt.AWTEvent;
import java.awt.Component;
import java.awt.Container;
import java.awt.MouseInfo;
import java.awt.Point;
import java.awt.PointerInfo;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;
import java.lang.reflect.Field;
import java.util.function.BooleanSupplier;

import javax.swing.JComponent;
import javax.swing.JRootPane;
import javax.swing.MenuElement;
import javax.swing.MenuSelectionManager;
import javax.swing.RootPaneContainer;
import javax.swing.plaf.basic.BasicComboBoxUI;

import com.vantrel.hooks.DesktopModule;
import com.vantrel.model.Ours;

/**
 * Keeps the program's popup menus and combo lists open while the user works with the inspector. Swing closes them when
 * it hears of a press outside of them; here it is kept from hearing of presses that are meant for the inspector. Losing
 * the focus does not close them.
 */
final class PopupKeeper {
    private static final String UNGRAB = "sun.awt.UngrabEvent";
    private static final String DO_NOT_CANCEL = "doNotCancelPopup";

    /**
     * Holds the value of that client property by which Swing knows its own components that may be pressed without
     * closing a popup.
     */
    private static final Field PARTS_KEY = field("javax.swing.plaf.basic", BasicComboBoxUI.class, "HIDE_POPUP_KEY");

    private final BooleanSupplier picking;

    /** @param picking whether the next press is the picker's */
    PopupKeeper(BooleanSupplier picking) {
        this.picking = picking;
    }

    private static Field field(String packageName, Class<?> type, String name) {
        try {
            DesktopModule.open(packageName);
            Field field = type.getDeclaredField(name);
            field.setAccessible(true);
            return field;
        } catch (NoSuchFieldException | RuntimeException e) {
            return null; // then popups close, as they do when any other window is used
        }
    }

    /**
     * Whether to keep an event: the one by which the toolkit tells the owner of an open popup of a press outside, if
     * that is meant for the inspector.
     */
    boolean keep(AWTEvent event) {
        return event.getClass().getName().equals(UNGRAB) && (picking.getAsBoolean() || pointerIsOverOurs());
    }

    /** Keeps a press in our window from closing the program's popups. */
    void inOurs(Component source, MouseEvent event) {
        if (event.getID() == MouseEvent.MOUSE_PRESSED && source instanceof RootPaneContainer && programHasPopup()) {
            JRootPane root = ((RootPaneContainer) source).getRootPane();
            if (root.getMouseListeners().length == 0) {
                root.addMouseListener(new MouseAdapter() {
                }); // so that a press between the components comes to the marked root pane, and not to the window
            }
            spare(root);
        }
    }

    private static void spare(Component component) {
        if (component instanceof JComponent && PARTS_KEY != null) {
            try {
                ((JComponent) component).putClientProperty(DO_NOT_CANCEL, PARTS_KEY.get(null));
            } catch (IllegalAccessException e) {
                throw new IllegalStateException(e); // it was made accessible
            }
        }
        if (component instanceof Container) {
            for (Component child : ((Container) component).getComponents()) {
                spare(child);
            }
        }
    }

    private static boolean programHasPopup() {
        MenuElement[] path = MenuSelectionManager.defaultManager().getSelectedPath();
        return path.length > 0 && !Ours.isOurs(path[0].getComponent());
    }

    private static boolean pointerIsOverOurs() {
        PointerInfo pointer = MouseInfo.getPointerInfo();
        Point at = pointer == null ? null : pointer.getLocation();
        return at != null && WindowAt.isOurs(at);
    }
}
