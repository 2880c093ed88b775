package com.vantrel.model;

import java.lang.reflect.Field;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

import javax.swing.JComponent;

/**
 * Which client properties a component has. No public method lists them. Where the toolkit's module is open to us, its
 * table is read; elsewhere the keys are tried that the toolkit, its looks and feels, and many programs use. For the
 * event thread.
 */
final class ClientProperties {
    private static final Field TABLE = Members.field(JComponent.class, "clientProperties");
    private static final Method KEYS =
            TABLE == null ? null : Members.method(TABLE.getType(), "getKeys", Object[].class);

    private static final List<String> KNOWN = Arrays.asList("labeledBy", "ToolTipText", "html", "html.disable",
            "JComponent.sizeVariant", "JComponent.outline", "JButton.buttonType", "JButton.segmentPosition",
            "JToolBar.isRollover", "JTree.lineStyle", "JTable.autoStartsEdit", "terminateEditOnFocusLost",
            "JTable.isFileList", "JComboBox.isTableCellEditor", "JComboBox.lightweightKeyboardNavigation",
            "JInternalFrame.isPalette", "JSlider.isFilled", "JScrollBar.isFreeStanding", "JSplitPane.alignment",
            "JTextField.placeholderText", "JTextField.variant", "JPasswordField.cutCopyAllowed",
            "JEditorPane.honorDisplayProperties", "charset", "caretWidth", "caretAspectRatio", "swing.bold",
            "Nimbus.Overrides", "Nimbus.Overrides.InheritDefaults", "AuxiliaryLayout", "FileChooser.useShellFolder",
            "doNotCancelPopup", "ancestor", "hideActionText", "SplitPane.dividerSize", "forceDefaultIcon",
            "Window.documentModified", "Window.alpha");

    private ClientProperties() {
    }

    /** Whether all keys are seen, and not only well-known ones. */
    static boolean areAllSeen() {
        return KEYS != null;
    }

    /** The keys that have a value. They may be any objects of the program's: to be held only while they are read. */
    static List<Object> keys(JComponent component) throws Throwable {
        if (KEYS != null) {
            Object table = TABLE.get(component);
            Object[] keys = table == null ? null : (Object[]) Members.call(KEYS, table, new Object[] {null});
            return keys == null ? new ArrayList<>() : Arrays.asList(keys);
        }
        List<Object> found = new ArrayList<>();
        for (String key : KNOWN) {
            if (component.getClientProperty(key) != null) {
                found.add(key);
            }
        }
        return found;
    }
}
