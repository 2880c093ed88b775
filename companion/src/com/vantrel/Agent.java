package com.vantrel;

import java.awt.Component;
import java.awt.Graphics2D;

/**
 * What the inspector asks of the agent. When the VM ends, the agent and its native methods are gone before the last
 * threads are. What is asked of it then is answered with nothing or false, and nothing is printed, for nobody could see
 * the result any more.
 */
final class Agent {
    private Agent() {
    }

    /** Paints the highlight over a component. */
    static void highlight(Component component, Graphics2D graphics) {
        try {
            Vantrel.getInstance().highlight(component, graphics);
        } catch (UnsatisfiedLinkError e) {
            // The agent is gone.
        }
    }

    /** Whether the key that asks for highlights is held down. */
    static boolean canHighlight() {
        try {
            return Vantrel.canHighlight();
        } catch (UnsatisfiedLinkError e) {
            return false; // the agent is gone
        }
    }

    /** Runs a task on the event thread of a component's application context. Returns before it has run. */
    static void run(Component component, Runnable task) {
        try {
            SwingContext.safeRun1(component, task);
        } catch (UnsatisfiedLinkError e) {
            // The agent is gone.
        }
    }
}
