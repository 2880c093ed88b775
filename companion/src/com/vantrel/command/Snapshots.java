package com.vantrel.command;

import java.util.HashSet;
import java.util.List;
import java.util.Set;

import com.vantrel.model.Reading;
import com.vantrel.model.Row;
import com.vantrel.model.Target;

/**
 * All properties of all components, a line each: path, property and value, with tabs between them. The paths do not
 * change with the texts.
 */
final class Snapshots {
    /** What the file begins with; another number when lines mean something else. */
    private static final String FIRST_LINE = "vantrel snapshot 1\n";
    /** How long the event thread works at it before the program goes on. */
    private static final long NANOS_AT_ONCE = 40_000_000;

    private final StringBuilder text = new StringBuilder(FIRST_LINE);
    private final List<Place> places;
    private int next;
    private Reading reading;

    private Snapshots(List<Place> places) {
        this.places = places;
    }

    static Answer answer() throws Refusal {
        if (!About.hasWindows()) {
            return Answer.of(FIRST_LINE);
        }
        Snapshots snapshot = EventThread.ask(() -> new Snapshots(new Paths().all()));
        while (EventThread.ask(snapshot::goOn)) {
        }
        return Answer.of(snapshot.text.toString());
    }

    /** Returns whether there is more to do. */
    private boolean goOn() {
        long end = System.nanoTime() + NANOS_AT_ONCE;
        while (next < places.size() && System.nanoTime() < end) {
            Place place = places.get(next);
            if (reading == null) {
                reading = new Reading(Target.of(place.component()));
            }
            if (!reading.refresh() || reading.isComplete()) {
                add(place);
                reading = null;
                next++;
            }
        }
        return next < places.size();
    }

    private void add(Place place) {
        String path = place.lastingPath();
        text.append(path).append("\t\t").append(place.component().getClass().getName()).append('\n');
        Set<String> names = new HashSet<>();
        for (Row row : reading.rows()) {
            if (row.kind() == Row.Kind.ASK || row.kind() == Row.Kind.WAITING) {
                continue;
            }
            String name = names.add(row.name()) ? row.name() : row.group() + " " + row.name();
            text.append(path).append('\t').append(Escapes.line(name)).append('\t');
            text.append(Escapes.line(row.value())).append('\n');
        }
    }
}
