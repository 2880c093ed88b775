package com.vantrel.command;

import java.awt.Component;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.IdentityHashMap;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Map;
import java.util.Set;

import com.vantrel.model.ComponentTree;
import com.vantrel.model.ProgramWindows;
import com.vantrel.model.TreeNode;

/**
 * The components of the program as they are at this moment, without the machinery, and the paths that lead to them. For
 * the event thread, and for as long as one question takes.
 */
final class Paths {
    private static final String ANYTHING = "\u2026";
    private static final int MOST_NAMED = 3;

    private final ComponentTree tree = new ComponentTree(ProgramWindows::withoutOwner);
    private final List<Place> windows = new ArrayList<>();
    private final List<Place> all = new ArrayList<>();
    private final Map<Component, Place> places = new IdentityHashMap<>();
    /** How many components a step would lead to if it came right after a window's and dots. */
    private final Map<Place, Map<String, Integer>> fits = new IdentityHashMap<>();

    Paths() {
        tree.refresh();
        tree.setAllExpanded(true);
        List<Place> open = new ArrayList<>();
        for (TreeNode node : tree.rows()) {
            Component component = node.component();
            open.subList(node.level(), open.size()).clear();
            Place parent = open.isEmpty() ? null : open.get(open.size() - 1);
            Place place = new Place(node, component, parent);
            (parent == null ? windows : parent.children()).add(place);
            all.add(place);
            places.put(component, place);
            open.add(place);
        }
        Place.number(windows);
        for (Place place : all) {
            Place.number(place.children());
        }
        for (Place place : all) {
            Map<String, Integer> counts = fits.computeIfAbsent(window(place), key -> new HashMap<>());
            for (String step : place.steps()) {
                counts.merge(step, 1, Integer::sum);
            }
        }
    }

    /** The tree that this was made of, everything in it expanded. */
    ComponentTree tree() {
        return tree;
    }

    List<Place> windows() {
        return windows;
    }

    List<Place> all() {
        return all;
    }

    /** Null for machinery, and for what is in no window. */
    Place of(Component component) {
        return places.get(component);
    }

    private static Place window(Place place) {
        Place at = place;
        while (at.parent() != null) {
            at = at.parent();
        }
        return at;
    }

    /** The shortest path of the form window, dots, steps that leads to a place and to no other. */
    String shortPath(Place place) {
        Place window = window(place);
        Map<String, Integer> counts = fits.get(window);
        String tail = place.step();
        for (Place at = place; at.parent() != null && at.parent() != window; at = at.parent()) {
            if (counts.get(at.step()) == 1) {
                return window.step() + "/" + ANYTHING + "/" + tail;
            }
            tail = at.parent().step() + "/" + tail;
        }
        return place.path();
    }

    /**
     * The component that a path leads to. A path that does not begin with a window may begin anywhere.
     *
     * @throws Refusal if there is none, which says the nearest there is, or more than one
     */
    Place find(String path) throws Refusal {
        List<Step> steps = Step.of(path);
        if (steps.isEmpty()) {
            throw new Refusal(Answer.NOTHING, "the path is empty; it may be frame0 or button[text=OK]");
        }
        Set<Place> found = new LinkedHashSet<>();
        Set<Place> from = new LinkedHashSet<>(windows);
        Step missed = null;
        for (int i = 0; i < steps.size(); i++) {
            Step step = steps.get(i);
            if (step.isAnything()) {
                from = i == 0 ? new LinkedHashSet<>(all) : below(found);
                continue;
            }
            found = led(step, from);
            if (found.isEmpty() && i == 0) {
                from = new LinkedHashSet<>(all);
                found = led(step, from);
            }
            if (found.isEmpty()) {
                missed = step;
                break;
            }
            from = new LinkedHashSet<>();
            for (Place place : found) {
                from.addAll(place.children());
            }
        }
        if (missed != null) {
            throw new Refusal(Answer.NOTHING, "there is no " + missed + " on the path " + path + nearest(missed, from));
        }
        if (found.size() != 1) {
            throw new Refusal(Answer.NOTHING, "the path " + path + " leads to " + several(found));
        }
        return found.iterator().next();
    }

    private static Set<Place> led(Step step, Set<Place> from) {
        Set<Place> found = new LinkedHashSet<>();
        for (Place place : from) {
            if (step.leadsTo(place)) {
                found.add(place);
            }
        }
        return found;
    }

    private static Set<Place> below(Set<Place> places) {
        Set<Place> below = new LinkedHashSet<>();
        List<Place> open = new ArrayList<>(places);
        while (!open.isEmpty()) {
            for (Place child : open.remove(open.size() - 1).children()) {
                if (below.add(child)) {
                    open.add(child);
                }
            }
        }
        return below;
    }

    private String several(Set<Place> found) {
        List<String> names = new ArrayList<>();
        for (Place place : found) {
            if (names.size() < MOST_NAMED) {
                names.add(shortPath(place));
            }
        }
        String more = found.size() > MOST_NAMED ? ", \u2026" : "";
        return found.isEmpty() ? "nothing" : found.size() + " components: " + String.join(", ", names) + more;
    }

    private String nearest(Step missed, Set<Place> among) {
        Place best = null;
        int least = Integer.MAX_VALUE;
        for (Place place : among) {
            for (String step : place.steps()) {
                int distance = Distance.between(missed.toString(), step, least);
                if (distance < least) {
                    least = distance;
                    best = place;
                }
            }
        }
        return best == null ? "; there is nothing in that place" : "; the nearest is " + shortPath(best);
    }
}
