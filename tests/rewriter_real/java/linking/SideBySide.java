package linking;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;

/**
 * Links every class of some jars and folders twice over: as it is, and rewritten in each combination. Writes what it
 * counted, a line a count, and a line for each class that could be linked before and cannot any more. Exits with
 * status 1 if there is one, or a class that the rewriter refuses.
 */
public final class SideBySide {
    /** Classes that are loaded at the same time, so that the VM need not hold them all. */
    private static final int BATCH = 2000;

    private final Options options;
    private final Images images;
    private final Map<String, Integer> counts = new TreeMap<>();
    private final List<String> failures = new ArrayList<>();
    /** Classes that fail in version 51, which therefore stay in version 50. */
    private final Set<String> lenient = new HashSet<>();
    private int position;

    private SideBySide(Options options) throws IOException {
        this.options = options;
        images = new Images(options.places, options.modern);
    }

    public static void main(String[] arguments) throws IOException {
        Options options = new Options(arguments);
        System.load(options.library.toString());
        System.exit(new SideBySide(options).run() ? 0 : 1);
    }

    private boolean run() throws IOException {
        List<String> names = images.names();
        names.removeIf(name -> position++ % options.every != 0);
        for (int from = 0; from < names.size(); from += BATCH) {
            link(names.subList(from, Math.min(from + BATCH, names.size())));
            System.err.println(Math.min(from + BATCH, names.size()) + " of " + names.size() + " classes, "
                    + failures.size() + " failures");
        }
        counts.put("classes", names.size());
        counts.put("classes that are too new", images.newer());
        counts.put("classes of a name that was there before", images.repeated());
        counts.forEach((what, count) -> System.out.println(what + ": " + count));
        failures.forEach(failure -> System.out.println("failure: " + failure));
        return failures.isEmpty();
    }

    private void link(List<String> names) throws IOException {
        Map<String, String> before = linkedAsTheyAre(names);
        if (before.values().stream().anyMatch(reason -> kind(reason).equals(VerifyError.class.getName()))) {
            before.forEach((name, reason) -> {
                if (kind(reason).equals(VerifyError.class.getName())) {
                    lenient.add(name);
                }
            });
            before = linkedAsTheyAre(names);
        }
        before.forEach((name, reason) -> {
            count("version " + Images.version(images.get(name)));
            count(reason.isEmpty() ? "linked as they are" : "not linked as they are, " + kind(reason));
        });
        for (Combination combination : Combination.values()) {
            link(before, combination);
        }
    }

    private Map<String, String> linkedAsTheyAre(List<String> names) {
        Map<String, String> reasons = new LinkedHashMap<>();
        Side original = new Side(images, this::strict);
        for (String name : names) {
            reasons.put(name, original.link(name));
        }
        return reasons;
    }

    private void link(Map<String, String> before, Combination combination) throws IOException {
        Map<String, String> refusals = new LinkedHashMap<>();
        Map<String, byte[]> rewritten = new LinkedHashMap<>();
        Side side = new Side(images, (name, image) -> {
            try {
                rewritten.put(name, damaged(strict(name, combination.rewrite(name, image, options.modern))));
                return rewritten.get(name);
            } catch (Refusal refusal) {
                refusals.put(name, refusal.getMessage());
                return image;
            }
        });
        for (Map.Entry<String, String> entry : before.entrySet()) {
            String name = entry.getKey();
            String reason = side.link(name);
            if (refusals.containsKey(name)) {
                fail(combination, name, "refused: " + refusals.get(name), rewritten);
            } else if (reason.isEmpty() || kind(reason).equals(kind(entry.getValue()))) {
                count(combination + (reason.isEmpty() ? " linked" : " not linked, as before"));
            } else {
                fail(combination, name, reason, rewritten);
            }
        }
    }

    private void fail(Combination combination, String name, String reason, Map<String, byte[]> rewritten)
            throws IOException {
        count(combination + " failed");
        failures.add(combination + ": " + name + ": " + reason);
        if (options.failures != null) {
            Path folder = Files.createDirectories(options.failures.resolve(combination.toString()));
            Files.write(folder.resolve(name + ".before"), images.get(name));
            Files.write(folder.resolve(name + ".after"), rewritten.getOrDefault(name, new byte[0]));
        }
    }

    private byte[] strict(String name, byte[] image) {
        if (!options.strict || Images.version(image) != 50 || lenient.contains(name)) {
            return image;
        }
        byte[] changed = Arrays.copyOf(image, image.length);
        changed[7] = 51;
        return changed;
    }

    private byte[] damaged(byte[] image) {
        if (options.damaged == null) {
            return image;
        }
        String bytes = new String(image, StandardCharsets.ISO_8859_1);
        return bytes.replace(options.damaged, options.damage).getBytes(StandardCharsets.ISO_8859_1);
    }

    private void count(String what) {
        counts.merge(what, 1, Integer::sum);
    }

    /** The error's class, out of a reason. */
    private static String kind(String reason) {
        int end = reason.indexOf(':');
        return end < 0 ? reason : reason.substring(0, end);
    }
}
