package com.vantrel.model;

import java.awt.BorderLayout;
import java.awt.CardLayout;
import java.awt.Component;
import java.awt.Container;
import java.awt.FlowLayout;
import java.awt.GridBagConstraints;
import java.awt.GridBagLayout;
import java.awt.GridLayout;
import java.awt.LayoutManager;
import java.util.Arrays;
import java.util.List;
import java.util.Locale;

import javax.swing.BoxLayout;
import javax.swing.GroupLayout;
import javax.swing.JScrollPane;
import javax.swing.JViewport;
import javax.swing.OverlayLayout;
import javax.swing.ScrollPaneLayout;
import javax.swing.Scrollable;
import javax.swing.SpringLayout;
import javax.swing.ViewportLayout;

/**
 * What there is to know of a layout manager: what it was set to, what it was told of one child, and why it gives that
 * child the size that it has. For the event thread.
 */
final class Managers {
    private static final List<String> ALIGNMENTS = Arrays.asList("LEFT", "CENTER", "RIGHT", "LEADING", "TRAILING");
    private static final List<String> REGIONS = Arrays.asList(BorderLayout.NORTH, BorderLayout.SOUTH, BorderLayout.WEST,
            BorderLayout.EAST, BorderLayout.CENTER, BorderLayout.PAGE_START, BorderLayout.PAGE_END,
            BorderLayout.LINE_START, BorderLayout.LINE_END);

    private Managers() {
    }

    /** The manager of a container in a line, and below it what it was set to. */
    static void describe(List<Row> rows, String group, Container container) {
        LayoutManager layout = container.getLayout();
        if (layout == null) {
            rows.add(Row.of(group, "manager", "none").explanation("The program sets each bounds itself."));
            return;
        }
        boolean programs = !Code.isMachinery(layout.getClass());
        Row row = Row.of(group, "manager", Code.shortName(layout.getClass()))
                          .type(layout.getClass().getName())
                          .programs(programs);
        rows.add(row);
        try {
            if (!parameters(rows, group, layout, container)) {
                row.explanation(programs
                                ? "A manager of the program's own, which tells nobody how it lays out."
                                : "A manager inside of the toolkit, which knows the parts of this component and lays out those.");
            }
        } catch (Throwable thrown) {
            rows.add(Row.of(group, "settings", Values.error(thrown)).kind(Row.Kind.ERROR));
        }
    }

    private static boolean parameters(List<Row> rows, String group, LayoutManager layout, Container of)
            throws Throwable {
        if (MigLayouts.isOne(layout)) {
            for (String what : Arrays.asList("Layout", "Column", "Row")) {
                Object told = MigLayouts.ofAll(layout, what);
                rows.add(Row.of(group, what.toLowerCase(Locale.ROOT), Values.text(told)));
            }
        } else if (Code.getterOverrider(layout.getClass()) != null) {
            return false;
        } else if (layout instanceof BorderLayout) {
            BorderLayout border = (BorderLayout) layout;
            gaps(rows, group, border.getHgap(), border.getVgap());
            for (String region : REGIONS) {
                Component in = border.getLayoutComponent(region);
                if (in != null) {
                    rows.add(Row.of(group, region, Code.describe(in)));
                }
            }
        } else if (layout instanceof FlowLayout) {
            FlowLayout flow = (FlowLayout) layout;
            rows.add(Row.of(group, "alignment", ALIGNMENTS.get(flow.getAlignment())));
            gaps(rows, group, flow.getHgap(), flow.getVgap());
            if (flow.getAlignOnBaseline()) {
                rows.add(Row.of(group, "on baseline", "true"));
            }
        } else if (layout instanceof GridLayout) {
            GridLayout grid = (GridLayout) layout;
            rows.add(Row.of(group, "rows", any(grid.getRows())));
            rows.add(Row.of(group, "columns", any(grid.getColumns())));
            gaps(rows, group, grid.getHgap(), grid.getVgap());
        } else if (layout instanceof CardLayout) {
            CardLayout cards = (CardLayout) layout;
            gaps(rows, group, cards.getHgap(), cards.getVgap());
            for (Component child : Children.of(of)) {
                if (Facts.isVisible(child)) {
                    rows.add(Row.of(group, "card on top", Code.describe(child)));
                }
            }
        } else if (layout instanceof BoxLayout) {
            rows.add(Row.of(group, "axis", axis((BoxLayout) layout, of) ? "horizontal" : "vertical"));
        } else if (layout instanceof GridBagLayout) {
            int[][] sizes = ((GridBagLayout) layout).getLayoutDimensions();
            double[][] weights = ((GridBagLayout) layout).getLayoutWeights();
            rows.add(Row.of(group, "columns", tracks(sizes[0], weights[0])));
            rows.add(Row.of(group, "rows", tracks(sizes[1], weights[1])));
        } else if (layout instanceof GroupLayout) {
            Groups.describe(rows, group, (GroupLayout) layout);
        } else {
            return layout instanceof SpringLayout || layout instanceof OverlayLayout || layout instanceof ViewportLayout
                    || layout instanceof ScrollPaneLayout;
        }
        return true;
    }

    private static void gaps(List<Row> rows, String group, int horizontal, int vertical) {
        rows.add(Row.of(group, "gaps", horizontal + " horizontal, " + vertical + " vertical"));
    }

    private static String any(int count) {
        return count == 0 ? "as many as needed" : Integer.toString(count);
    }

    private static String tracks(int[] sizes, double[] weights) {
        StringBuilder text = new StringBuilder();
        for (int i = 0; i < sizes.length; i++) {
            text.append(i == 0 ? "" : ", ").append(sizes[i]);
            if (i < weights.length && weights[i] > 0) {
                text.append(" (weight ").append(weights[i]).append(')');
            }
        }
        return Values.cut(text.toString());
    }

    private static boolean axis(BoxLayout layout, Container of) {
        boolean leftToRight = of.getComponentOrientation().isHorizontal();
        switch (layout.getAxis()) {
            case BoxLayout.LINE_AXIS:
                return leftToRight;
            case BoxLayout.PAGE_AXIS:
                return !leftToRight;
            default:
                return layout.getAxis() == BoxLayout.X_AXIS;
        }
    }

    /** What a child is to its parent's manager, in one line without a line feed; empty where nothing is known. */
    static String place(Component child) {
        Container parent = child.getParent();
        LayoutManager layout = parent == null ? null : parent.getLayout();
        try {
            if (layout instanceof ScrollPaneLayout && parent instanceof JScrollPane) {
                return scrollPart((JScrollPane) parent, child);
            }
            Format format = Constraints.format(child);
            if (format != null) {
                Object told = Constraints.of(child);
                return told instanceof GridBagConstraints ? cell((GridBagConstraints) told)
                        : told == null                    ? ""
                                                          : format.write(told);
            }
            if (layout instanceof SpringLayout && Code.getterOverrider(layout.getClass()) == null) {
                SpringLayout.Constraints springs = ((SpringLayout) layout).getConstraints(child);
                return "x " + springs.getX().getValue() + ", y " + springs.getY().getValue() + ", width "
                        + springs.getWidth().getValue() + ", height " + springs.getHeight().getValue();
            }
            return "";
        } catch (Throwable thrown) {
            return Values.error(thrown);
        }
    }

    private static String cell(GridBagConstraints at) {
        String where = "column " + Constraints.relative(at.gridx) + ", row " + Constraints.relative(at.gridy);
        boolean one = at.gridwidth == 1 && at.gridheight == 1;
        return one ? where
                   : where + ", " + Constraints.relative(at.gridwidth) + " \u00d7 "
                        + Constraints.relative(at.gridheight) + " cells";
    }

    private static String scrollPart(JScrollPane pane, Component child) {
        return child == pane.getViewport()               ? "viewport"
                : child == pane.getRowHeader()           ? "row header"
                : child == pane.getColumnHeader()        ? "column header"
                : child == pane.getVerticalScrollBar()   ? "vertical scroll bar"
                : child == pane.getHorizontalScrollBar() ? "horizontal scroll bar"
                                                         : "corner";
    }

    /**
     * Why a child is as wide or as high as it is, as the rest of a sentence; null where that is not known.
     *
     * @param wide whether it is about the width
     */
    static String reason(Component child, boolean wide) {
        Container parent = child.getParent();
        LayoutManager layout = parent == null ? null : parent.getLayout();
        if (layout == null) {
            return parent == null ? null : "the program sets its bounds";
        }
        String name = Code.shortName(layout.getClass());
        if (layout instanceof BorderLayout) {
            return border((BorderLayout) layout, child, wide);
        }
        if (layout instanceof GridBagLayout) {
            int fill = ((GridBagLayout) layout).getConstraints(child).fill;
            boolean filled = fill == GridBagConstraints.BOTH
                    || fill == (wide ? GridBagConstraints.HORIZONTAL : GridBagConstraints.VERTICAL);
            return filled ? "it fills its grid cell" : "its grid cell has no room";
        }
        if (layout instanceof GridLayout) {
            return "all cells of the grid are alike";
        }
        if (layout instanceof CardLayout) {
            return "a card has all of its parent";
        }
        if (layout instanceof FlowLayout) {
            return "FlowLayout gives what is preferred";
        }
        if (layout instanceof BoxLayout) {
            boolean along = axis((BoxLayout) layout, parent) == wide;
            return along ? "BoxLayout shares out what is there" : "as its parent, up to the maximum";
        }
        if (layout instanceof ViewportLayout && parent instanceof JViewport) {
            boolean follows = child instanceof Scrollable
                    && (wide ? ((Scrollable) child).getScrollableTracksViewportWidth()
                             : ((Scrollable) child).getScrollableTracksViewportHeight());
            return follows ? "it follows the viewport" : "at least as its viewport";
        }
        return name + " decides";
    }

    private static String border(BorderLayout layout, Component child, boolean wide) {
        Object region = layout.getConstraints(child);
        if (region == null) {
            return "it has no region, and is not laid out";
        }
        boolean stretched = wide ? Arrays.asList("North", "South", "First", "Last").contains(region)
                                 : Arrays.asList("West", "East", "Before", "After").contains(region);
        return region.equals(BorderLayout.CENTER) ? "the CENTER gets what is left"
                : stretched                       ? "this side goes from end to end"
                                                  : "BorderLayout gives this side what it prefers";
    }
}
