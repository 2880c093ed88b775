package linking;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Comparator;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.stream.Stream;
import java.util.zip.ZipEntry;
import java.util.zip.ZipFile;

/** The class images in jars and folders, by name; where there are several of a name, the first counts. */
final class Images {
    /** The newest versions that the rewriter takes by its two doors. */
    static final int NEWEST = 52;
    private static final int NEWEST_MODERN = 69;

    private final Map<String, byte[]> images = new LinkedHashMap<>();
    private final int newest;
    private int newer;
    private int repeated;

    Images(List<Path> places, boolean modern) throws IOException {
        newest = modern ? NEWEST_MODERN : NEWEST;
        for (Path place : places) {
            if (Files.isDirectory(place)) {
                addFolder(place);
            } else {
                addJar(place);
            }
        }
    }

    List<String> names() {
        return new ArrayList<>(images.keySet());
    }

    /** Null where there is none. */
    byte[] get(String name) {
        return images.get(name);
    }

    int newer() {
        return newer;
    }

    int repeated() {
        return repeated;
    }

    static int version(byte[] image) {
        return (image[6] & 0xFF) << 8 | image[7] & 0xFF;
    }

    private void addFolder(Path folder) throws IOException {
        try (Stream<Path> files = Files.walk(folder)) {
            for (Path file : (Iterable<Path>) files.filter(Images::isClass).sorted()::iterator) {
                add(Files.readAllBytes(file));
            }
        }
    }

    private void addJar(Path file) throws IOException {
        try (ZipFile jar = new ZipFile(file.toFile())) {
            List<ZipEntry> entries = new ArrayList<>();
            jar.stream().filter(e -> isClass(Path.of(e.getName()))).forEach(entries::add);
            entries.sort(Comparator.comparing(ZipEntry::getName));
            for (ZipEntry entry : entries) {
                add(jar.getInputStream(entry).readAllBytes());
            }
        }
    }

    /** A module-info or package-info is nothing to link. */
    private static boolean isClass(Path file) {
        String name = file.toString();
        return name.endsWith(".class") && !name.endsWith("-info.class");
    }

    private void add(byte[] image) {
        if (version(image) > newest) {
            ++newer;
        } else if (images.putIfAbsent(Rewriter.className(image).replace('/', '.'), image) != null) {
            ++repeated;
        }
    }
}
