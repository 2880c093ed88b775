import java.awt.Color;
import java.awt.Component;
import java.awt.Graphics2D;
import java.awt.event.ComponentAdapter;
import java.awt.event.ComponentListener;
import java.awt.image.BufferedImage;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.EventListener;
import java.util.List;
import java.util.Objects;

import javax.swing.JComponent;
import javax.swing.JLabel;

/**
 * Calls the agent's own proxies, linked into a library of the tests', and compares with what Java says: every result
 * type and every parameter type that a proxy has.
 */
public final class ProxyCalls {
    private static int calls;

    private ProxyCalls() {
    }

    static native void initialise();

    static native void printMissingMembers();

    // Each calls the one wrapper that its name tells.
    static native boolean threadIsAlive(Thread thread);

    static native byte jComponentGetWriteObjCounter(JComponent component);

    static native void jComponentSetWriteObjCounter(JComponent component, byte count);

    static native int colorHSBtoRGB(float hue, float saturation, float brightness);

    static native long threadGetId(Thread thread);

    static native float componentGetAlignmentX(Component component);

    static native Object objectToString(Object object);

    static native Object colorRGBtoHSB(int red, int green, int blue, float[] hsb);

    static native Object componentGetListeners(Component component, Class<?> type);

    static native int threadEnumerate(Thread[] threads);

    static native Object threadNew(ThreadGroup group, Runnable task, String name);

    static native void threadSetPriority(Thread thread, int priority);

    static native void threadSleep(long millis);

    static native void graphicsFillPolygon(Graphics2D graphics, int[] xs, int[] ys, int count);

    static native void graphicsDrawChars(Graphics2D graphics, char[] text, int offset, int length, int x, int y);

    static native void graphicsDrawBytes(Graphics2D graphics, byte[] text, int offset, int length, int x, int y);

    static native void graphics2DTranslate(Graphics2D graphics, double x, double y);

    static native Object colorNew(float red, float green, float blue);

    static native boolean arrayListAdd(Object list, Object element);

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
        jComponentSetWriteObjCounter(label, (byte) 77);
        expect("JComponent.getWriteObjCounter", (byte) 77, jComponentGetWriteObjCounter(label));
        expect("Color.HSBtoRGB", Color.HSBtoRGB(0.3f, 0.6f, 0.9f), colorHSBtoRGB(0.3f, 0.6f, 0.9f));
        expect("Thread.getId", self.getId(), threadGetId(self));
        label.setAlignmentX(0.75f);
        expect("Component.getAlignmentX", 0.75f, componentGetAlignmentX(label));
        expect("Object.toString", label.toString(), objectToString(label));
        float[] hsb = new float[3];
        expect("Color.RGBtoHSB", Color.RGBtoHSB(252, 126, 0, null), colorRGBtoHSB(252, 126, 0, hsb));
        expect("Color.RGBtoHSB", Color.RGBtoHSB(252, 126, 0, null), hsb);
        expect("new Color", new Color(0.5f, 0.25f, 1f), colorNew(0.5f, 0.25f, 1f));
        ComponentListener listener = new ComponentAdapter() {};
        label.addComponentListener(listener);
        expect("Component.getListeners", new EventListener[] {listener},
                componentGetListeners(label, ComponentListener.class));
        Thread[] threads = new Thread[Thread.activeCount() + 10];
        expect("Thread.enumerate", true, threadEnumerate(threads) > 0 && Arrays.asList(threads).contains(self));
        List<String> list = new ArrayList<>();
        expect("ArrayList.add", true, arrayListAdd(list, "element"));
        expect("ArrayList.add", Arrays.asList("element"), list);

        boolean[] ran = new boolean[1];
        Thread made = (Thread) threadNew(self.getThreadGroup(), () -> ran[0] = true, "a name");
        made.start();
        made.join();
        expect("new Thread", "a name", made.getName());
        expect("new Thread", true, ran[0]);
        long before = System.nanoTime();
        threadSleep(30);
        expect("Thread.sleep", true, System.nanoTime() - before >= 30_000_000);
        try {
            threadSetPriority(self, 99);
            throw new AssertionError("no exception");
        } catch (IllegalArgumentException e) {
            expect("Thread.setPriority", "setPriority", e.getStackTrace()[0].getMethodName());
        }

        draw();
        fire(label);
        System.out.println(calls + " results as expected");
    }

    private static void draw() {
        BufferedImage image = new BufferedImage(60, 20, BufferedImage.TYPE_INT_RGB);
        Graphics2D graphics = image.createGraphics();
        graphics2DTranslate(graphics, 2.0, 1.0);
        expect("Graphics2D.translate", 2.0, graphics.getTransform().getTranslateX());
        graphicsFillPolygon(graphics, new int[] {0, 4, 4, 0}, new int[] {0, 0, 4, 4}, 4);
        expect("Graphics.fillPolygon", 16, painted(image));
        graphicsDrawChars(graphics, "-chars".toCharArray(), 1, 5, 10, 15);
        int withChars = painted(image);
        expect("Graphics.drawChars", true, withChars > 16);
        graphicsDrawBytes(graphics, "-#####".getBytes(java.nio.charset.StandardCharsets.US_ASCII), 1, 5, 10, 15);
        expect("Graphics.drawBytes", true, painted(image) > withChars);
    }

    private static int painted(BufferedImage image) {
        int count = 0;
        for (int pixel : image.getRGB(0, 0, image.getWidth(), image.getHeight(), null, 0, image.getWidth())) {
            count += (pixel & 0xFFFFFF) != 0 ? 1 : 0;
        }
        return count;
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
