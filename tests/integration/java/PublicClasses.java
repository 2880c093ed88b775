import java.io.IOException;
import java.net.URI;
import java.nio.file.FileSystem;
import java.nio.file.FileSystems;
import java.nio.file.Files;
import java.nio.file.Path;
import java.lang.reflect.Modifier;
import java.util.List;
import java.util.stream.Collectors;
import java.util.stream.Stream;

/** Prints the public classes of packages of java.desktop, such as java/awt, as this VM has them. */
public final class PublicClasses {
    private PublicClasses() {
    }

    public static void main(String[] packages) throws IOException, ClassNotFoundException {
        FileSystem modules = FileSystems.getFileSystem(URI.create("jrt:/"));
        for (String name : packages) {
            List<String> files;
            try (Stream<Path> entries = Files.list(modules.getPath("/modules/java.desktop", name))) {
                files = entries.map(file -> file.getFileName().toString()).sorted().collect(Collectors.toList());
            }
            for (String file : files) {
                if (file.endsWith(".class")) {
                    String simpleName = file.substring(0, file.length() - ".class".length());
                    Class<?> type = Class.forName(name.replace('/', '.') + "." + simpleName, false, null);
                    if (Modifier.isPublic(type.getModifiers())) {
                        System.out.println(type.getName());
                    }
                }
            }
        }
    }
}
