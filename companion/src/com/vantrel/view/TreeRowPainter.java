package com.vantrel.view;

import java.awt.Color;
import java.awt.Component;
import java.awt.Dimension;
import java.awt.Font;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.util.Locale;

import javax.swing.JLabel;
import javax.swing.JList;
import javax.swing.ListCellRenderer;

import com.vantrel.model.NodeLook;
import com.vantrel.model.Showing;
import com.vantrel.model.TreeNode;

/**
 * Paints a row of the tree: icon, class, name, text, and why the component does not show. It is painted by hand, since
 * a row has several colours and a large tree many rows.
 */
final class TreeRowPainter extends JLabel implements ListCellRenderer<TreeNode> {
    private static final long serialVersionUID = 1L;

    static final int INDENT = 14;
    /** The width of the triangle that expands a row, which comes first after the row's indentation. */
    static final int TWISTY = 14;
    private static final int LEFT = 4;
    private static final int BETWEEN = 6;
    private static final int LEAST_TEXT = 60;

    private final TreeView tree;
    private transient TreeNode node;
    private boolean selected;
    private boolean hovered;
    private boolean active;

    TreeRowPainter(TreeView tree) {
        this.tree = tree;
    }

    static int twistyAt(TreeNode node) {
        return LEFT + node.level() * INDENT;
    }

    static int height() {
        Font font = Look.font();
        return Math.max(KindIcon.SIZE, new JLabel().getFontMetrics(font).getHeight()) + 4;
    }

    @Override
    public Component getListCellRendererComponent(
            JList<? extends TreeNode> list, TreeNode value, int index, boolean isSelected, boolean hasFocus) {
        node = value;
        selected = isSelected;
        hovered = tree.hovered() == index;
        active = list.isFocusOwner();
        return this;
    }

    void forget() {
        node = null;
    }

    /** What assistive technologies read. */
    @Override
    public String getText() {
        return node == null ? "" : node.look().toString();
    }

    /** The least width of a node's row. The component's text is cut if there is no room for it. */
    int widthOf(TreeNode of) {
        NodeLook look = of.look();
        FontMetrics plain = getFontMetrics(Look.font());
        FontMetrics bold = getFontMetrics(Look.bold());
        int width = twistyAt(of) + TWISTY + KindIcon.SIZE + BETWEEN + plain.stringWidth(look.className()) + BETWEEN;
        width += look.name().isEmpty() ? 0 : bold.stringWidth(look.name()) + BETWEEN;
        width += look.text().isEmpty() ? 0 : Math.min(plain.stringWidth(quoted(look)), LEAST_TEXT) + BETWEEN;
        width += look.showing() == Showing.YES ? 0 : plain.stringWidth(look.showing().words()) + 2 * BETWEEN;
        return width + LEFT;
    }

    @Override
    public Dimension getPreferredSize() {
        return new Dimension(node == null ? 0 : widthOf(node), height());
    }

    private static String quoted(NodeLook look) {
        return look.isHint() ? look.text() : "\u201c" + look.text() + "\u201d";
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        if (node == null) {
            return;
        }
        Graphics2D g = Look.smooth(graphics);
        Color paper = Look.paper();
        Color ink = Look.ink();
        if (selected) {
            paper = active ? Look.selectionBackground() : Look.mix(Look.selectionBackground(), paper, 0.45);
            ink = active ? Look.selectionForeground() : ink;
        } else if (hovered) {
            paper = Look.mix(ink, paper, 0.93);
        }
        g.setColor(paper);
        g.fillRect(0, 0, getWidth(), getHeight());
        paintRow(g, paper, ink);
        g.dispose();
    }

    private void paintRow(Graphics2D g, Color paper, Color ink) {
        NodeLook look = node.look();
        boolean searched = tree.isSearched();
        boolean dim = look.showing() != Showing.YES || searched && !node.isMatch();
        Color strong = dim ? Look.mix(ink, paper, 0.5) : ink;
        Color weak = Look.mix(ink, paper, dim ? 0.6 : 0.38);
        Color type = node.facts().isPrograms() && !(selected && active) ? Look.own() : ink;
        if (dim) {
            type = Look.mix(type, paper, 0.45);
        }
        int x = twistyAt(node);
        if (node.isExpandable()) {
            paintTwisty(g, x, weak);
        }
        x += TWISTY;
        KindIcon.of(node.facts().kind()).paint(g, type.equals(ink) ? weak : type, x, (getHeight() - KindIcon.SIZE) / 2);
        x += KindIcon.SIZE + BETWEEN;
        x = paintText(g, look.className(), Look.font(), type, x) + BETWEEN;
        if (!look.name().isEmpty()) {
            x = paintText(g, look.name(), Look.bold(), strong, x) + BETWEEN;
        }
        if (look.showing() != Showing.YES) {
            x = paintReason(g, look.showing().words(), weak, x) + BETWEEN;
        }
        if (!look.text().isEmpty()) {
            String text = quoted(look);
            paintText(
                    g, Look.fitting(text, g.getFontMetrics(Look.font()), getWidth() - x - LEFT), Look.font(), weak, x);
        }
    }

    private void paintTwisty(Graphics2D g, int x, Color color) {
        int middle = getHeight() / 2;
        g.setColor(color);
        if (tree.isExpanded(node)) {
            g.fillPolygon(new int[] {x + 1, x + 9, x + 5}, new int[] {middle - 2, middle - 2, middle + 3}, 3);
        } else {
            g.fillPolygon(new int[] {x + 3, x + 3, x + 8}, new int[] {middle - 4, middle + 4, middle}, 3);
        }
    }

    /** Paints a text, with a coloured background where it has a word of the search. Returns where it ends. */
    private int paintText(Graphics2D g, String text, Font font, Color color, int x) {
        FontMetrics metrics = g.getFontMetrics(font);
        int baseline = (getHeight() - metrics.getHeight()) / 2 + metrics.getAscent();
        if (tree.isSearched() && node.isMatch()) {
            String lower = text.toLowerCase(Locale.ROOT);
            g.setColor(Look.mix(Look.highlight(), selected ? Look.selectionBackground() : Look.paper(), 0.6));
            for (String word : tree.words()) {
                int at = lower.indexOf(word);
                if (at >= 0 && lower.length() == text.length()) {
                    g.fillRoundRect(x + metrics.stringWidth(text.substring(0, at)) - 1, 1,
                            metrics.stringWidth(text.substring(at, at + word.length())) + 2, getHeight() - 2, 4, 4);
                }
            }
        }
        g.setFont(font);
        g.setColor(color);
        g.drawString(text, x, baseline);
        return x + metrics.stringWidth(text);
    }

    private int paintReason(Graphics2D g, String words, Color color, int x) {
        FontMetrics metrics = g.getFontMetrics(Look.font());
        int width = metrics.stringWidth(words) + 2 * BETWEEN;
        g.setColor(Look.mix(color, selected ? Look.selectionBackground() : Look.paper(), 0.8));
        g.fillRoundRect(x, 2, width, getHeight() - 4, 8, 8);
        paintText(g, words, Look.font(), color, x + BETWEEN);
        return x + width;
    }
}
