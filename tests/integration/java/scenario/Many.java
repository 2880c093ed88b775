package scenario;

import java.awt.Container;
import java.awt.GridLayout;

import javax.swing.JLabel;
import javax.swing.JPanel;

/** Many components, as large programs have them. */
final class Many {
    private static final int LABELS = 9;

    private Many() {
    }

    /** Adds panels of ten components each (itself and nine labels), as many as make up a count. */
    static void add(Container parent, int count) {
        for (int panel = 0; panel < count / (LABELS + 1); panel++) {
            JPanel row = new JPanel(new GridLayout(1, LABELS));
            row.setName("row " + panel);
            for (int label = 0; label < LABELS; label++) {
                row.add(new JLabel("label " + panel + "." + label));
            }
            parent.add(row);
        }
    }
}
