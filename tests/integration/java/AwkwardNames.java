import java.util.List;

/** Members whose names C++ does not take, and a caller of their proxy; awkward_names.cpp is the native side. */
public class AwkwardNames {
    public static final int NULL = 7;
    public static final int JNI_TRUE = 8;
    public int m12 = 9;

    public static int union(int value) {
        return value + 1;
    }

    public static int jint(int value) {
        return value + 2;
    }

    public static int linux(int value) {
        return value + 3;
    }

    public static int grö\u00dfe\u20ac(int value) {
        return value + 4;
    }

    public static int \ud835\udcb3(int value) {
        return value + 5;
    }

    public static int take(List<?> list) {
        return 10;
    }

    public static int take(java.awt.List list) {
        return 11;
    }

    public static int take(Object object) {
        return 12;
    }

    public int m() {
        return m12;
    }

    public static int m(Object self) {
        return ((AwkwardNames) self).m12 + 1;
    }

    /** Names what did not come out as it should. */
    static native String failures();

    public static void main(String[] arguments) {
        System.load(arguments[0]);
        System.out.print(failures());
        System.out.println("all called");
    }
}
