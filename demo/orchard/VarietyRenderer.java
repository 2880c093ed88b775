package orchard;

import java.awt.Color;
import java.awt.Component;

import javax.swing.JTree;
import javax.swing.tree.DefaultTreeCellRenderer;
import javax.swing.tree.TreePath;

/** A variety, or a kind, with a dot in the colour of its kind. */
@SuppressWarnings("serial")
final class VarietyRenderer extends DefaultTreeCellRenderer {
    @Override
    public Component getTreeCellRendererComponent(JTree tree, Object value, boolean isSelected, boolean isExpanded,
            boolean isLeaf, int row, boolean hasFocus) {
        super.getTreeCellRendererComponent(tree, value, isSelected, isExpanded, isLeaf, row, hasFocus);
        setName("variety." + value);
        setIcon(new DotIcon(color(tree, row)));
        return this;
    }

    /** The colour of the kind that a row is in. */
    private static Color color(JTree tree, int row) {
        TreePath path = tree.getPathForRow(row);
        String kind = path == null || path.getPathCount() < 2 ? "" : path.getPathComponent(1).toString();
        switch (kind) {
            case "Apples":
                return Palette.CHERRY;
            case "Pears":
                return Palette.HONEY;
            case "Plums":
                return Palette.SKY;
            default:
                return Palette.LEAF;
        }
    }
}
