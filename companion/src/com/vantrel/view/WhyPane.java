package com.vantrel.view;

import java.awt.BorderLayout;
import java.awt.Component;
import java.awt.Cursor;
import java.awt.Dimension;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.event.ComponentAdapter;
import java.awt.event.ComponentEvent;
import java.awt.event.MouseEvent;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Consumer;

import javax.swing.BorderFactory;
import javax.swing.JComponent;
import javax.swing.JPanel;
import javax.swing.JScrollPane;
import javax.swing.JTextPane;
import javax.swing.KeyStroke;
import javax.swing.ScrollPaneConstants;
import javax.swing.SwingUtilities;
import javax.swing.event.MouseInputAdapter;
import javax.swing.plaf.basic.BasicTextPaneUI;
import javax.swing.text.BadLocationException;
import javax.swing.text.DefaultCaret;
import javax.swing.text.SimpleAttributeSet;
import javax.swing.text.StyleConstants;
import javax.swing.text.StyledDocument;

import com.vantrel.why.Sentence;

/**
 * Why the selected component is as it is, in sentences, of which the text can be selected and copied. A click on a
 * component that one names, or Enter on it, selects that; on a line of the program, it opens that. As high as the text
 * needs, within limits. Belongs to the event thread.
 */
final class WhyPane extends JPanel {
    private static final long serialVersionUID = 1L;
    /** Always there, so that what lies below does not move with every other selection. */
    private static final int LEAST_LINES = 2;
    private static final int MOST_LINES = 6;

    private final JTextPane text = new Text();
    private final JScrollPane scroll = new JScrollPane(
            text, ScrollPaneConstants.VERTICAL_SCROLLBAR_AS_NEEDED, ScrollPaneConstants.HORIZONTAL_SCROLLBAR_NEVER);
    private final transient Consumer<Component> select;
    private final transient Consumer<StackTraceElement> open;
    private transient List<Sentence> shown = new ArrayList<>();
    private String said = "";

    /**
     * @param select selects a component of the program
     * @param open   opens a line of the program
     */
    WhyPane(Consumer<Component> select, Consumer<StackTraceElement> open) {
        super(new BorderLayout());
        this.select = select;
        this.open = open;
        text.setName("vantrel.why");
        text.getAccessibleContext().setAccessibleName("Why");
        text.setEditable(false);
        DefaultCaret caret = new DefaultCaret();
        caret.setUpdatePolicy(DefaultCaret.NEVER_UPDATE);
        text.setCaret(caret);
        scroll.setBorder(BorderFactory.createEmptyBorder());
        setOpaque(false);
        add(scroll);
        look();
        MouseInputAdapter mouse = new MouseInputAdapter() {
            @Override
            public void mouseMoved(MouseEvent event) {
                boolean leads = leads(partAt(event.getPoint()));
                text.setCursor(Cursor.getPredefinedCursor(leads ? Cursor.HAND_CURSOR : Cursor.TEXT_CURSOR));
            }

            @Override
            public void mouseClicked(MouseEvent event) {
                if (SwingUtilities.isLeftMouseButton(event) && text.getSelectionStart() == text.getSelectionEnd()) {
                    follow(partAt(event.getPoint()));
                }
            }
        };
        text.addMouseListener(mouse);
        text.addMouseMotionListener(mouse);
        RowsPanel.bind(
                text, WHEN_FOCUSED, KeyStroke.getKeyStroke("ENTER"), () -> follow(partAt(text.getCaretPosition())));
        addComponentListener(new ComponentAdapter() {
            @Override
            public void componentResized(ComponentEvent event) {
                revalidate(); // another width may need another height
            }
        });
    }

    private void look() {
        setBorder(BorderFactory.createEmptyBorder(Look.GAP / 2, 0, 0, 0));
        text.setMargin(new java.awt.Insets(0, 0, 0, 0));
        text.setBorder(BorderFactory.createEmptyBorder());
        text.setFont(Look.font());
        scroll.setViewportBorder(BorderFactory.createEmptyBorder());
        scroll.setOpaque(false);
        scroll.getViewport().setOpaque(false);
    }

    @Override
    public void updateUI() {
        super.updateUI();
        if (scroll != null) { // it is called by the superclass's constructor, too
            look();
            write();
        }
    }

    /** Shows sentences; none are shown by nothing. */
    void show(List<Sentence> sentences) {
        shown = sentences;
        StringBuilder all = new StringBuilder();
        for (Sentence sentence : sentences) {
            all.append(all.length() == 0 ? "" : "\n").append(sentence);
        }
        // Only what is new: a text that is being read and copied from is not to be pulled away.
        if (!all.toString().equals(said)) {
            said = all.toString();
            write();
        }
    }

    private void write() {
        StyledDocument document = text.getStyledDocument();
        SimpleAttributeSet plain = style(false);
        SimpleAttributeSet leading = style(true);
        try {
            document.remove(0, document.getLength());
            String feed = "";
            for (Sentence sentence : shown) {
                document.insertString(document.getLength(), feed, plain);
                for (Sentence.Part part : sentence.parts()) {
                    document.insertString(
                            document.getLength(), RowPainter.oneLine(part.text()), leads(part) ? leading : plain);
                }
                feed = "\n";
            }
        } catch (BadLocationException e) {
            throw new IllegalStateException(e);
        }
        text.setCaretPosition(0);
        revalidate();
    }

    private static SimpleAttributeSet style(boolean leads) {
        SimpleAttributeSet style = new SimpleAttributeSet();
        StyleConstants.setForeground(style, leads ? Look.own() : Look.foreground());
        StyleConstants.setFontFamily(style, Look.font().getFamily());
        StyleConstants.setFontSize(style, Look.font().getSize());
        return style;
    }

    private static boolean leads(Sentence.Part part) {
        return part != null && (part.component() != null || part.line() != null);
    }

    private void follow(Sentence.Part part) {
        if (part != null && part.component() != null) {
            select.accept(part.component());
        } else if (part != null && part.line() != null) {
            open.accept(part.line());
        }
    }

    /** The words at a point; null for none: beside the end of a line there are none, but that line's last. */
    private Sentence.Part partAt(Point point) {
        int at = text.viewToModel(point);
        try {
            Rectangle before = text.modelToView(at);
            boolean isBefore = before != null && point.x < before.x;
            Sentence.Part part = partAt(isBefore ? at - 1 : at);
            Rectangle end = text.modelToView(isBefore ? at : at + 1);
            boolean isOn = end != null && (end.y > point.y || point.x <= end.x) && point.y < end.y + end.height;
            return isOn ? part : null;
        } catch (BadLocationException e) {
            return null;
        }
    }

    private Sentence.Part partAt(int place) {
        int end = 0;
        for (Sentence sentence : shown) {
            for (Sentence.Part part : sentence.parts()) {
                end += RowPainter.oneLine(part.text()).length();
                if (place < end) {
                    return part;
                }
            }
            end++; // the line feed
        }
        return null;
    }

    @Override
    public Dimension getPreferredSize() {
        int width = getWidth() > 0 ? getWidth() : getParent() == null ? 0 : getParent().getWidth();
        text.setSize(Math.max(1, width), Short.MAX_VALUE);
        int line = text.getFontMetrics(Look.font()).getHeight();
        int height = Math.max(LEAST_LINES * line, Math.min(MOST_LINES * line, text.getPreferredSize().height));
        return new Dimension(10, height + getInsets().top + getInsets().bottom);
    }

    @Override
    public Dimension getMinimumSize() {
        return getPreferredSize();
    }

    /** Text on whatever is behind it. Some looks and feels would fill it all the same. */
    private static final class Text extends JTextPane {
        private static final long serialVersionUID = 1L;

        @Override
        public void updateUI() {
            setUI(new BasicTextPaneUI());
            setOpaque(false);
        }
    }
}
