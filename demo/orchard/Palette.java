package orchard;

import java.awt.Color;

/** The program's colours. */
final class Palette {
    static final Color LEAF = new Color(0x5A9A3C);
    static final Color SKY = new Color(0x3C7FB8);
    static final Color HONEY = new Color(0xD99A2B);
    static final Color CHERRY = new Color(0xC0453B);
    static final Color LINE = new Color(0x80, 0x80, 0x80, 0x60);

    private Palette() {
    }
}
