package com.vantrel.view;

import java.awt.Component;

/** What the inspector's window needs done in the program's windows: showing where a component is, and picking one. */
public interface Sight {
    boolean canPick();

    /** Whether the next click in the program selects a component. */
    boolean isPicking();

    /** Has the next click in the program select a component, or takes that back. */
    void pick(boolean on);

    /** Draws a box around a component of the program, until another one is outlined; null for none. */
    void outline(Component component);

    /** Has a task run whenever {@link #isPicking} changes. */
    void onChange(Runnable listener);
}
