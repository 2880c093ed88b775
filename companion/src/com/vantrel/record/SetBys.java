package com.vantrel.record;

import java.awt.Component;

import com.vantrel.model.CallSite;
import com.vantrel.model.Row;
import com.vantrel.model.SetBy;

/** Recorded changes in the inspector's words. */
public final class SetBys {
    private SetBys() {
    }

    /**
     * Who has set a property of a component last.
     *
     * @param property its name as the inspector lists it
     * @return null if no change of it was recorded
     */
    public static SetBy of(Component component, String property) {
        Change change = ChangeRecorder.last(component, property);
        if (change == null && !property.isEmpty()) {
            // Swing reports some properties under names that begin with a capital.
            change = ChangeRecorder.last(component, Character.toUpperCase(property.charAt(0)) + property.substring(1));
        }
        return change == null ? null : of(change);
    }

    private static SetBy of(Change change) {
        return SetBy.of(change.stack(), change.isOurs(), change.thread(), change.millis(), change.times());
    }

    /** A line for one change: when, who, on which thread; in the group of its property. */
    public static Row row(Change change) {
        StackTraceElement where = change.isOurs() ? null : change.stack().where();
        String who = where == null ? of(change).place() : CallSite.summary(where);
        String times = change.times() > 1 ? " \u00d7 " + change.times() : "";
        return Row.of(change.what(), SetBy.time(change.millis()), who + times)
                .note(change.thread())
                .programs(where != null)
                .explanation(of(change).sentence() + " Enter opens the line.");
    }
}
