package orchard;

import java.awt.Color;
import java.awt.Dimension;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.RenderingHints;
import java.awt.event.MouseAdapter;
import java.awt.event.MouseEvent;

import javax.swing.JComponent;
import javax.swing.UIManager;

/** The harvest of one variety by month, painted by this class itself. The bar under the pointer shows its number. */
@SuppressWarnings("serial")
final class HarvestChart extends JComponent {
    static final String[] MONTHS = {"July", "August", "September", "October", "November", "December"};

    private static final int PADDING = 16;
    private static final int ROUNDING = 6;
    private static final int MOST_KILOGRAMS = 700;

    private transient Varieties.Variety variety = Varieties.all()[0];
    private int pointed = -1;
    private Color barColor = Palette.LEAF;
    private int scale = 100;

    HarvestChart() {
        setName("chart");
        setPreferredSize(new Dimension(220, 200));
        MouseAdapter mouse = new MouseAdapter() {
            @Override
            public void mouseMoved(MouseEvent event) {
                point(event.getX() * MONTHS.length / Math.max(1, getWidth()));
            }

            @Override
            public void mouseExited(MouseEvent event) {
                point(-1);
            }
        };
        addMouseListener(mouse);
        addMouseMotionListener(mouse);
    }

    private void point(int bar) {
        if (bar != pointed) {
            pointed = bar;
            repaint();
        }
    }

    void show(Varieties.Variety newVariety) {
        variety = newVariety;
        repaint();
    }

    public Color getBarColor() {
        return barColor;
    }

    public void setBarColor(Color newColor) {
        barColor = newColor;
        repaint();
    }

    /** How high the bars are, in percent. */
    public int getScale() {
        return scale;
    }

    public void setScale(int newScale) {
        scale = newScale;
        repaint();
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        Graphics2D fine = (Graphics2D) graphics.create();
        fine.setRenderingHint(RenderingHints.KEY_ANTIALIASING, RenderingHints.VALUE_ANTIALIAS_ON);
        fine.setRenderingHint(RenderingHints.KEY_TEXT_ANTIALIASING, RenderingHints.VALUE_TEXT_ANTIALIAS_ON);
        fine.setFont(UIManager.getFont("Label.font"));
        FontMetrics metrics = fine.getFontMetrics();
        int ground = getHeight() - PADDING - metrics.getHeight();
        double step = (getWidth() - 2.0 * PADDING) / MONTHS.length;
        for (int month = 0; month < MONTHS.length; month++) {
            int kilograms = variety.harvest[month];
            int height = (int) ((ground - 2.0 * PADDING) * kilograms / MOST_KILOGRAMS * scale / 100);
            int left = PADDING + (int) (month * step);
            fine.setColor(month == pointed ? barColor.darker() : barColor);
            fine.fillRoundRect(left + 2, ground - height, (int) step - 4, height, ROUNDING, ROUNDING);
            fine.setColor(getForeground() == null ? Color.DARK_GRAY : getForeground());
            centre(fine, MONTHS[month].substring(0, step > 60 ? MONTHS[month].length() : 3), left + step / 2,
                    ground + metrics.getAscent() + 2);
            if (month == pointed || kilograms > 0 && step > 60) {
                centre(fine, kilograms + " kg", left + step / 2, ground - height - metrics.getDescent() - 2);
            }
        }
        fine.setColor(Palette.LINE);
        fine.drawLine(PADDING, ground, getWidth() - PADDING, ground);
        fine.dispose();
    }

    private static void centre(Graphics2D graphics, String text, double x, int y) {
        graphics.drawString(text, (float) (x - graphics.getFontMetrics().stringWidth(text) / 2.0), y);
    }
}
