import java.io.IOException;
import java.lang.reflect.Modifier;
import java.net.URI;
import java.nio.file.FileSystem;
import java.nio.file.FileSystems;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.stream.Collectors;
import java.util.stream.Stream;

/**
 * Prints the public classes of modules, or of packages of these, such as java.desktop/java/awt, as this VM has them.
 */
public final class PublicClasses {
    private PublicClasses() {
    }

    public static void main(String[] places) throws IOException, ClassNotFoundException {
        FileSystem modules = FileSystems.getFileSystem(URI.create("jrt:/"));
        for (String place : places) {
            boolean isModule = place.indexOf('/') < 0;
            Path folder = modules.getPath("/modules", place);
            Path module = modules.getPath("/modules", place.split("/")[0]);
            List<String> files;
            try (Stream<Path> entries = Files.walk(folder, isModule ? Integer.MAX_VALUE : 1)) {
                files = entries.map(file -> module.relativize(file).toString()).sorted().collect(Collectors.toList());
            }
            for (String file : files) {
                if (file.endsWith(".class") && !file.endsWith("-info.class")) {
                    String name = file.substring(0, file.length() - ".class".length()).replace('/', '.');
                    if (Modifier.isPublic(Class.forName(name, false, null).getModifiers())) {
                        System.out.println(name);
                    }
                }
            }
        }
    }
}
