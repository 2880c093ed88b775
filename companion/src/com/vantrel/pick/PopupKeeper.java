package com.vantrel.pick;

import java.awt.AWTEvent;
import java.awt.Component;
import java.awt.Container;
import java.awt.MouseInfo;
import java.awt.Point;
import java.awt.PointerInfo;
import java.awt.Window;
import java.awt.event.FocusEvent;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;
import java.awt.event.WindowEvent;
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
 * Keeps the program's popup menus and combo lists open while the user is busy with the inspector: Swing closes them when
 * it hears that the pointer was pressed elsewhere, or that the window has lost the focus. It is only kept from hearing
 * of what was done to us.
 */
final class PopupKeeper {
    private static final String UNGRAB = "sun.awt.UngrabEvent";
    private static final String DO_NOT_CANCEL = "doNotCancelPopup";

    /** Set on an event while the focus manager, which has to know of it, hands it on to its component. */
    private static final Field HANDED_ON = field("java.awt", AWTEvent.class, "focusManagerIsDispatching");
    /** The value of the client property, of which Swing knows its own parts that may be pressed. */
    private static final Field PARTS_KEY = field("javax.swing.plaf.basic", BasicComboBoxUI.class, "HIDE_POPUP_KEY");

    /** How long a window takes to be shown and to get the focus, at most. */
    private static final long SHOWN_NANOS = 2_000_000_000;

    private final BooleanSupplier picking;
    private long begunAt;

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
            return null; // popups then close, as they do whenever another window is used
        }
    }

    /** The inspector's window is about to be shown. */
    void begin() {
        begunAt = System.nanoTime();
    }

    /**
     * Whether it is one of our windows that takes the focus from the program. X does not tell, at this time, which window
     * will have it; it is ours if we have just been shown, or pressed.
     */
    private boolean isForUs(AWTEvent event) {
        Component opposite = event instanceof FocusEvent ? ((FocusEvent) event).getOppositeComponent()
                : ((WindowEvent) event).getOppositeWindow();
        return opposite != null ? Ours.isOurs(opposite)
                : System.nanoTime() - begunAt < SHOWN_NANOS || pointerIsOverOurs();
    }

    /** Whether an event, neither of the mouse nor of a key, is to be kept from the program. */
    boolean keep(Component source, AWTEvent event) {
        switch (event.getID()) {
            case WindowEvent.WINDOW_DEACTIVATED:
            case WindowEvent.WINDOW_LOST_FOCUS:
            case FocusEvent.FOCUS_LOST:
                return isHandedOn(event) && !Ours.isOurs(source) && programHasPopup() && isForUs(event);
            default:
                return event.getClass().getName().equals(UNGRAB) && (picking.getAsBoolean() || pointerIsOverOurs());
        }
    }

    /** Sees to it that a press in our window does not count as one that closes the program's popups. */
    void inOurs(Component source, MouseEvent event) {
        if (event.getID() == MouseEvent.MOUSE_PRESSED && source instanceof RootPaneContainer && programHasPopup()) {
            JRootPane root = ((RootPaneContainer) source).getRootPane();
            if (root.getMouseListeners().length == 0) {
                root.addMouseListener(new MouseAdapter() { }); // or a press beside everything would be the window's
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

    private static boolean isHandedOn(AWTEvent event) {
        try {
            return HANDED_ON != null && HANDED_ON.getBoolean(event);
        } catch (IllegalAccessException e) {
            return false;
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
