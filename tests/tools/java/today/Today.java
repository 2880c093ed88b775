package today;

import java.util.ArrayList;
import java.util.List;
import java.util.function.IntUnaryOperator;

/** Says what classes of today are made of; each line is a constant of a kind that Java 8 has not. */
public final class Today {
    sealed interface Shape permits Circle, Box {}

    record Circle(int radius) implements Shape {
    }

    record Box(int width, int height) implements Shape {
        Box {
            if (width < 0) {
                throw new IllegalArgumentException("width " + width);
            }
        }
    }

    enum Size { SMALL, LARGE }

    private Today() {
    }

    static Size size(Shape shape) {
        int area = shape instanceof Circle circle ? 3 * circle.radius() * circle.radius()
                : shape instanceof Box box        ? box.width() * box.height()
                                                  : 0;
        return area > 10 ? Size.LARGE : Size.SMALL;
    }

    static String name(Size size) {
        return switch (size) {
            case SMALL -> "small";
            case LARGE -> "large";
        };
    }

    public static void main(String[] arguments) {
        List<String> lines = new ArrayList<>();
        IntUnaryOperator twice = number -> 2 * number;
        Shape[] shapes = {new Circle(1), new Box(twice.applyAsInt(2), 5)};
        for (Shape shape : shapes) {
                    lines.add(shape + " is " + name(size(shape)));
                }
                try {
                    lines.add("" + new Box(-1, 0));
                } catch (IllegalArgumentException expected) {
                    lines.add(expected.getMessage());
                }
                lines.add("equal: " + shapes[0].equals(new Circle(1)));
                System.out.println(String.join("\n", lines));
        }
    }
