package scenario;

import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.Graphics;
import java.awt.event.MouseEvent;
import java.util.Map;
import java.util.function.Supplier;

import javax.swing.JPanel;

/**
 * Components that must not be trusted: whatever they are asked, they throw, take a second, or answer null; and one
 * that does not tell its children. All of them work as long as nobody but Swing asks.
 */
@SuppressWarnings("serial")
final class Odd extends JPanel {
    private static final int MILLIS = 1000;

    private final transient Supplier<String> answer;
    private final boolean hidesChildren;

    private Odd(Supplier<String> answer, boolean hidesChildren) {
        this.answer = answer;
        this.hidesChildren = hidesChildren;
        setPreferredSize(new Dimension(20, 12));
    }

    /** Adds one to the panel "room", known as "odd." and its kind; it has a child "odd." KIND ".child". */
    static String add(Things things, String kind) {
        Map<String, Supplier<String>> answers =
                Map.of("throwing", Odd::fail, "blocking", Odd::late, "null", () -> null, "lying", () -> null);
        Odd odd = new Odd(answers.get(kind), kind.equals("lying") || kind.equals("throwing"));
        things.known("odd." + kind, odd);
        odd.add(things.named("odd." + kind + ".child", new JPanel()));
        Container room = things.get("room", Container.class);
        room.add(odd);
        room.validate();
        room.repaint();
        return "";
    }

    private static String fail() {
        throw new IllegalStateException("asked on purpose");
    }

    private static String late() {
        try {
            Thread.sleep(MILLIS);
        } catch (InterruptedException e) {
            Thread.currentThread().interrupt();
        }
        return "late";
    }

    @Override
    public String getName() {
        return answer == null ? null : answer.get(); // null while the superclass is being made
    }

    public String getText() {
        return answer.get();
    }

    public String getTitle() {
        return answer.get();
    }

    @Override
    public String getToolTipText() {
        return answer.get();
    }

    @Override
    public String getToolTipText(MouseEvent event) {
        return null; // asked by Swing
    }

    @Override
    public String toString() {
        return answer.get();
    }

    @Override
    public Component[] getComponents() {
        if (hidesChildren) {
            answer.get();
            return null;
        }
        return super.getComponents();
    }

    @Override
    protected void paintComponent(Graphics graphics) {
        graphics.setColor(java.awt.Color.ORANGE);
        graphics.fillRect(0, 0, getWidth(), getHeight());
    }
}
