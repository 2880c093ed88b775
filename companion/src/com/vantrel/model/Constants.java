package com.vantrel.model;

import java.util.Arrays;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

import javax.swing.JDesktopPane;
import javax.swing.JFormattedTextField;
import javax.swing.JList;
import javax.swing.JTabbedPane;
import javax.swing.JTable;
import javax.swing.ListSelectionModel;
import javax.swing.ScrollPaneConstants;
import javax.swing.SwingConstants;
import javax.swing.WindowConstants;

/** The names of numeric constants, such as LEFT and CENTER, by the property that they are values of. */
final class Constants {
    private static final Map<String, Format> BY_PROPERTY = new HashMap<>();

    private Constants() {
    }

    /** The format of a property of type int whose values have names; null for all others. */
    static Format of(String property) {
        return BY_PROPERTY.get(property);
    }

    static {
        List<Integer> horizontal = Arrays.asList(SwingConstants.LEFT, SwingConstants.CENTER, SwingConstants.RIGHT,
                SwingConstants.LEADING, SwingConstants.TRAILING);
        put("horizontalAlignment", horizontal, "LEFT", "CENTER", "RIGHT", "LEADING", "TRAILING");
        put("horizontalTextPosition", horizontal, "LEFT", "CENTER", "RIGHT", "LEADING", "TRAILING");
        List<Integer> vertical = Arrays.asList(SwingConstants.TOP, SwingConstants.CENTER, SwingConstants.BOTTOM);
        put("verticalAlignment", vertical, "TOP", "CENTER", "BOTTOM");
        put("verticalTextPosition", vertical, "TOP", "CENTER", "BOTTOM");
        put("orientation", Arrays.asList(SwingConstants.HORIZONTAL, SwingConstants.VERTICAL), "HORIZONTAL", "VERTICAL");
        put("tabPlacement",
                Arrays.asList(SwingConstants.TOP, SwingConstants.LEFT, SwingConstants.BOTTOM, SwingConstants.RIGHT),
                "TOP", "LEFT", "BOTTOM", "RIGHT");
        put("tabLayoutPolicy", Arrays.asList(JTabbedPane.WRAP_TAB_LAYOUT, JTabbedPane.SCROLL_TAB_LAYOUT), "WRAP",
                "SCROLL");
        put("autoResizeMode",
                Arrays.asList(JTable.AUTO_RESIZE_OFF, JTable.AUTO_RESIZE_NEXT_COLUMN,
                        JTable.AUTO_RESIZE_SUBSEQUENT_COLUMNS, JTable.AUTO_RESIZE_LAST_COLUMN,
                        JTable.AUTO_RESIZE_ALL_COLUMNS),
                "OFF", "NEXT_COLUMN", "SUBSEQUENT_COLUMNS", "LAST_COLUMN", "ALL_COLUMNS");
        put("selectionMode",
                Arrays.asList(ListSelectionModel.SINGLE_SELECTION, ListSelectionModel.SINGLE_INTERVAL_SELECTION,
                        ListSelectionModel.MULTIPLE_INTERVAL_SELECTION),
                "SINGLE", "SINGLE_INTERVAL", "MULTIPLE_INTERVAL");
        put("layoutOrientation", Arrays.asList(JList.VERTICAL, JList.VERTICAL_WRAP, JList.HORIZONTAL_WRAP), "VERTICAL",
                "VERTICAL_WRAP", "HORIZONTAL_WRAP");
        put("horizontalScrollBarPolicy",
                Arrays.asList(ScrollPaneConstants.HORIZONTAL_SCROLLBAR_AS_NEEDED,
                        ScrollPaneConstants.HORIZONTAL_SCROLLBAR_NEVER,
                        ScrollPaneConstants.HORIZONTAL_SCROLLBAR_ALWAYS),
                "AS_NEEDED", "NEVER", "ALWAYS");
        put("verticalScrollBarPolicy",
                Arrays.asList(ScrollPaneConstants.VERTICAL_SCROLLBAR_AS_NEEDED,
                        ScrollPaneConstants.VERTICAL_SCROLLBAR_NEVER, ScrollPaneConstants.VERTICAL_SCROLLBAR_ALWAYS),
                "AS_NEEDED", "NEVER", "ALWAYS");
        put("defaultCloseOperation",
                Arrays.asList(WindowConstants.DO_NOTHING_ON_CLOSE, WindowConstants.HIDE_ON_CLOSE,
                        WindowConstants.DISPOSE_ON_CLOSE, WindowConstants.EXIT_ON_CLOSE),
                "DO_NOTHING", "HIDE", "DISPOSE", "EXIT");
        put("focusLostBehavior",
                Arrays.asList(JFormattedTextField.COMMIT, JFormattedTextField.COMMIT_OR_REVERT,
                        JFormattedTextField.REVERT, JFormattedTextField.PERSIST),
                "COMMIT", "COMMIT_OR_REVERT", "REVERT", "PERSIST");
        put("dragMode", Arrays.asList(JDesktopPane.LIVE_DRAG_MODE, JDesktopPane.OUTLINE_DRAG_MODE), "LIVE", "OUTLINE");
    }

    private static void put(String property, List<Integer> values, String... names) {
        BY_PROPERTY.put(property, Format.chosen(values, Arrays.asList(names)));
    }
}
