package com.vantrel.model;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.Container;
import java.awt.GridBagConstraints;
import java.awt.GridBagLayout;
import java.awt.LayoutManager;
import java.util.Arrays;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

import javax.swing.JLayeredPane;

/**
 * A component's layout constraints, for the layout managers that can be asked for them: reads them, writes them as
 * text, and sets them. For the event thread.
 */
public final class Constraints {
    private static final List<String> REGIONS = Arrays.asList(BorderLayout.CENTER, BorderLayout.NORTH,
            BorderLayout.SOUTH, BorderLayout.WEST, BorderLayout.EAST, BorderLayout.PAGE_START, BorderLayout.PAGE_END,
            BorderLayout.LINE_START, BorderLayout.LINE_END);

    private static final Format REGION = Format.chosen(REGIONS,
            Arrays.asList(
                    "CENTER", "NORTH", "SOUTH", "WEST", "EAST", "PAGE_START", "PAGE_END", "LINE_START", "LINE_END"));

    private static final Format GRID_BAG = Format.typed("constraints: type gridx=0 gridy=0, and what differs from the "
                    + "default of gridwidth, gridheight, weightx, weighty, anchor, fill, insets, ipadx, ipady",
            value -> write((GridBagConstraints) value), (text, old) -> gridBag(text));

    private static final Format LAYER =
            Format.typed("a layer: type a whole number", String::valueOf, (text, old) -> Integer.valueOf(text.trim()));

    /**
     * MigLayout's constraints are texts, or objects of its own. Such an object is shown as an empty text: it can be
     * replaced by one, but not edited.
     */
    private static final Format TEXT =
            Format.typed("a text", value -> value instanceof String ? (String) value : "", (text, old) -> text);

    private static final Pattern SETTING = Pattern.compile("\\s*(\\w+)\\s*=\\s*([^=]*?)(?=\\s+\\w+\\s*=|\\s*$)");

    private Constraints() {
    }

    /** The format of a component's constraints; null where its parent's layout has none that can be asked for. */
    static Format format(Component component) {
        Container parent = component.getParent();
        if (parent == null) {
            return null;
        }
        LayoutManager layout = parent.getLayout();
        if (layout == null) {
            return parent instanceof JLayeredPane ? LAYER : null;
        }
        if (MigLayouts.isOne(layout)) {
            return TEXT;
        }
        if (Code.getterOverrider(layout.getClass()) != null) {
            return null;
        }
        return layout instanceof BorderLayout ? REGION : layout instanceof GridBagLayout ? GRID_BAG : null;
    }

    /** A component's constraints; null if it has none. */
    public static Object of(Component component) throws Throwable {
        Container parent = component.getParent();
        LayoutManager layout = parent == null ? null : parent.getLayout();
        if (layout instanceof BorderLayout) {
            return ((BorderLayout) layout).getConstraints(component);
        }
        if (layout instanceof GridBagLayout) {
            return ((GridBagLayout) layout).getConstraints(component);
        }
        if (layout != null && MigLayouts.isOne(layout)) {
            return MigLayouts.constraints(layout, component);
        }
        return parent instanceof JLayeredPane ? (Object) ((JLayeredPane) parent).getLayer(component) : null;
    }

    static void set(Component component, Object value) throws Throwable {
        Container parent = component.getParent();
        LayoutManager layout = parent == null ? null : parent.getLayout();
        if (layout instanceof BorderLayout) {
            setRegion((BorderLayout) layout, parent, component, value);
        } else if (layout instanceof GridBagLayout) {
            ((GridBagLayout) layout).setConstraints(component, (GridBagConstraints) value);
        } else if (layout != null && MigLayouts.isOne(layout)) {
            MigLayouts.setConstraints(layout, component, value);
        } else if (parent instanceof JLayeredPane) {
            ((JLayeredPane) parent).setLayer(component, (Integer) value);
        } else {
            throw new IllegalStateException("the parent's layout manager is another one now");
        }
    }

    /**
     * Refuses a region that is taken: the component there would be without a place from then on, even after an undo.
     */
    private static void setRegion(BorderLayout layout, Container parent, Component component, Object region) {
        Component there = region == null ? null : layout.getLayoutComponent(region);
        if (there != null && there != component && there.getParent() == parent) {
            throw new IllegalStateException(Code.describe(there) + " is there already");
        }
        layout.removeLayoutComponent(component);
        if (region != null) {
            layout.addLayoutComponent(component, region);
        }
    }

    /** The constraints as text: always the cell, and whatever else differs from the default. */
    static String write(GridBagConstraints at) {
        GridBagConstraints usual = new GridBagConstraints();
        StringBuilder text = new StringBuilder();
        text.append("gridx=").append(relative(at.gridx)).append(" gridy=").append(relative(at.gridy));
        put(text, "gridwidth", relative(at.gridwidth), relative(usual.gridwidth));
        put(text, "gridheight", relative(at.gridheight), relative(usual.gridheight));
        put(text, "weightx", plain(at.weightx), plain(usual.weightx));
        put(text, "weighty", plain(at.weighty), plain(usual.weighty));
        put(text, "anchor", name(ANCHORS, at.anchor), name(ANCHORS, usual.anchor));
        put(text, "fill", name(FILLS, at.fill), name(FILLS, usual.fill));
        put(text, "insets", Formats.write(at.insets).replace(" ", ""), "0,0,0,0");
        put(text, "ipadx", "" + at.ipadx, "0");
        put(text, "ipady", "" + at.ipady, "0");
        return text.toString();
    }

    private static void put(StringBuilder text, String name, String value, String usual) {
        if (!value.equals(usual)) {
            text.append(' ').append(name).append('=').append(value);
        }
    }

    private static String plain(double weight) {
        return weight == (long) weight ? Long.toString((long) weight) : Double.toString(weight);
    }

    static String relative(int number) {
        return number == GridBagConstraints.RELATIVE ? "RELATIVE" : Integer.toString(number);
    }

    private static GridBagConstraints gridBag(String text) {
        GridBagConstraints made = new GridBagConstraints();
        Matcher settings = SETTING.matcher(text);
        int end = 0;
        while (settings.lookingAt()) {
            apply(made, settings.group(1).toLowerCase(Locale.ROOT), settings.group(2));
            end = settings.end();
            settings.region(end, text.length());
        }
        if (!text.substring(end).trim().isEmpty()) {
            throw new IllegalArgumentException();
        }
        return made;
    }

    private static void apply(GridBagConstraints made, String name, String value) {
        switch (name) {
            case "gridx":
                made.gridx = cell(value);
                break;
            case "gridy":
                made.gridy = cell(value);
                break;
            case "gridwidth":
                made.gridwidth = cell(value);
                break;
            case "gridheight":
                made.gridheight = cell(value);
                break;
            case "weightx":
                made.weightx = weight(value);
                break;
            case "weighty":
                made.weighty = weight(value);
                break;
            case "anchor":
                made.anchor = number(ANCHORS, value);
                break;
            case "fill":
                made.fill = number(FILLS, value);
                break;
            case "insets":
                made.insets = Formats.insets(value);
                break;
            case "ipadx":
                made.ipadx = whole(value);
                break;
            case "ipady":
                made.ipady = whole(value);
                break;
            default:
                throw new IllegalArgumentException("GridBagConstraints have no \u201c" + name + "\u201d.");
        }
    }

    private static int cell(String value) {
        if (value.equalsIgnoreCase("RELATIVE")) {
            return GridBagConstraints.RELATIVE;
        }
        int number = value.equalsIgnoreCase("REMAINDER") ? GridBagConstraints.REMAINDER : whole(value);
        if (number < 0) {
            throw new IllegalArgumentException(
                    "A place in the grid is not negative, but \u201c" + value + "\u201d is.");
        }
        return number;
    }

    private static double weight(String value) {
        double weight = Double.parseDouble(value);
        if (!(weight >= 0) || Double.isInfinite(weight)) {
            throw new IllegalArgumentException("A weight is 0 or more, which \u201c" + value + "\u201d is not.");
        }
        return weight;
    }

    private static int whole(String value) {
        return Integer.parseInt(value);
    }

    private static final Map<String, Integer> ANCHORS = new LinkedHashMap<>();
    private static final Map<String, Integer> FILLS = new LinkedHashMap<>();

    static {
        ANCHORS.put("CENTER", GridBagConstraints.CENTER);
        ANCHORS.put("NORTH", GridBagConstraints.NORTH);
        ANCHORS.put("NORTHEAST", GridBagConstraints.NORTHEAST);
        ANCHORS.put("EAST", GridBagConstraints.EAST);
        ANCHORS.put("SOUTHEAST", GridBagConstraints.SOUTHEAST);
        ANCHORS.put("SOUTH", GridBagConstraints.SOUTH);
        ANCHORS.put("SOUTHWEST", GridBagConstraints.SOUTHWEST);
        ANCHORS.put("WEST", GridBagConstraints.WEST);
        ANCHORS.put("NORTHWEST", GridBagConstraints.NORTHWEST);
        ANCHORS.put("PAGE_START", GridBagConstraints.PAGE_START);
        ANCHORS.put("PAGE_END", GridBagConstraints.PAGE_END);
        ANCHORS.put("LINE_START", GridBagConstraints.LINE_START);
        ANCHORS.put("LINE_END", GridBagConstraints.LINE_END);
        ANCHORS.put("FIRST_LINE_START", GridBagConstraints.FIRST_LINE_START);
        ANCHORS.put("FIRST_LINE_END", GridBagConstraints.FIRST_LINE_END);
        ANCHORS.put("LAST_LINE_START", GridBagConstraints.LAST_LINE_START);
        ANCHORS.put("LAST_LINE_END", GridBagConstraints.LAST_LINE_END);
        ANCHORS.put("BASELINE", GridBagConstraints.BASELINE);
        ANCHORS.put("BASELINE_LEADING", GridBagConstraints.BASELINE_LEADING);
        ANCHORS.put("BASELINE_TRAILING", GridBagConstraints.BASELINE_TRAILING);
        ANCHORS.put("ABOVE_BASELINE", GridBagConstraints.ABOVE_BASELINE);
        ANCHORS.put("ABOVE_BASELINE_LEADING", GridBagConstraints.ABOVE_BASELINE_LEADING);
        ANCHORS.put("ABOVE_BASELINE_TRAILING", GridBagConstraints.ABOVE_BASELINE_TRAILING);
        ANCHORS.put("BELOW_BASELINE", GridBagConstraints.BELOW_BASELINE);
        ANCHORS.put("BELOW_BASELINE_LEADING", GridBagConstraints.BELOW_BASELINE_LEADING);
        ANCHORS.put("BELOW_BASELINE_TRAILING", GridBagConstraints.BELOW_BASELINE_TRAILING);
        FILLS.put("NONE", GridBagConstraints.NONE);
        FILLS.put("BOTH", GridBagConstraints.BOTH);
        FILLS.put("HORIZONTAL", GridBagConstraints.HORIZONTAL);
        FILLS.put("VERTICAL", GridBagConstraints.VERTICAL);
    }

    private static String name(Map<String, Integer> names, int number) {
        for (Map.Entry<String, Integer> entry : names.entrySet()) {
            if (entry.getValue() == number) {
                return entry.getKey();
            }
        }
        return Integer.toString(number);
    }

    private static int number(Map<String, Integer> names, String name) {
        Integer number = names.get(name.toUpperCase(Locale.ROOT));
        if (number == null) {
            throw new IllegalArgumentException(
                    "\u201c" + name + "\u201d is not one of " + String.join(", ", names.keySet()) + ".");
        }
        return number;
    }
}
