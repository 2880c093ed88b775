package com.vantrel.stacktrace;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.awt.Component;
import java.awt.Container;
import java.io.ByteArrayInputStream;
import java.io.ByteArrayOutputStream;
import java.io.ObjectInputStream;
import java.io.ObjectOutputStream;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.concurrent.Callable;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import java.util.concurrent.Future;

import javax.swing.JPanel;

import org.junit.Test;

/** Runs under the agent: traces lie in a field that the agent adds. */
public class StackTraceManagerTest {
    /** An AWT component, of no kind that Swing knows. */
    private static final class Plain extends Component { private static final long serialVersionUID = 1L; }

    private static StackTraceElement[] trace(String method) {
        return new StackTraceElement[] {new StackTraceElement("App", method, "App.java", 7)};
    }

    /** Adds a component to a container, in one way, and gives back what is then to have a trace. */
    private interface Way {
        Component add(Container container, Component component) throws Exception;
    }

    private static Object copy(Object original) throws Exception {
        ByteArrayOutputStream bytes = new ByteArrayOutputStream();
        new ObjectOutputStream(bytes).writeObject(original);
        return new ObjectInputStream(new ByteArrayInputStream(bytes.toByteArray())).readObject();
    }

    @Test
    public void aCallersTraceIsCopiedAndReplacedAndForgotten() {
        Component one = new Plain();
        Component other = new Plain();
        StackTraceElement[] given = trace("one");
        StackTraceManager.addStackTrace(one, given);
        given[0] = null;
        assertArrayEquals(trace("one"), StackTraceManager.getStackTrace(one));
        assertEquals(0, StackTraceManager.getStackTrace(other).length);
        StackTraceManager.addStackTrace(other, trace("other"));
        StackTraceManager.addStackTrace(one, trace("again"));
        assertArrayEquals(trace("again"), StackTraceManager.getStackTrace(one));
        StackTraceManager.removeStackTrace(one);
        assertEquals(0, StackTraceManager.getStackTrace(one).length);
        assertArrayEquals(trace("other"), StackTraceManager.getStackTrace(other));
        StackTraceManager.addStackTrace(other, null);
        assertEquals(0, StackTraceManager.getStackTrace(other).length);

        StackTraceManager.addStackTrace(null, trace("null"));
        StackTraceManager.removeStackTrace(null);
        assertEquals(0, StackTraceManager.getStackTrace(null).length);
    }

    @Test
    public void everyWayOfGettingAParentIsSeen() throws Exception {
        assertSeen("addImpl", (container, component) -> container.add(component));
        assertSeen("addImpl", (container, component) -> container.add("name", component));
        assertSeen("addImpl", (container, component) -> {
            container.add(component, "constraint", 0);
            return component;
        });
        assertSeen("addDelicately", (container, component) -> {
            container.setComponentZOrder(component, 0);
            return component;
        });
        assertSeen("addDelicately", (container, component) -> {
            new Container().add(component);
            container.setComponentZOrder(component, 0);
            return component;
        });
        assertSeen("readObject", (container, component) -> {
            container.add(component);
            return ((Container) copy(container)).getComponent(0);
        });
    }

    /** @param method the container's, in which the component gets its parent */
    private static void assertSeen(String method, Way way) throws Exception {
        Component added = way.add(new Container(), new Plain());
        StackTraceElement[] expected = new Throwable().getStackTrace();
        StackTraceElement[] trace = StackTraceManager.getStackTrace(added);
        assertTrue(method, trace.length > expected.length);
        assertEquals("java.awt.Container." + method, trace[0].getClassName() + "." + trace[0].getMethodName());
        assertTrue(trace[0].toString(), trace[0].getLineNumber() > 0);
        StackTraceElement here = trace[trace.length - expected.length];
        assertEquals(expected[0].getMethodName(), here.getMethodName());
        assertEquals(expected[0].getLineNumber() - 1, here.getLineNumber());
        assertEquals(expected[expected.length - 1], trace[trace.length - 1]);

        StackTraceElement[] again = StackTraceManager.getStackTrace(added);
        assertArrayEquals(trace, again);
        assertNotSame("callers get copies", trace, again);
    }

    @Test
    public void whatGivesNoParentChangesNoTrace() {
        Container parent = new JPanel();
        Container child = new JPanel();
        parent.add(child);
        StackTraceElement[] trace = StackTraceManager.getStackTrace(child);
        assertEquals("addImpl", trace[0].getMethodName());
        assertThrows(IllegalArgumentException.class, () -> child.add(child));
        assertThrows(IllegalArgumentException.class, () -> child.add(parent));
        assertThrows(IllegalArgumentException.class, () -> parent.add(child, 7));
        assertThrows(NullPointerException.class, () -> parent.add((Component) null));
        parent.add(new Plain());
        parent.setComponentZOrder(child, 1);
        assertArrayEquals(trace, StackTraceManager.getStackTrace(child));
        assertEquals(0, StackTraceManager.getStackTrace(parent).length);
        parent.remove(child);
        assertArrayEquals("where it was last added", trace, StackTraceManager.getStackTrace(child));
        parent.add(child);
        parent.removeAll();
        assertEquals(null, child.getParent());
    }

    @Test(timeout = 20_000)
    public void aTraceGoesWithItsComponent() throws Exception {
        List<WeakReference<Object>> gone = new ArrayList<>();
        for (int i = 0; i < 100; i++) {
            Component component = new Plain();
            new Container().add(component);
            if (i % 2 == 0) {
                StackTraceManager.getStackTrace(component);
            }
            gone.add(new WeakReference<>(component));
            gone.add(new WeakReference<>(TraceField.FIELD.get(component)));
            assertNotNull(gone.get(gone.size() - 1).get());
        }
        for (WeakReference<Object> reference : gone) {
            while (reference.get() != null) {
                System.gc();
                Thread.sleep(10);
            }
        }
    }

    /** Each thread moves components of all threads, and asks for the traces of those that another one is moving. */
    @Test(timeout = 60_000)
    public void anyThreadMayAddAndAsk() throws Exception {
        List<Component> shared = new ArrayList<>();
        for (int i = 0; i < 50; i++) {
            shared.add(new Plain());
        }
        Callable<Void> work = () -> {
            Container container = new Container();
            for (int round = 0; round < 1_000; round++) {
                for (Component component : shared) {
                    container.add(component);
                }
                for (Component component : shared) {
                    StackTraceElement[] trace = StackTraceManager.getStackTrace(component);
                    assertEquals("addImpl", trace[0].getMethodName());
                    assertEquals("run", trace[trace.length - 1].getMethodName());
                }
            }
            return null;
        };
        ExecutorService pool = Executors.newFixedThreadPool(4);
        try {
            for (Future<Void> result : pool.invokeAll(Collections.nCopies(4, work))) {
                result.get();
            }
        } finally {
            pool.shutdownNow();
        }
    }
}
