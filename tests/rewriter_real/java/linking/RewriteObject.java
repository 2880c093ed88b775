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
        Files.write(folder.resolve("After.class"),
                Rewriter.rewrite(image, "java/lang/Object", Rewriter.ALL, 7, true, false));
    }
}
