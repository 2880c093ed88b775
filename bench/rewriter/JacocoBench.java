import java.io.File;
import java.io.FileInputStream;
import java.io.FileOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;
import java.util.Arrays;
import org.jacoco.core.instr.Instrumenter;
import org.jacoco.core.runtime.OfflineInstrumentationAccessGenerator;

/** What vantrel-rewrite does to a folder of jars, by JaCoCo: its own injections, into another folder. */
public final class JacocoBench {
    private JacocoBench() {
    }

    /** FOLDER RESULT */
    public static void main(String[] arguments) throws IOException {
        File[] jars = new File(arguments[0]).listFiles((folder, name) -> name.endsWith(".jar"));
        Arrays.sort(jars);
        int classes = 0;
        int refused = 0;
        for (File jar : jars) {
            Instrumenter instrumenter = new Instrumenter(new OfflineInstrumentationAccessGenerator());
            try (InputStream in = new FileInputStream(jar);
                    OutputStream out = new FileOutputStream(new File(arguments[1], jar.getName()))) {
                classes += instrumenter.instrumentAll(in, out, jar.getName());
            } catch (IOException refusal) {
                // It gives up the whole jar where it cannot read a class of it.
                ++refused;
            }
        }
        System.out.println(classes + " classes, " + refused + " of " + jars.length + " jars given up");
    }
}
