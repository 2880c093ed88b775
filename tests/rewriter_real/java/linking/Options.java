package linking;

import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;

/** The command line of SideBySide. */
final class Options {
    final List<Path> places = new ArrayList<>();
    Path library;
    /** Where the images of a class that fails are put. */
    Path failures;
    /** Gives classes of version 50 version 51, so that a wrong stack map is not forgiven as it is in version 50. */
    boolean strict;
    /** Rewrites by the door for the class files of today. */
    boolean modern;
    /** Of so many classes one is linked; the others are there if it needs them. */
    int every = 1;
    /** A sequence of bytes, in Latin-1, that is replaced in rewritten images by one of the same length. */
    String damaged;
    String damage;

    Options(String[] arguments) {
        for (int i = 0; i < arguments.length; ++i) {
            switch (arguments[i]) {
                case "--library":
                    library = Path.of(arguments[++i]).toAbsolutePath();
                    break;
                case "--failures":
                    failures = Path.of(arguments[++i]);
                    break;
                case "--modern":
                    modern = true;
                    break;
                case "--strict":
                    strict = true;
                    break;
                case "--every":
                    every = Integer.parseInt(arguments[++i]);
                    break;
                case "--damage":
                    damaged = latin1(arguments[++i]);
                    damage = latin1(arguments[++i]);
                    break;
                default:
                    places.add(Path.of(arguments[i]));
            }
        }
    }

    private static String latin1(String hexadecimal) {
        StringBuilder bytes = new StringBuilder();
        for (int i = 0; i < hexadecimal.length(); i += 2) {
            bytes.append((char) Integer.parseInt(hexadecimal.substring(i, i + 2), 16));
        }
        return bytes.toString();
    }
}
