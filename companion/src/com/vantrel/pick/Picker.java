package com.vantrel.pick;

import java.awt.AWTEvent;
import java.awt.Component;
import java.awt.EventQueue;
import java.awt.MouseInfo;
import java.awt.Point;
import java.awt.PointerInfo;
import java.awt.Window;
import java.awt.event.KeyEvent;
import java.awt.event.MouseEvent;
import java.awt.event.MouseWheelEvent;
import java.util.ArrayList;
import java.util.List;
import java.util.function.BooleanSupplier;

import javax.swing.Timer;

import com.vantrel.hooks.EventFilter;
import com.vantrel.hooks.Hooks;
import com.vantrel.model.Modality;
import com.vantrel.model.Ours;
import com.vantrel.model.Selection;

/**
 * Lets the user pick a component in the program with the pointer: while the primary modifier is held, or once after
 * {@link #arm}. What is under the pointer is highlighted; the wheel and the arrow keys lead to its parents and to what
 * lies underneath; a click, or Enter, selects it. The program gets none of these events. But what began with a press
 * that the program got goes to the program until the release, and what began with a press that was picked stays ours.
 *
 * <p>A window that a modal dialog blocks gets no mouse events. Over such a window the pointer is polled, and Enter
 * picks. For the event thread.
 */
public final class Picker {
    /** Long enough to press a shortcut without anything being highlighted, and too short to be noticed otherwise. */
    private static final int MILLIS_UNTIL_HELD = 150;
    private static final int MILLIS_BETWEEN_LOOKS = 60;

    private final Selection selection;
    private final Highlighter highlighter;
    private final BooleanSupplier modifierHeld;
    private final Runnable clicked;
    private final Primary primary = new Primary();
    private final EventFilter filter = this::keep;
    private final List<Runnable> listeners = new ArrayList<>();
    private final Timer untilHeld = new Timer(MILLIS_UNTIL_HELD, event -> held());
    private final Timer looks = new Timer(MILLIS_BETWEEN_LOOKS, event -> look());
    private final KeptKeys keys = new KeptKeys();
    private final KeptMouse mouse = new KeptMouse();
    private final PopupKeeper popups = new PopupKeeper(this::isPicking);

    private boolean started;
    private boolean armed;
    /** Whether the modifier is held and the pointer has been seen over the program since. */
    private boolean hovering;
    private Walk walk;
    /** Where the pointer was last known to be, and whether it has left its window since. */
    private Point lastPointer;
    private boolean hasLeft;

    /**
     * @param modifierHeld asks the window system whether the primary modifier is held, for the times when no event
     *                     tells
     * @param clicked      run when a click in the program has picked something. The window manager knows nothing of
     *                     picking, and may have brought the clicked window to the front
     */
    public Picker(Selection selection, Highlighter highlighter, BooleanSupplier modifierHeld, Runnable clicked) {
        this.selection = selection;
        this.highlighter = highlighter;
        this.modifierHeld = modifierHeld;
        this.clicked = clicked;
        untilHeld.setRepeats(false);
    }

    /** Begins to look at the program's events: the inspector's window is about to be shown. */
    public void start() {
        if (!started) {
            started = true;
            Hooks.add(filter);
        }
    }

    /** Leaves the program alone: the window is closed. */
    public void stop() {
        if (started) {
            disarm();
            endHovering();
            started = false;
            Hooks.remove(filter);
        }
    }

    /** Has the next click in the program pick, without the modifier. Escape cancels that. */
    public void arm() {
        if (started && !armed) {
            armed = true;
            looks.start();
            followPointer();
            tell();
        }
    }

    public void disarm() {
        if (armed) {
            armed = false;
            leave();
            tell();
        }
    }

    public boolean isArmed() {
        return armed;
    }

    /** Has a task run whenever {@link #isArmed} changes, for as long as this object lives. */
    public void onChange(Runnable listener) {
        listeners.add(listener);
    }

    private void tell() {
        for (Runnable listener : listeners) {
            listener.run();
        }
    }

    private boolean isPicking() {
        return armed || hovering;
    }

    private boolean keep(Component source, AWTEvent event) {
        if (!EventQueue.isDispatchThread()) {
            return false;
        }
        if (event instanceof MouseEvent) {
            MouseEvent mouseEvent = (MouseEvent) event;
            if (Ours.isOurs(source) && !(source instanceof Mark)) {
                popups.inOurs(source, mouseEvent);
                return false;
            }
            boolean beside = source instanceof Mark && !isActive(mouseEvent) && !mouse.isOurDrag();
            return !beside && !mouse.isSettling() && keepMouse(source, mouseEvent);
        }
        if (event instanceof KeyEvent) {
            return keys.keep((KeyEvent) event, Ours.isOurs(source),
                    () -> keyPressed(source, (KeyEvent) event), () -> keyReleased((KeyEvent) event));
        }
        return popups.keep(event);
    }

    // The mouse.

    private boolean keepMouse(Component source, MouseEvent event) {
        hasLeft = event.getID() == MouseEvent.MOUSE_EXITED;
        if (!hasLeft) {
            lastPointer = event.getLocationOnScreen();
        }
        switch (event.getID()) {
            case MouseEvent.MOUSE_PRESSED:
                boolean ours = mouse.press(event, isActive(event));
                if (ours) {
                    follow(source, event);
                    choose();
                    clicked.run();
                } else {
                    leaveHover();
                }
                return ours;
            case MouseEvent.MOUSE_RELEASED:
                return mouse.release(event);
            case MouseEvent.MOUSE_CLICKED:
                return mouse.click(event);
            default:
                if (mouse.isProgramsDrag()) {
                    return false;
                }
                boolean active = isActive(event);
                if (active) {
                    move(source, event);
                } else if (hovering) {
                    endHovering();
                }
                return mouse.move(source, event, active || mouse.isOurDrag());
        }
    }

    private boolean isActive(MouseEvent event) {
        return armed || primary.isDown(event);
    }

    private void move(Component source, MouseEvent event) {
        if (event.getID() == MouseEvent.MOUSE_WHEEL) {
            int rotation = ((MouseWheelEvent) event).getWheelRotation();
            if (walk == null) {
                follow(source, event);
            }
            if (event.isShiftDown()) {
                step(w -> w.under(rotation));
            } else if (rotation != 0) {
                step(rotation < 0 ? Walk::toParent : Walk::toChild);
            }
        } else if (event.getID() != MouseEvent.MOUSE_EXITED) {
            follow(source, event);
        }
    }

    private void follow(Component source, MouseEvent event) {
        Window window = Places.windowOf(source);
        Point place = Places.inWindow(source, event.getPoint());
        if (window instanceof Mark) { // the pointer is on the box or its label: what lies below them counts
            window = highlighter.target() == null ? null : Places.windowOf(highlighter.target().component());
            Point at = Places.onScreen(Places.windowOf(source));
            place.translate(at.x, at.y);
            if (window != null) {
                Point origin = Places.onScreen(window);
                place.translate(-origin.x, -origin.y);
            }
        }
        follow(window, place);
    }

    private void follow(Window window, Point place) {
        untilHeld.stop();
        if (!armed) {
            hovering = true;
        }
        looks.start();
        if (window == null || place == null) {
            leave();
            return;
        }
        Walk next = new Walk(window, place);
        if (!next.beginsLike(walk)) {
            walk = next;
        }
        highlighter.show(walk.target());
    }

    private interface Step {
        void on(Walk walk);
    }

    private void step(Step step) {
        if (walk != null) {
            step.on(walk);
            highlighter.show(walk.target());
        }
    }

    private void choose() {
        if (walk != null && walk.target() != null) {
            selection.select(walk.target());
        }
        disarm();
    }

    // Keys.

    /** Whether a press is ours. */
    private boolean keyPressed(Component source, KeyEvent event) {
        boolean ours = Ours.isOurs(source);
        int key = event.getKeyCode();
        if (primary.is(key)) {
            if (!hovering && !untilHeld.isRunning()) {
                untilHeld.start();
            }
            return !ours;
        }
        untilHeld.stop();
        if (armed && key == KeyEvent.VK_ESCAPE) {
            disarm();
            return true;
        }
        if (walk != null) {
            switch (key) {
                case KeyEvent.VK_UP:
                    step(Walk::toParent);
                    return true;
                case KeyEvent.VK_DOWN:
                    step(Walk::toChild);
                    return true;
                case KeyEvent.VK_LEFT:
                    step(w -> w.under(-1));
                    return true;
                case KeyEvent.VK_RIGHT:
                    step(w -> w.under(1));
                    return true;
                case KeyEvent.VK_ENTER:
                    choose();
                    return true;
                case KeyEvent.VK_SHIFT:
                    return false;
                default:
                    break;
            }
        }
        leaveHover(); // the key is the program's, probably a shortcut
        return false;
    }

    private void keyReleased(KeyEvent event) {
        if (primary.is(event.getKeyCode())) {
            untilHeld.stop();
            endHovering();
        }
    }

    /** The modifier has been held for a while, and the pointer has not moved. */
    private void held() {
        if (modifierHeld.getAsBoolean()) {
            followPointer();
        }
    }

    /** Highlights what the pointer rests on, for no event comes until it moves. */
    private void followPointer() {
        PointerInfo pointer = MouseInfo.getPointerInfo();
        Window window = pointer == null ? null : WindowAt.program(pointer.getLocation());
        if (window != null) {
            followOnScreen(window, pointer.getLocation());
        }
    }

    private void followOnScreen(Window window, Point at) {
        Point origin = Places.onScreen(window);
        follow(window, new Point(at.x - origin.x, at.y - origin.y));
    }

    // What no event tells.

    private void look() {
        if (hovering && !modifierHeld.getAsBoolean()) {
            endHovering();
            return;
        }
        PointerInfo pointer = MouseInfo.getPointerInfo();
        Point at = pointer == null ? null : pointer.getLocation();
        if (at == null || !hasLeft && isNear(at, lastPointer)) {
            return;
        }
        lastPointer = at;
        Window window = WindowAt.program(at);
        if (window != null && (Modality.blocker(window) != null || hasLeft && isUnderPointer(window))) {
            followOnScreen(window, at);
        } else if (hasLeft || window == null) {
            leave();
        }
        hasLeft = false;
    }

    /**
     * When a window of ours appears or disappears at the pointer, an event says that the pointer has left the program's
     * window although it is still there.
     */
    private static boolean isUnderPointer(Window window) {
        return window.getMousePosition(true) != null;
    }

    /** An event and the pointer itself may differ by a pixel where user space is scaled. */
    private static boolean isNear(Point one, Point other) {
        return other != null && Math.abs(one.x - other.x) <= 1 && Math.abs(one.y - other.y) <= 1;
    }

    /** Hides the highlight until the pointer is over the program again. */
    private void leave() {
        walk = null;
        highlighter.hide();
        if (!armed && !hovering) {
            looks.stop();
            mouse.settle();
        }
    }

    private void leaveHover() {
        if (hovering) {
            leave();
        }
    }

    private void endHovering() {
        if (hovering) {
            hovering = false;
            leave();
        }
    }
}
