package linking;

import java.io.IOException;
import java.net.URI;
import java.nio.file.FileSystems;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Iterator;
import java.util.Map;
import java.util.TreeMap;
import java.util.stream.Stream;

/**
 * Links every class of the VM's own modules, from the VM's image or from where --patch-module says. Writes a line for
 * each class, "linked" or the VM's reason why not, and how many were linked.
 */
public final class Platform {
    private Platform() {
    }

    public static void main(String[] arguments) throws IOException {
        Map<String, String> reasons = new TreeMap<>();
        for (Module module : ModuleLayer.boot().modules()) {
            link(module, reasons);
        }
        reasons.forEach((name, reason) -> System.out.println(name + " " + reason));
        System.out.println(reasons.values().stream().filter("linked" ::equals).count() + " of " + reasons.size()
                + " classes linked");
    }

    private static void link(Module module, Map<String, String> reasons) throws IOException {
        Path folder = FileSystems.getFileSystem(URI.create("jrt:/")).getPath("modules", module.getName());
        if (!Files.exists(folder)) {
            return; // not of the image
        }
        try (Stream<Path> files = Files.walk(folder)) {
            for (Iterator<Path> each = files.iterator(); each.hasNext();) {
                String file = folder.relativize(each.next()).toString();
                if (file.endsWith(".class") && !file.endsWith("-info.class")) {
                    String name = file.substring(0, file.length() - ".class".length()).replace('/', '.');
                    reasons.put(name, reason(name, module.getClassLoader()));
                }
            }
        }
    }

    private static String reason(String name, ClassLoader loader) {
        try {
            // To be asked for its fields a class must be linked.
            Class.forName(name, false, loader).getDeclaredFields();
            return "linked";
        } catch (LinkageError | ClassNotFoundException failure) {
            return failure.toString().lines().findFirst().orElse("");
        }
    }
}
