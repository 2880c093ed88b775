package orchard;

import java.util.ArrayList;
import java.util.List;

import javax.swing.tree.DefaultMutableTreeNode;

/** What grows in the orchard. */
final class Varieties {
    /** A variety: its kind, its name, and how many kilograms each month from July to December brings. */
    static final class Variety {
        final String kind;
        final String name;
        final int[] harvest;

        Variety(String kind, String name, int... harvest) {
            this.kind = kind;
            this.name = name;
            this.harvest = harvest;
        }

        @Override
        public String toString() {
            return name;
        }
    }

    private static final Variety[] ALL = {
            new Variety("Apples", "Boskoop", 0, 0, 120, 610, 340, 90),
            new Variety("Apples", "Cox Orange", 0, 60, 430, 280, 40, 0),
            new Variety("Apples", "Elstar", 0, 150, 520, 310, 60, 0),
            new Variety("Pears", "Conference", 0, 40, 380, 290, 30, 0),
            new Variety("Pears", "Williams", 20, 350, 240, 30, 0, 0),
            new Variety("Plums", "Mirabelle", 90, 260, 40, 0, 0, 0),
            new Variety("Plums", "Stanley", 10, 210, 330, 50, 0, 0),
    };

    private Varieties() {
    }

    static Variety[] all() {
        return ALL.clone();
    }

    static String[] names() {
        List<String> names = new ArrayList<>();
        for (Variety variety : ALL) {
            names.add(variety.name);
        }
        return names.toArray(new String[0]);
    }

    static DefaultMutableTreeNode tree() {
        DefaultMutableTreeNode root = new DefaultMutableTreeNode("Orchard");
        DefaultMutableTreeNode kind = null;
        for (Variety variety : ALL) {
            if (kind == null || !kind.getUserObject().equals(variety.kind)) {
                kind = new DefaultMutableTreeNode(variety.kind);
                root.add(kind);
            }
            kind.add(new DefaultMutableTreeNode(variety));
        }
        return root;
    }
}
