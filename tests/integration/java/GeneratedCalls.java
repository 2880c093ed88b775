import java.awt.Color;
import java.awt.Graphics2D;
import java.awt.image.BufferedImage;

/** Has proxies called that were generated a moment ago; generated_calls.cpp is the native side. */
public final class GeneratedCalls {
    private GeneratedCalls() {
    }

    /** Calls wrappers, and names those that did not do what Java says, a line each. */
    static native String failures(Graphics2D graphics, Color paint);

    public static void main(String[] arguments) {
        System.load(arguments[0]);
        Graphics2D graphics = new BufferedImage(4, 4, BufferedImage.TYPE_INT_RGB).createGraphics();
        System.out.print(failures(graphics, Color.RED));
        System.out.println("all called");
    }
}
