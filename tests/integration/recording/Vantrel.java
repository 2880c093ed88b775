package com.vantrel;

import java.awt.Component;
import java.awt.Graphics2D;

/**
 * Stands in for the inspector, in a companion that is otherwise the real one: says on which thread it is called, and
 * then does what the system property "then" asks for.
 */
public final class Vantrel {
    private static final Vantrel INSTANCE = new Vantrel();

    private static int calls;

    private Vantrel() {
    }

    public static Vantrel getInstance() {
        return INSTANCE;
    }

    public static void showVantrel(Component component) throws InterruptedException {
        Thread thread = Thread.currentThread();
        String then = System.getProperty("then", "");
        System.out.println("call " + ++calls + ": " + component + " on " + thread.getName() + " " + thread.getId()
                + (thread.isDaemon() ? ", a daemon" : ""));
        if (then.equals("throw")) {
            throw new IllegalStateException("fault " + calls);
        }
        if (then.equals("sleep")) {
            Thread.sleep(Long.MAX_VALUE);
        }
        while (then.equals("spin")) {
            Thread.yield();
        }
    }

    public void selectOnComponentTree(Component component) {
    }

    public static Component getSelectedComponent() {
        return null;
    }

    public native void highlight(Component component, Graphics2D graphics);

    public static native void beep();

    public static native int getOSVersion();

    public static native boolean canHighlight();
}
