package com.vantrel.model;

import java.awt.Color;
import java.awt.Component;
import java.util.regex.Pattern;

/** A condition on a property of a component, or on a property of that property's value, as in {@code font.size>11}. */
final class PropertyTest {
    private final String[] path;
    private final String operator;
    private final String wanted;
    /** Null where the wanted text has no wildcard. */
    private final Pattern pattern;
    private final Double number;
    private final Color color;
    private final Calls calls;

    PropertyTest(String path, String operator, String wanted, Calls calls) {
        this.path = path.split("\\.");
        this.operator = operator;
        this.wanted = wanted;
        this.calls = calls;
        pattern = wanted.indexOf('*') < 0 ? null
                                          : Pattern.compile(Pattern.quote(wanted).replace("*", "\\E.*\\Q"),
                                                  Pattern.CASE_INSENSITIVE | Pattern.UNICODE_CASE | Pattern.DOTALL);
        number = number(wanted);
        color = color(wanted);
    }

    private static Double number(String text) {
        try {
            return Double.valueOf(text);
        } catch (NumberFormatException e) {
            return null;
        }
    }

    private static Color color(String text) {
        try {
            return Formats.color(text);
        } catch (IllegalArgumentException e) {
            return null;
        }
    }

    boolean holds(Component component) {
        Object value = component;
        for (String property : path) {
            value = value == null ? Calls.NO_ANSWER : calls.property(value, property);
            if (value == Calls.NO_ANSWER) {
                return false;
            }
        }
        switch (operator) {
            case "<":
                return value instanceof Number && number != null && ((Number) value).doubleValue() < number;
            case ">":
                return value instanceof Number && number != null && ((Number) value).doubleValue() > number;
            case "!=":
                return !wanted.isEmpty() && !is(value);
            default:
                return wanted.isEmpty() || is(value); // while somebody still types, all that have the property
        }
    }

    private boolean is(Object value) {
        if (value instanceof Number && number != null) {
            return ((Number) value).doubleValue() == number;
        }
        if (value instanceof Color && color != null) {
            return color.getRGB() == ((Color) value).getRGB();
        }
        String text = Values.text(value);
        return (pattern == null ? text.equalsIgnoreCase(wanted) : pattern.matcher(text).matches())
                || value != null && ClassFacts.of(value.getClass()).name().equalsIgnoreCase(wanted);
    }
}
