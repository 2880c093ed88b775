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
import java.awt.LayoutManager2;
import java.util.Arrays;
import java.util.List;
import java.util.Locale;

import javax.swing.BoxLayout;
import javax.swing.GroupLayout;
import javax.swing.JScrollPane;
import javax.swing.OverlayLayout;
import javax.swing.ScrollPaneLayout;
import javax.swing.SpringLayout;
import javax.swing.ViewportLayout;
import javax.swing.plaf.UIResource;

/**
 * What there is to know of a layout manager: what it was set to, and what it was told of one child. For the event
 * thread.
 */
public final class Managers {
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
        Row row = Row.of(group, "manager", name(layout)).type(layout.getClass().getName()).programs(programs);
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

    /**
     * A manager's class as people say it. The toolkit's nested classes have names that say little by themselves, such
     * as "Handler", so they are named with the class around them. A class that only marks another one as the look and
     * feel's is named as that one.
     */
    public static String name(LayoutManager layout) {
        Class<?> type = layout.getClass();
        if (layout instanceof UIResource && Code.isToolkit(type)) {
            type = type.getSuperclass() == Object.class ? type : type.getSuperclass();
        }
        return Code.isToolkit(type) ? Code.withoutPackage(type.getName()).replace('$', '.') : Code.shortName(type);
    }

    private static boolean parameters(List<Row> rows, String group, LayoutManager layout, Container of)
            throws Throwable {
        if (MigLayouts.isOne(layout)) {
            for (String what : Arrays.asList("Layout", "Column", "Row")) {
                Object told = MigLayouts.ofAll(layout, what);
                if (told != null && !told.equals("")) {
                    rows.add(Row.of(group, what.toLowerCase(Locale.ROOT), Values.text(told)));
                }
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
            rows.add(Row.of(group, "axis", isHorizontal((BoxLayout) layout, of) ? "horizontal" : "vertical"));
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

    /** Whether a BoxLayout lays out in a row, from left to right or from right to left. */
    public static boolean isHorizontal(BoxLayout layout, Container of) {
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

    /** Where its parent's manager puts a child, in one line; empty where nothing is known. */
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
            if (layout == null || Code.getterOverrider(layout.getClass()) != null) {
                return "";
            }
            if (layout instanceof SpringLayout) {
                SpringLayout.Constraints springs = ((SpringLayout) layout).getConstraints(child);
                return "x " + springs.getX().getValue() + ", y " + springs.getY().getValue() + ", width "
                        + springs.getWidth().getValue() + ", height " + springs.getHeight().getValue();
            }
            if (layout instanceof CardLayout) {
                String card = Cards.name((CardLayout) layout, child);
                return card == null ? "" : "card \u201c" + card + "\u201d";
            }
            if (layout instanceof OverlayLayout) {
                return canTellAlignment(child) ? alignmentX(child) + ", " + alignmentY(child) : "";
            }
            if (layout instanceof BoxLayout && canTellAlignment(child)) {
                return isHorizontal((BoxLayout) layout, parent) ? alignmentY(child) : alignmentX(child);
            }
            return "";
        } catch (Throwable thrown) {
            return Values.error(thrown);
        }
    }

    /**
     * Whether a component can be asked for its alignment without calling code of the program: its own layout may ask
     * all that is in it.
     */
    public static boolean canTellAlignment(Component child) {
        if (Code.getterOverrider(child.getClass()) != null) {
            return false;
        }
        LayoutManager own = child instanceof Container ? ((Container) child).getLayout() : null;
        return !(own instanceof LayoutManager2)
                || Code.isToolkit(own.getClass()) && Facts.inside((Container) child).length == 0;
    }

    private static String alignmentX(Component child) {
        return "alignmentX " + child.getAlignmentX();
    }

    private static String alignmentY(Component child) {
        return "alignmentY " + child.getAlignmentY();
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
}
