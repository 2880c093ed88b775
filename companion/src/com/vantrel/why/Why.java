package com.vantrel.why;

import java.awt.Component;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

import com.vantrel.model.Values;

/**
 * Why a component cannot be seen, does not react, or has the size and place that it has: in sentences that are true and
 * can be checked. This is the list of the rules that make them, for whoever shows sentences, in a window or as text.
 * For the event thread.
 */
public final class Why {
    /** Why it is not there to be seen. What is not there needs no other reason for anything. */
    private static final List<Rule> HIDDEN = Arrays.asList(
            Rule.first(Renderers::of, Closed::of, Detached::of, Hidden::of, Minimised::of), Hidden::itself);

    /** Why there is nothing of it to be seen, and with that why it has this size. */
    private static final List<Rule> EMPTY = Arrays.asList(NoSize::of);

    /** The rest: what keeps it out of sight or from reacting, and what decides its size and place. */
    private static final List<Rule> OTHERS =
            Arrays.asList(Modal::of, Rule.first(OffScreen::of, CutOff::of, Covered::of, Intercepted::of), Layers::of,
                    Disabled::window, Disabled::of, NobodyListens::of, NotEditable::of, NotFocusable::of,
                    Overwritten::before, Rule.first(Overwritten::after, Managed::of), Weights::of, BoxLayouts::aside);

    private Why() {
    }

    /** The sentences for a component, what helps most first; none if there is nothing to be said. */
    public static List<Sentence> of(Component component) {
        for (List<Rule> rules : Arrays.asList(HIDDEN, EMPTY)) {
            List<Sentence> sentences = ask(rules, component);
            if (!sentences.isEmpty()) {
                return sentences;
            }
        }
        return ask(OTHERS, component);
    }

    private static List<Sentence> ask(List<Rule> rules, Component component) {
        List<Sentence> sentences = new ArrayList<>();
        for (Rule rule : rules) {
            Sentence sentence;
            try {
                sentence = rule.of(component);
            } catch (Throwable e) {
                // The program may have overridden what is asked, and changes while it is being looked at.
                sentence = Sentence.of("One reason could not be looked for: ", Values.error(e), ".");
            }
            if (sentence != null) {
                sentences.add(sentence);
            }
        }
        return sentences;
    }
}
