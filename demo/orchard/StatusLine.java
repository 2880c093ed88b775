package orchard;

import java.awt.FlowLayout;

import javax.swing.BorderFactory;
import javax.swing.JLabel;
import javax.swing.JPanel;

/** One line of text at the foot of the window. */
@SuppressWarnings("serial")
final class StatusLine extends JPanel {
    private final JLabel text = new JLabel(" ");

    StatusLine() {
        super(new FlowLayout(FlowLayout.LEADING, 8, 2));
        setName("status");
        text.setName("status.text");
        setBorder(BorderFactory.createMatteBorder(1, 0, 0, 0, Palette.LINE));
        add(text);
    }

    void say(String line) {
        text.setText(line);
    }
}
