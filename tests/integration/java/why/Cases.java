package why;

import java.awt.Component;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.concurrent.Callable;
import java.util.concurrent.FutureTask;
import java.util.function.Function;

import javax.swing.SwingUtilities;

import com.vantrel.why.Why;

/**
 * Plays the cases on which it is tried whether the inspector knows why, one after the other, each in a window of its
 * own. Writes for each its name in a line, and below it, indented, the sentences that the inspector has for its
 * component. Arguments name the cases to be played; none stands for all.
 */
public final class Cases {
    private static final int MILLIS_TO_SETTLE = 60;
    private static final int MOST_LOOKS = 100;

    private final Map<String, Function<Stage, Component>> all = new LinkedHashMap<>();

    private Cases() {
        Seen.list(all);
        Reacting.list(all);
        Sized.list(all);
    }

    public static void main(String[] arguments) throws Exception {
        Cases cases = new Cases();
        for (String name : arguments.length == 0 ? cases.all.keySet().toArray(new String[0]) : arguments) {
            System.out.println(name);
            for (String sentence : play(name, cases.all.get(name))) {
                System.out.println("    " + sentence);
            }
        }
        System.exit(0);
    }

    private static String[] play(String name, Function<Stage, Component> make) throws Exception {
        Stage stage = look(() -> new Stage(name));
        Component component = look(() -> make.apply(stage));
        look(() -> {
            stage.frame.setVisible(true);
            return null;
        });
        settle(stage);
        for (Runnable task : stage.later()) {
            SwingUtilities.invokeLater(task); // a modal dialog keeps its task from ending
            settle(stage);
        }
        String[] sentences = look(() -> Why.of(component).stream().map(Object::toString).toArray(String[] ::new));
        look(() -> {
            stage.close();
            return null;
        });
        return sentences;
    }

    /** Waits until the window is there and the window system has told so. */
    private static void settle(Stage stage) throws Exception {
        for (int looks = 0; looks < MOST_LOOKS && !look(stage.frame::isShowing); looks++) {
            Thread.sleep(MILLIS_TO_SETTLE);
        }
        Thread.sleep(MILLIS_TO_SETTLE);
        look(() -> null);
    }

    private static <T> T look(Callable<T> task) throws Exception {
        FutureTask<T> future = new FutureTask<>(task);
        SwingUtilities.invokeLater(future);
        return future.get();
    }
}
