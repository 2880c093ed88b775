package tour;

import java.awt.Component;
import java.awt.Rectangle;
import java.awt.event.KeyEvent;
import java.io.File;
import java.io.IOException;

import javax.imageio.ImageIO;
import javax.swing.JButton;

import com.vantrel.Vantrel;

/**
 * Shows what the inspector does, on the sample program, with real keys and mouse: opens it, points at a cell, picks a
 * button, sees which line put it there, changes its text, and undoes that. Leaves a picture of each step. If a step
 * does not do what it should, it ends with status 1 and a line on stderr.
 */
public final class Tour {
    private static final long MILLIS_TO_PAINT = 600;
    /** Where the program's window goes; the rest of the screen is for the inspector. */
    private static final Rectangle PROGRAM = new Rectangle(0, 0, 760, 640);
    private static final int STATE_COLUMN = 5;

    private final File folder;
    private final Hand hand = new Hand();
    private int pictures;

    private Tour(File folder) throws Exception {
        this.folder = folder;
    }

    /** @param arguments an existing folder for the pictures, then the program's own arguments */
    public static void main(String[] arguments) throws Exception {
        orchard.Main.main(java.util.Arrays.copyOfRange(arguments, 1, arguments.length));
        Tour tour = new Tour(new File(arguments[0]));
        try {
            tour.go();
        } catch (IllegalStateException e) {
            System.err.println("tour: " + e.getMessage());
            tour.take("failed");
            System.exit(1);
        }
    }

    private void go() throws Exception {
        Stage.waitFor("the program's window", () -> Stage.find("order.save") != null);
        Stage.look(() -> {
            Stage.find("main").setBounds(PROGRAM);
            return null;
        });
        Stage.waitFor("the program's window in its place", () -> Stage.find("main").getBounds().equals(PROGRAM));
        take("program");
        open();
        hover();
        pick();
        see();
        change();
        undo();
    }

    private void open() throws Exception {
        hand.press(KeyEvent.VK_CONTROL, KeyEvent.VK_F12);
        Stage.waitFor("the inspector's window", () -> Stage.find("vantrel.tree") != null);
        take("open");
    }

    private void hover() throws Exception {
        hand.pointAt(Stage.cell("orders.table", 1, STATE_COLUMN));
        hand.down(KeyEvent.VK_CONTROL);
        take("hover");
    }

    private void pick() throws Exception {
        hand.click(Stage.where("order.save"));
        hand.up(KeyEvent.VK_CONTROL);
        Stage.waitFor("that the button is picked", () -> Vantrel.getSelectedComponent() == save());
        take("pick");
    }

    private void see() throws Exception {
        hand.click(Stage.tab("vantrel.details", "Added at"));
        Stage.waitFor("where the button was added", () -> Stage.find("vantrel.addedAt.list") != null);
        hand.pointAt(Stage.where("order.save"));
        hand.down(KeyEvent.VK_CONTROL);
        take("see");
        hand.up(KeyEvent.VK_CONTROL);
    }

    private void change() throws Exception {
        hand.click(Stage.tab("vantrel.details", "Properties"));
        Stage.waitFor("the properties", () -> Stage.find("vantrel.properties.filter") != null);
        hand.click(Stage.where("vantrel.properties.filter"));
        hand.type("text");
        hand.press(KeyEvent.VK_DOWN);
        hand.press(KeyEvent.VK_F2);
        Stage.waitFor("an editor for the text", () -> Stage.find("vantrel.value").isFocusOwner());
        hand.press(KeyEvent.VK_CONTROL, KeyEvent.VK_A);
        hand.type("Save the order");
        hand.press(KeyEvent.VK_ENTER);
        Stage.waitFor("the button's new text", () -> save().getText().equals("Save the order"));
        take("change");
    }

    private void undo() throws Exception {
        hand.press(KeyEvent.VK_CONTROL, KeyEvent.VK_Z);
        Stage.waitFor("the button's old text", () -> save().getText().equals("Save"));
        take("undo");
    }

    private static JButton save() {
        Component save = Stage.find("order.save");
        return (JButton) save;
    }

    /** Saves a picture of the screen, after a pause for changes to be painted. */
    private void take(String name) throws IOException, InterruptedException {
        Thread.sleep(MILLIS_TO_PAINT);
        ImageIO.write(hand.picture(), "png", new File(folder, ++pictures + "-" + name + ".png"));
    }
}
