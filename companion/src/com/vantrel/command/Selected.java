package com.vantrel.command;

import java.awt.Component;
import java.awt.GraphicsEnvironment;

import com.vantrel.Vantrel;
import com.vantrel.VantrelFrame;
import com.vantrel.model.Description;

/** Components that are meant from outside: by a path, or by being selected in the inspector. */
final class Selected {
    private Selected() {
    }

    /**
     * The component that a path leads to.
     *
     * @throws Refusal also if the program has no windows
     */
    static Component component(String path) throws Refusal {
        if (!About.hasWindows()) {
            throw new Refusal(Answer.NOTHING, "the program has no windows");
        }
        return EventThread.ask(() -> new Paths().find(path).component());
    }

    /** Selects a component in the inspector, which is shown for that. Answers what is selected. */
    static Answer select(String path) throws Refusal {
        Component component = component(path);
        if (GraphicsEnvironment.isHeadless()) {
            throw new Refusal(Answer.NONE, "the program has no display for the inspector (java.awt.headless)");
        }
        return Answer.of(EventThread.ask(() -> {
            VantrelFrame.getInstance().setVisible(true);
            Vantrel.getInstance().selectOnComponentTree(component);
            return words(component);
        }));
    }

    /** What is selected in the inspector. */
    static Answer answer() throws Refusal {
        Component component = Vantrel.getSelectedComponent();
        if (component == null) {
            throw new Refusal(Answer.NOTHING, "nothing is selected, or the inspector is not shown");
        }
        return Answer.of(EventThread.ask(() -> words(component)));
    }

    private static String words(Component component) {
        Paths paths = new Paths();
        Place place = paths.of(component);
        return place == null ? Escapes.line(Description.pathText(component)) + "  (no path leads to it)\n"
                             : paths.shortPath(place) + "  " + Trees.look(place) + "\n";
    }
}
