package com.vantrel.command;

import java.awt.Component;
import java.awt.Rectangle;

import com.vantrel.model.AddedAt;
import com.vantrel.model.Facts;
import com.vantrel.model.Reading;
import com.vantrel.model.Row;
import com.vantrel.model.SetBy;
import com.vantrel.model.Showing;
import com.vantrel.model.Target;
import com.vantrel.record.SetBys;
import com.vantrel.why.Sentence;
import com.vantrel.why.Why;

/** All there is to say of one component, as text. */
final class Shown {
    private Shown() {
    }

    /** @param path where the component is */
    static Answer answer(String path) throws Refusal {
        Component component = Selected.component(path);
        Reading reading = EventThread.ask(() -> new Reading(Target.of(component)));
        read(reading);
        return Answer.of(EventThread.ask(() -> text(component, reading)));
    }

    /** Reads all properties, piece by piece, so that the program can go on between them. */
    static void read(Reading reading) throws Refusal {
        while (EventThread.ask(() -> reading.refresh() && !reading.isComplete())) {
        }
    }

    private static String text(Component component, Reading reading) {
        StringBuilder text = new StringBuilder();
        Paths paths = new Paths();
        Place place = paths.of(component);
        Rectangle bounds = Facts.bounds(component);
        Showing showing = Showing.of(component);
        line(text, "path", place == null ? "in no window any more" : paths.shortPath(place));
        line(text, "class", component.getClass().getName());
        line(text, "name", Facts.name(component));
        line(text, "text", Facts.text(component));
        line(text, "bounds", bounds.x + ", " + bounds.y + ", " + bounds.width + " x " + bounds.height);
        line(text, "showing", showing == Showing.YES ? "yes" : "no, " + showing.words());
        AddedAt added = AddedAt.of(component);
        line(text, "added", added.line());
        if (!added.stack().isEmpty()) {
            text.append(added.stack().text()).append('\n');
        }
        for (Sentence sentence : Why.of(component)) {
            line(text, "why", sentence.toString());
        }
        String group = "";
        for (Row row : reading.rows()) {
            if (!row.group().equals(group)) {
                group = row.group();
                text.append('\n').append(group).append('\n');
            }
            SetBy setBy = SetBys.of(component, row.name());
            line(text, "  " + row.name(), value(row));
            if (setBy != null) {
                text.append("    ").append(setBy.sentence()).append('\n');
            }
        }
        return text.toString();
    }

    private static String value(Row row) {
        String value = row.kind() == Row.Kind.ASK ? "not read" : row.value();
        return value + (row.note().isEmpty() ? "" : "  (" + row.note() + ")");
    }

    private static void line(StringBuilder text, String name, String value) {
        if (value != null) {
            text.append(name).append(": ").append(Escapes.line(value)).append('\n');
        }
    }
}
