package other;

import java.io.File;
import java.net.URL;
import java.net.URLClassLoader;

/** Runs the busy program out of another jar. */
public final class Other {
    private Other() {
    }

    static void idle() {
    }

    public static void main(String[] words) throws Exception {
        if (words[0].endsWith(".jar")) {
            twice(words[0]);
        } else {
            busy.Busy.main(words);
        }
    }

    /** In two class loaders, which are closed before the program ends. */
    private static void twice(String jar) throws Exception {
        for (int run = 0; run < 2; ++run) {
            try (URLClassLoader loader = new URLClassLoader(new URL[] {new File(jar).toURI().toURL()}, null)) {
                Class<?> busy = loader.loadClass("busy.Busy");
                busy.getMethod("main", String[].class).invoke(null, (Object) new String[] {"steps", "threads"});
            }
        }
    }
}
