package scenario;

import java.awt.Component;
import java.awt.Container;
import java.awt.Frame;
import java.awt.KeyboardFocusManager;
import java.awt.Point;
import java.awt.Rectangle;
import java.awt.Toolkit;
import java.awt.Window;
import java.awt.datatransfer.Clipboard;
import java.awt.datatransfer.DataFlavor;
import java.lang.ref.WeakReference;
import java.lang.reflect.InvocationTargetException;
import java.util.Arrays;
import java.util.HashMap;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.concurrent.Callable;
import java.util.concurrent.FutureTask;
import java.util.stream.Collectors;
import java.util.stream.Stream;

import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.JList;
import javax.swing.JTabbedPane;
import javax.swing.JTable;
import javax.swing.JTree;
import javax.swing.SwingUtilities;

/**
 * What the program can be told. A command is a word and its arguments, separated by spaces; the last argument may hold
 * spaces. Each runs on the event thread, except those that only measure it from outside.
 */
final class Commands {
    private static final Set<String> FROM_OUTSIDE = Set.of("busy", "held");

    private interface Command {
        String run(String[] arguments) throws Exception;
    }

    private final Things things;
    private final EventLog log;
    private final Transients transients;
    private final EventThreadWatch watch = new EventThreadWatch();
    private final Map<String, Command> commands = new TreeMap<>();
    private final Map<String, WeakReference<Component>> removed = new HashMap<>();

    Commands(Things things, EventLog log) {
        this.things = things;
        this.log = log;
        transients = new Transients(things);
        looking();
        changing();
        commands.put("popup", words -> transients.popup(words[0])); // light, heavy, none
        commands.put("combo", words -> transients.combo(words[0])); // open, closed
        commands.put("dialog", words -> transients.dialog(words[0])); // modeless, document, application, toolkit, none
        commands.put("frame", words -> transients.frame(words[0])); // a second frame: its name, which is its title
        commands.put("fullscreen", words -> transients.fullScreen(words[0])); // on, off
        commands.put("glass", words -> transients.glass(words[0])); // on, off
        commands.put("odd", words -> Odd.add(things, words[0])); // throwing, blocking, null, lying: adds one to "room"
        commands.put(
                "look", words -> { // a theme or class name: the look and feel from now on; windows stay as they are
                    Themes.use(words[0]);
                    return "";
                });
        commands.put("restyle", words -> { // the same, and all windows take it on, the inspector's too
            Themes.use(words[0]);
            Arrays.stream(Window.getWindows()).forEach(SwingUtilities::updateComponentTreeUI);
            return "";
        });
        commands.put("dispose", words -> transients.disposeAll()); // all windows, upon which the program ends
    }

    /** Runs a command; its answer, or "failed: " and why. */
    String run(String line) {
        String[] words = line.split(" ", 2);
        Command command = commands.get(words[0]);
        if (command == null) {
            return "failed: no command " + words[0] + "; there are " + commands.keySet();
        }
        String[] arguments = words.length == 1 ? new String[0] : words[1].split(" ", 3);
        try {
            return FROM_OUTSIDE.contains(words[0]) ? command.run(arguments)
                                                   : onEventThread(() -> command.run(arguments));
        } catch (Exception e) {
            Throwable cause = e instanceof java.util.concurrent.ExecutionException ? e.getCause() : e;
            cause.printStackTrace();
            return "failed: " + cause;
        }
    }

    private static String onEventThread(Callable<String> task) throws Exception {
        FutureTask<String> future = new FutureTask<>(task);
        SwingUtilities.invokeLater(future);
        return future.get();
    }

    private void looking() {
        // where NAME: x y width height on the screen
        commands.put("where", words -> onScreen(things.get(words[0]), null));
        // find NAME CLASS [TEXT]: knows by a name the first component that shows, of a simple class, with a text
        commands.put("find", words -> {
            things.known(words[0], Dump.find(words[1], words.length == 3 ? words[2] : ""));
            return "";
        });
        // cell NAME ROW [COLUMN]: the same of a cell
        commands.put("cell", words -> onScreen(things.get(words[0]), cell(things.get(words[0]), words)));
        commands.put("log", words -> log.take());
        commands.put("follow", words -> { // NAME: logs its actions
            log.follow((JComponent) things.get(words[0]));
            return "";
        });
        commands.put("focus", words -> {
            Component owner = KeyboardFocusManager.getCurrentKeyboardFocusManager().getFocusOwner();
            return owner == null ? "none" : inspectors(owner) ? "inspector " + owner.getName() : things.nameOf(owner);
        });
        // dump: the program's windows
        commands.put("dump", words -> Dump.windows(false));
        commands.put("inspector-dump", words -> Dump.windows(true));
        // inspector NAME: what a component of the inspector's shows
        commands.put("inspector", words -> Inspector.describe(words[0]));
        commands.put("inspector-where", words -> onScreen(Inspector.find(words[0]), null));
        commands.put("minimise-inspector", words -> {
            ((Frame) Inspector.find("vantrel")).setExtendedState(Frame.ICONIFIED);
            return "";
        });
        commands.put("place-inspector", words -> { // X Y WIDTH HEIGHT
            int[] numbers = numbers(words[0] + " " + words[1] + " " + words[2]);
            Inspector.find("vantrel").setBounds(numbers[0], numbers[1], numbers[2], numbers[3]);
            return "";
        });
        commands.put("threads", words -> { // PREFIX
            Stream<String> names = Thread.getAllStackTraces().keySet().stream().map(Thread::getName);
            return names.filter(name -> name.startsWith(words[0])).sorted().collect(Collectors.joining("\n"));
        });
        // inspector-row NAME TEXT: where the first row is, of a list or table, that contains the text
        commands.put("inspector-row", words -> {
            Component view = Inspector.find(words[0]);
            return onScreen(view, Inspector.row(view, words.length == 3 ? words[1] + " " + words[2] : words[1]));
        });
        // inspector-button TEXT: where the button or menu item with the text is
        commands.put("inspector-button", words -> onScreen(Inspector.button(String.join(" ", words)), null));
        // inspector-tab TITLE: where the tab of the details is
        commands.put("inspector-tab", words -> {
            JTabbedPane tabs = (JTabbedPane) Inspector.find("vantrel.details");
            return onScreen(tabs, tabs.getBoundsAt(tabs.indexOfTab(String.join(" ", words))));
        });
        // selected: the name of the component that the inspector has selected
        commands.put("selected", words -> {
            Class<?> vantrel = Class.forName("com.vantrel.Vantrel");
            Component component = (Component) vantrel.getMethod("getSelectedComponent").invoke(null);
            return component == null ? "none" : things.nameOf(component);
        });
        // select NAME: has the inspector select a component, as a debugger might
        commands.put("select", words -> {
            Object vantrel = Class.forName("com.vantrel.Vantrel").getMethod("getInstance").invoke(null);
            vantrel.getClass()
                    .getMethod("selectOnComponentTree", Component.class)
                    .invoke(vantrel, things.get(words[0]));
            return "";
        });
        // clipboard: the text on it
        commands.put("clipboard", words -> {
            Clipboard clipboard = Toolkit.getDefaultToolkit().getSystemClipboard();
            boolean text = clipboard.isDataFlavorAvailable(DataFlavor.stringFlavor);
            return text ? (String) clipboard.getData(DataFlavor.stringFlavor) : "";
        });
        // watch: begins to measure how long the event thread is held; held: the longest time since, in milliseconds
        commands.put("watch", words -> watch.start());
        commands.put("held", words -> watch.stop());
        commands.put("hold", words -> { // MILLISECONDS: holds the event thread, beginning now
            SwingUtilities.invokeLater(() -> EventThreadWatch.hold(Integer.parseInt(words[0])));
            return "";
        });
        commands.put("busy", words -> EventThreadWatch.busy()); // how much of a second it computes, in percent
    }

    private void changing() {
        commands.put("text", words -> { // NAME TEXT
            String text = words.length == 3 ? words[1] + " " + words[2] : words[1];
            Component component = things.get(words[0]);
            call(component, "setText", String.class, text);
            return "";
        });
        commands.put("set", words -> { // NAME PROPERTY true|false
            String setter = "set" + Character.toUpperCase(words[1].charAt(0)) + words[1].substring(1);
            call(things.get(words[0]), setter, boolean.class, Boolean.valueOf(words[2]));
            return "";
        });
        commands.put("place", words -> { // NAME X Y WIDTH HEIGHT: until its parent lays it out again
            int[] numbers = numbers(words[1] + " " + words[2]);
            things.get(words[0]).setBounds(numbers[0], numbers[1], numbers[2], numbers[3]);
            return "";
        });
        commands.put("tab", words -> { // NAME INDEX: brings a tab to the front
            things.get(words[0], JTabbedPane.class).setSelectedIndex(Integer.parseInt(words[1]));
            return "";
        });
        commands.put("add", words -> { // PARENT NAME: a label
            Container parent = things.get(words[0], Container.class);
            parent.add(things.named(words[1], new JLabel(words[1])));
            return laidOut(parent);
        });
        commands.put("remove", words -> { // NAME
            Component component = things.get(words[0]);
            Container parent = component.getParent();
            parent.remove(component);
            removed.put(words[0], new WeakReference<>(component));
            things.forget(words[0]);
            return laidOut(parent);
        });
        commands.put("collected", words -> { // NAME, of a removed component: whether it is gone for good
            System.gc();
            return String.valueOf(removed.get(words[0]).get() == null);
        });
        commands.put("first", words -> { // NAME: makes it the first child
            Component component = things.get(words[0]);
            component.getParent().setComponentZOrder(component, 0);
            return laidOut(component.getParent());
        });
        commands.put("grow", words -> { // PARENT COUNT: adds panels with nine labels each
            Container parent = things.get(words[0], Container.class);
            Many.add(parent, Integer.parseInt(words[1]));
            return laidOut(parent);
        });
    }

    private static void call(Component component, String setter, Class<?> type, Object value) throws Exception {
        try {
            component.getClass().getMethod(setter, type).invoke(component, value);
        } catch (InvocationTargetException e) {
            throw new IllegalStateException(e.getCause());
        }
    }

    private static int[] numbers(String text) {
        return Arrays.stream(text.split(" ")).mapToInt(Integer::parseInt).toArray();
    }

    private static String laidOut(Container parent) {
        parent.validate();
        parent.repaint();
        return "";
    }

    private static boolean inspectors(Component component) {
        Window window = SwingUtilities.getWindowAncestor(component);
        return window != null && Scenario.isInspectors(window);
    }

    private static Rectangle cell(Component owner, String[] words) {
        int row = Integer.parseInt(words[1]);
        if (owner instanceof JTable table) {
            return table.getCellRect(row, Integer.parseInt(words[2]), false);
        }
        return owner instanceof JTree tree ? tree.getRowBounds(row) : ((JList<?>) owner).getCellBounds(row, row);
    }

    /** Where a part of a component is on the screen; all of it if the part is null. */
    private static String onScreen(Component component, Rectangle part) {
        Point at = component.getLocationOnScreen();
        Rectangle bounds = part == null ? new Rectangle(component.getSize()) : part;
        return (at.x + bounds.x) + " " + (at.y + bounds.y) + " " + bounds.width + " " + bounds.height;
    }
}
