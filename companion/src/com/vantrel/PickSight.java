package com.vantrel;

import java.awt.Component;
import java.awt.Window;

import com.vantrel.model.Selection;
import com.vantrel.model.Target;
import com.vantrel.pick.Highlighter;
import com.vantrel.pick.Picker;
import com.vantrel.view.Sight;

/** Connects the parts of the inspector's window with the picker and the highlighter, and these with the agent. */
final class PickSight implements Sight {
    private final Highlighter highlighter;
    private final Picker picker;
    private final Cover cover;

    PickSight(Window owner, Selection selection) {
        highlighter = new Highlighter(owner, Agent::highlight);
        cover = new Cover(owner);
        picker = new Picker(selection, highlighter, Agent::canHighlight, cover::takeOff);
    }

    void start() {
        picker.start();
    }

    void stop() {
        picker.stop();
        cover.stop();
        highlighter.dispose();
    }

    @Override
    public boolean canPick() {
        return true;
    }

    @Override
    public boolean isPicking() {
        return picker.isArmed();
    }

    @Override
    public void pick(boolean on) {
        if (on) {
            picker.arm();
        } else {
            picker.disarm();
        }
    }

    @Override
    public void outline(Component component) {
        highlighter.show(component == null ? null : Target.of(component));
    }

    @Override
    public void onChange(Runnable listener) {
        picker.onChange(listener);
    }
}
