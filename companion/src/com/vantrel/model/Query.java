package com.vantrel.model;

import java.awt.Component;
import java.util.ArrayList;
import java.util.List;
import java.util.Locale;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

/**
 * What somebody typed to search for: words that must all be found, each in the class, name, text, tooltip or
 * accessible name of a component (in double quotes if it has spaces), and conditions on properties such as
 * {@code enabled=false}, {@code font.size>11} or {@code text=Am*}.
 */
public final class Query {
    private static final Pattern PART =
            Pattern.compile("([A-Za-z][\\w.]*)(!=|=|<|>)(\"[^\"]*\"?|\\S*)|\"[^\"]*\"?|\\S+");

    private final List<String> words = new ArrayList<>();
    private final List<PropertyTest> tests = new ArrayList<>();

    private Query() {
    }

    /** @param calls what properties are asked through */
    static Query parse(String typed, Calls calls) {
        Query query = new Query();
        Matcher part = PART.matcher(typed);
        while (part.find()) {
            if (part.group(1) != null) {
                query.tests.add(new PropertyTest(part.group(1), part.group(2), unquoted(part.group(3)), calls));
            } else {
                query.words.add(unquoted(part.group()).toLowerCase(Locale.ROOT));
            }
        }
        query.words.removeIf(String::isEmpty);
        return query;
    }

    private static String unquoted(String text) {
        return text.replace("\"", "");
    }

    boolean isEmpty() {
        return words.isEmpty() && tests.isEmpty();
    }

    /** The words, in lower case: whoever shows what was found may make them stand out. */
    public List<String> words() {
        return words;
    }

    boolean finds(TreeNode node) {
        Component component = node.component();
        if (component == null) {
            return false;
        }
        return findsWords(node.facts(), component) && findsProperties(component);
    }

    private boolean findsWords(ClassFacts facts, Component component) {
        String[] texts = null;
        for (String word : words) {
            if (facts.isCalled(word)) {
                continue;
            }
            if (texts == null) {
                texts = new String[] {Facts.name(component), Facts.text(component), Facts.toolTip(component),
                        Facts.accessibleName(component)};
            }
            boolean found = false;
            for (String text : texts) {
                found |= text != null && text.toLowerCase(Locale.ROOT).contains(word);
            }
            if (!found) {
                return false;
            }
        }
        return true;
    }

    private boolean findsProperties(Component component) {
        for (PropertyTest test : tests) {
            if (!test.holds(component)) {
                return false;
            }
        }
        return true;
    }
}
