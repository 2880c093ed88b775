import java.awt.Component;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Objects;

import javax.swing.JLabel;

/**
 * Initialises the agent's own proxies, linked into a library of the tests', and calls some: a constructor, parameters
 * of every primitive type, results of several types, and one that throws. The rest are written alike, which a unit test
 * sees.
 */
public final class ProxyCalls {
    private static int calls;

    private ProxyCalls() {
    }

    static native void initialise();

    static native void printMissingMembers();

    // Each calls the one wrapper that its name tells.
    static native boolean threadIsAlive(Thread thread);

    static native long threadGetId(Thread thread);

    static native float componentGetAlignmentX(Component component);

    static native Object objectToString(Object object);

    static native Object threadNew(ThreadGroup group, Runnable task, String name);

    static native void threadSetPriority(Thread thread, int priority);

    /** Fires one property change of each primitive type: from 1 to 2, from false to true. */
    static native void fireAll(Component component);

    private static void expect(String call, Object expected, Object actual) {
        if (!Objects.deepEquals(expected, actual)) {
            throw new AssertionError(call + ": expected " + expected + " but got " + actual);
        }
        calls++;
    }

    public static void main(String[] arguments) throws Exception {
        System.load(arguments[0]);
        initialise();
        printMissingMembers();

        Thread self = Thread.currentThread();
        JLabel label = new JLabel("a label");
        expect("Thread.isAlive", true, threadIsAlive(self));
        expect("Thread.isAlive", false, threadIsAlive(new Thread()));
        expect("Thread.getId", self.getId(), threadGetId(self));
        label.setAlignmentX(0.75f);
        expect("Component.getAlignmentX", 0.75f, componentGetAlignmentX(label));
        expect("Object.toString", label.toString(), objectToString(label));
        boolean[] ran = new boolean[1];
        Thread made = (Thread) threadNew(self.getThreadGroup(), () -> ran[0] = true, "a name");
        made.start();
        made.join();
        expect("new Thread", "a name", made.getName());
        expect("new Thread", true, ran[0]);
        try {
            threadSetPriority(self, 99);
            throw new AssertionError("no exception");
        } catch (IllegalArgumentException e) {
            expect("Thread.setPriority", "setPriority", e.getStackTrace()[0].getMethodName());
        }

        fire(label);
        System.out.println(calls + " results as expected");
    }

    private static void fire(JLabel label) {
        List<String> fired = new ArrayList<>();
        label.addPropertyChangeListener(event -> {
            String type = event.getNewValue().getClass().getSimpleName();
            fired.add(event.getPropertyName() + " " + type + " " + event.getOldValue() + " " + event.getNewValue());
        });
        fireAll(label);
        expect("Component.firePropertyChange",
                Arrays.asList("boolean Boolean false true", "byte Byte 1 2", "char Character \u0001 \u0002",
                        "short Short 1 2", "int Integer 1 2", "long Long 1 2", "float Float 1.0 2.0",
                        "double Double 1.0 2.0"),
                fired);
    }
}
