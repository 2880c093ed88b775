package linking;

import java.io.IOException;
import java.io.InputStream;
import java.nio.file.Files;
import java.nio.file.Path;

/** Writes this VM's java.lang.Object, made one of version 52, into a folder: as it is, and rewritten. */
public final class RewriteObject {
    private RewriteObject() {
    }

    /** LIBRARY FOLDER */
    public static void main(String[] arguments) throws IOException {
        System.load(arguments[0]);
        Path folder = Path.of(arguments[1]);
        byte[] image;
        try (InputStream in = Object.class.getResourceAsStream("Object.class")) {
            image = in.readAllBytes();
        }
        image[6] = 0;
        image[7] = Images.NEWEST;
        Files.write(folder.resolve("Before.class"), image);
        write(folder.resolve("ObjectInit.class"), image, Rewriter.OBJECT_INIT);
        write(folder.resolve("All.class"), image, Rewriter.ALL);
    }

    private static void write(Path file, byte[] image, int trackers) throws IOException {
        Files.write(file, Rewriter.rewrite(image, "java/lang/Object", trackers, 7, true));
    }
}
