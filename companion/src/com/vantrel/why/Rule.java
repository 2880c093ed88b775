package com.vantrel.why;

import java.awt.Component;

/**
 * Says one thing of a component, if it is so: a function of the component, of what is around it, and of what was
 * recorded of them. Runs nothing of the program unguarded, looks at no component that neither is around this one nor
 * lies beside those, and holds nothing. For the event thread.
 */
interface Rule {
    /** @return null if it is not so */
    Sentence of(Component component) throws Throwable;

    /** Of several rules the first one that has something to say. */
    static Rule first(Rule... rules) {
        return component -> {
            for (Rule rule : rules) {
                Sentence sentence = rule.of(component);
                if (sentence != null) {
                    return sentence;
                }
            }
            return null;
        };
    }
}
