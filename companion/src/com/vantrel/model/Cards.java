package com.vantrel.model;

import java.awt.CardLayout;
import java.awt.Component;
import java.lang.reflect.Field;

/** The names of the cards of a CardLayout, which it keeps in a private field. For the event thread. */
public final class Cards {
    private static final Field ALL = Members.field(CardLayout.class, "vector");

    private Cards() {
    }

    /** The name of a component's card; null where it has none, or the toolkit's module is closed to us. */
    public static String name(CardLayout layout, Component child) throws IllegalAccessException {
        if (ALL == null) {
            return null;
        }
        for (Object card : (Iterable<?>) ALL.get(layout)) {
            Field component = Members.field(card.getClass(), "comp");
            Field name = Members.field(card.getClass(), "name");
            if (component != null && name != null && component.get(card) == child) {
                return (String) name.get(card);
            }
        }
        return null;
    }
}
