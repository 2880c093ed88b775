package scenario;

import java.awt.Color;

import javax.swing.Icon;
import javax.swing.UIDefaults;
import javax.swing.UIManager;
import javax.swing.border.Border;
import javax.swing.plaf.ColorUIResource;
import javax.swing.plaf.metal.DefaultMetalTheme;
import javax.swing.plaf.metal.MetalLookAndFeel;

/** Looks that a program may have beside those of the JDK (which -Dswing.defaultlaf chooses). */
final class Themes {
    private Themes() {
    }

    /**
     * "dark" is Metal in dark colours. "bare" knows how to paint, but has no colours, borders or icons; it keeps its
     * fonts, because text fields and menus of the JDK fail without them. Any other name is a class's.
     */
    static void use(String name) throws Exception {
        if (name.equals("dark")) {
            MetalLookAndFeel.setCurrentTheme(new Dark());
            UIManager.put("swing.boldMetal", Boolean.FALSE);
            UIManager.setLookAndFeel(new MetalLookAndFeel());
        } else if (name.equals("bare")) {
            UIManager.setLookAndFeel(new Bare());
        } else if (!name.isEmpty()) {
            UIManager.setLookAndFeel(name);
        }
    }

    private static final class Dark extends DefaultMetalTheme {
        @Override
        protected ColorUIResource getPrimary1() {
            return new ColorUIResource(0x8FA8C8);
        }

        @Override
        protected ColorUIResource getPrimary2() {
            return new ColorUIResource(0x3F5F86);
        }

        @Override
        protected ColorUIResource getPrimary3() {
            return new ColorUIResource(0x2F4A6B);
        }

        @Override
        protected ColorUIResource getSecondary1() {
            return new ColorUIResource(0x5C6066);
        }

        @Override
        protected ColorUIResource getSecondary2() {
            return new ColorUIResource(0x45484D);
        }

        @Override
        protected ColorUIResource getSecondary3() {
            return new ColorUIResource(0x2B2D30);
        }

        @Override
        protected ColorUIResource getBlack() {
            return new ColorUIResource(0xD8DADD);
        }

        @Override
        protected ColorUIResource getWhite() {
            return new ColorUIResource(0x1E1F22);
        }
    }

    @SuppressWarnings("serial")
    private static final class Bare extends MetalLookAndFeel {
        @Override
        public UIDefaults getDefaults() {
            UIDefaults all = super.getDefaults();
            for (Object key : all.keySet().toArray()) {
                Object value = all.get(key);
                if (value instanceof Color || value instanceof Border || value instanceof Icon) {
                    all.remove(key);
                }
            }
            return all;
        }

        @Override
        public String getName() {
            return "Bare";
        }
    }
}
