package com.vantrel.view;

import javax.swing.event.PopupMenuEvent;
import javax.swing.event.PopupMenuListener;

/** Does something just before a menu opens. */
final class OnPopup implements PopupMenuListener {
    private final Runnable task;

    OnPopup(Runnable task) {
        this.task = task;
    }

    @Override
    public void popupMenuWillBecomeVisible(PopupMenuEvent event) {
        task.run();
    }

    @Override
    public void popupMenuWillBecomeInvisible(PopupMenuEvent event) {
        // Nothing to do.
    }

    @Override
    public void popupMenuCanceled(PopupMenuEvent event) {
        // Nothing to do.
    }
}
