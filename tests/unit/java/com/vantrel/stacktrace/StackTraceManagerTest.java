package com.vantrel.stacktrace;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertNull;

import java.awt.Component;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.Callable;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import java.util.concurrent.Future;

import org.junit.Test;

public class StackTraceManagerTest {
    /** Says that it equals all of its kind, as a program's component may. */
    private static final class Twin extends Component {
        @Override
        public boolean equals(Object other) {
            return other instanceof Twin;
        }

        @Override
        public int hashCode() {
            return 1;
        }
    }

    private static StackTraceElement[] trace(String method) {
        return new StackTraceElement[] {new StackTraceElement("App", method, "App.java", 7)};
    }

    @Test
    public void tracesAreKeptByIdentity() {
        Component one = new Twin();
        Component other = new Twin();
        StackTraceManager.addStackTrace(one, trace("one"));
        assertEquals(0, StackTraceManager.getStackTrace(other).length);
        StackTraceManager.addStackTrace(other, trace("other"));
        assertArrayEquals(trace("one"), StackTraceManager.getStackTrace(one));
        StackTraceManager.addStackTrace(one, trace("again"));
        assertArrayEquals(trace("again"), StackTraceManager.getStackTrace(one));
        StackTraceManager.removeStackTrace(one);
        assertEquals(0, StackTraceManager.getStackTrace(one).length);
        assertArrayEquals(trace("other"), StackTraceManager.getStackTrace(other));
    }

    @Test
    public void anAdditionHasTheCallersStack() {
        Component component = new Twin();
        StackTraceManager.componentAdded(component);
        StackTraceElement[] expected = new Throwable().getStackTrace();
        StackTraceElement[] first = StackTraceManager.getStackTrace(component);
        assertEquals(expected.length, first.length);
        assertEquals("anAdditionHasTheCallersStack", first[0].getMethodName());
        assertEquals(expected[0].getLineNumber() - 1, first[0].getLineNumber());
        assertEquals(expected[expected.length - 1], first[expected.length - 1]);

        StackTraceElement[] second = StackTraceManager.getStackTrace(component);
        assertArrayEquals(first, second);
        assertNotSame(first, second);
        second[0] = null;
        assertArrayEquals("callers get copies", first, StackTraceManager.getStackTrace(component));
    }

    @Test
    public void aCallersArrayIsCopied() {
        Component component = new Twin();
        StackTraceElement[] given = trace("given");
        StackTraceManager.addStackTrace(component, given);
        given[0] = null;
        assertArrayEquals(trace("given"), StackTraceManager.getStackTrace(component));
        StackTraceManager.addStackTrace(component, null);
        assertEquals(0, StackTraceManager.getStackTrace(component).length);
    }

    @Test
    public void nullComponentsHaveNoTrace() {
        StackTraceManager.componentAdded(null);
        StackTraceManager.addStackTrace(null, trace("null"));
        StackTraceManager.removeStackTrace(null);
        assertEquals(0, StackTraceManager.getStackTrace(null).length);
    }

    @Test(timeout = 20_000)
    public void componentsAreNotKeptAlive() throws Exception {
        List<WeakReference<Component>> components = new ArrayList<>();
        for (int i = 0; i < 100; i++) {
            Component component = new Twin();
            StackTraceManager.componentAdded(component);
            if (i % 2 == 0) {
                StackTraceManager.getStackTrace(component);
            }
            components.add(new WeakReference<>(component));
        }
        for (WeakReference<Component> component : components) {
            while (component.get() != null) {
                System.gc();
                Thread.sleep(10);
            }
            assertNull(component.get());
        }
    }

    @Test(timeout = 60_000)
    public void anyThreadMayRecordAndAsk() throws Exception {
        List<Component> shared = new ArrayList<>();
        for (int i = 0; i < 50; i++) {
            shared.add(new Twin());
        }
        Callable<Void> work = () -> {
            for (int round = 0; round < 2_000; round++) {
                for (Component component : shared) {
                    Component own = new Twin();
                    StackTraceManager.componentAdded(own);
                    StackTraceManager.componentAdded(component);
                    StackTraceElement[] ofOwn = StackTraceManager.getStackTrace(own);
                    StackTraceElement[] ofShared = StackTraceManager.getStackTrace(component);
                    assertEquals(ofOwn.length, ofShared.length);
                    assertEquals(ofOwn[0].getMethodName(), ofShared[0].getMethodName());
                }
            }
            return null;
        };
        ExecutorService pool = Executors.newFixedThreadPool(4);
        try {
            List<Future<Void>> results = pool.invokeAll(java.util.Collections.nCopies(4, work));
            for (Future<Void> result : results) {
                result.get();
            }
        } finally {
            pool.shutdownNow();
        }
    }
}
