package com.vantrel.command;

import java.awt.Component;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;

import com.vantrel.model.Facts;
import com.vantrel.model.Kind;
import com.vantrel.model.TreeNode;

/**
 * A component in the tree as the inspector shows it, and the step of a path that leads to it from what it is in. For
 * the event thread, and for as long as one question takes.
 */
final class Place {
    /** A longer text makes no readable step. */
    private static final int LONGEST_TEXT = 40;

    private final TreeNode node;
    private final Component component;
    private final Place parent;
    private final List<Place> children = new ArrayList<>();
    private final String kind;
    private final String name;
    private final String text;
    private int number;
    private String step;
    private boolean isNameAlone;

    /** @param parent null for a window that nothing owns */
    Place(TreeNode node, Component component, Place parent) {
        this.node = node;
        this.component = component;
        this.parent = parent;
        Kind its = node.facts().kind();
        kind = its == Kind.OTHER ? node.facts().name() : its.name().toLowerCase(Locale.ROOT).replace("_", "");
        name = Facts.name(component);
        text = Facts.text(component);
    }

    /** Gives components that are in the same one the steps that tell them from each other. */
    static void number(List<Place> siblings) {
        Map<String, Integer> counts = new HashMap<>();
        for (Place place : siblings) {
            place.number = counts.getOrDefault(place.kind, 0);
            for (String step : place.namedSteps()) {
                counts.merge(step, 1, Integer::sum);
            }
            counts.merge(place.kind, 1, Integer::sum);
        }
        for (Place place : siblings) {
            place.step = place.numbered();
            place.isNameAlone = counts.getOrDefault(place.namedStep(), 0) == 1;
            for (String step : place.namedSteps()) {
                if (counts.get(step) == 1) {
                    place.step = step;
                    break;
                }
            }
        }
    }

    /** The forms of a step by name and by text, as far as there are such. */
    private List<String> namedSteps() {
        List<String> steps = new ArrayList<>();
        if (namedStep() != null) {
            steps.add(namedStep());
        }
        if (text != null && text.length() <= LONGEST_TEXT) {
            steps.add(kind + "[text=" + Step.escaped(text) + "]");
        }
        return steps;
    }

    private String namedStep() {
        return name == null || name.isEmpty() ? null : kind + "[name=" + Step.escaped(name) + "]";
    }

    /** All forms of a step that lead here. */
    List<String> steps() {
        List<String> steps = namedSteps();
        steps.add(numbered());
        return steps;
    }

    Component component() {
        return component;
    }

    TreeNode node() {
        return node;
    }

    Place parent() {
        return parent;
    }

    List<Place> children() {
        return children;
    }

    String step() {
        return step;
    }

    private String numbered() {
        return kind + number;
    }

    boolean isKind(String word) {
        return word.equals(kind) || word.equals(node.facts().name()) || word.equals(numbered());
    }

    boolean hasName(String wanted) {
        return name != null && name.equals(wanted);
    }

    boolean hasText(String wanted) {
        return text != null && text.equals(wanted);
    }

    /** The whole path, by the steps' readable form. */
    String path() {
        return parent == null ? step : parent.path() + "/" + step;
    }

    /** The whole path, by names and numbers: it stays the same when texts change. */
    String lastingPath() {
        String own = isNameAlone ? namedStep() : numbered();
        return parent == null ? own : parent.lastingPath() + "/" + own;
    }
}
