package com.vantrel.model;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.io.File;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.Arrays;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.TimeUnit;

import org.junit.After;
import org.junit.Before;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

public class EditorTest {
    private static final StackTraceElement LINE = new StackTraceElement("a.b.Form$1", "build", "Form.java", 42);

    @Rule public final TemporaryFolder folder = new TemporaryFolder();

    @Before
    public void rememberInTheFolder() {
        System.setProperty("vantrel.settings", new File(folder.getRoot(), "some/where/settings").getPath());
    }

    @After
    public void forget() {
        Settings.set(Editor.COMMAND, "");
        Settings.set(Editor.SOURCES, "");
        System.clearProperty("vantrel.settings");
    }

    @Test
    public void aCommandIsSplitAndFilled() {
        String[][] cases = {
                // command, words
                {"idea --line %line %file", "idea", "--line", "42", "/s r/F.java"},
                {"  vim\t+%line  %file ", "vim", "+42", "/s r/F.java"},
                {"code --goto %file:%line:1", "code", "--goto", "/s r/F.java:42:1"},
                {"'/opt/my editor/run' -e \"(open '%file' %line)\"", "/opt/my editor/run", "-e",
                        "(open '/s r/F.java' 42)"},
                {"a'b c'\"d e\"f '' %file", "ab cd ef", "", "/s r/F.java"},
                {"gedit", "gedit", "/s r/F.java"},
                {"e %%file 100%% %f", "e", "%file", "100%", "%f", "/s r/F.java"},
                {"e C:\\x $HOME `x` | y %file", "e", "C:\\x", "$HOME", "`x`", "|", "y", "/s r/F.java"},
        };
        for (String[] c : cases) {
            assertEquals(
                    Arrays.asList(c).subList(1, c.length), new EditorCommand(c[0]).words(Paths.get("/s r/F.java"), 42));
        }
        assertEquals("a file without lines", Arrays.asList("e", "F", "1"),
                new EditorCommand("e %file %line").words(Paths.get("F"), -1));
        for (String bad : new String[] {"", "  ", "'' %file", "e 'x", "e \"x'"}) {
            assertThrows(bad, IllegalArgumentException.class, () -> new EditorCommand(bad));
        }
    }

    private Path source(String name) throws Exception {
        Path file = folder.getRoot().toPath().resolve(name);
        Files.createDirectories(file.getParent());
        return Files.write(file, new byte[0]);
    }

    @Test
    public void aFileIsFoundInTheSourceFolders() throws Exception {
        Path second = source("two/src/main/java/a/b/Form.java");
        String folders = folder.getRoot() + "/none" + File.pathSeparator + folder.getRoot() + "/two"
                + File.pathSeparator + folder.getRoot() + "/one";
        assertEquals(second, new SourceFolders(folders).find(LINE));
        source("one/a/b/Form.java");
        assertEquals("in the order of the folders", second, new SourceFolders(folders).find(LINE));
        Path plain = source("one/Main.java");
        assertEquals(plain, new SourceFolders(folders).find(new StackTraceElement("Main", "main", "Main.java", 1)));
        assertEquals(null, new SourceFolders(folders).find(new StackTraceElement("a.b.Form", "build", null, 1)));
        assertEquals(null, new SourceFolders("").find(LINE));

        String home = System.setProperty("user.home", folder.getRoot().getPath());
        assertEquals(second, new SourceFolders("~/two").find(LINE));
        System.setProperty("user.home", home);
    }

    @Test
    public void whatThisRunSetsComesBeforeWhatIsRemembered() throws Exception {
        assertEquals("fallback", Settings.get("colour", "fallback"));
        Path file = Paths.get(System.getProperty("vantrel.settings"));
        Files.createDirectories(file.getParent());
        Files.write(file, "colour=red\nsize=12\n".getBytes(StandardCharsets.UTF_8));
        assertEquals("red", Settings.get("colour", "fallback"));
        assertEquals(12, Settings.get("size", 1));
        assertEquals("not a number", 1, Settings.get("colour", 1));
        System.setProperty("vantrel.colour", "green");
        assertEquals("green", Settings.get("colour", "fallback"));
        assertTrue(Settings.set("colour", "bl\u00FCe = 1"));
        assertEquals("bl\u00FCe = 1", Settings.get("colour", "fallback"));
        System.clearProperty("vantrel.colour");

        java.util.Properties written = new java.util.Properties();
        written.load(Files.newBufferedReader(file));
        assertEquals("bl\u00FCe = 1", written.getProperty("colour"));
        assertEquals("others stay", "12", written.getProperty("size"));
        assertEquals("nothing is left over", 1, file.getParent().toFile().list().length);

        System.setProperty("vantrel.settings", folder.newFile() + "/below");
        assertFalse(Settings.set("shape", "round"));
        assertEquals("holds all the same", "round", Settings.get("shape", "fallback"));
        Files.write(file, "size=\\u12".getBytes(StandardCharsets.UTF_8));
        System.setProperty("vantrel.settings", file.toString());
        assertEquals("a damaged file", "fallback", Settings.get("size", "fallback"));
    }

    @Test(timeout = 20_000)
    public void theEditorIsStartedOrALineSaysWhyNot() throws Exception {
        source("src/a/b/Form.java");
        String root = folder.getRoot().getPath();
        String[][] cases = {
                // command, source folders, what is said
                {"/bin/sh -c 'echo \"$1\" >\"$0\"' " + root + "/opened %file:%line", root, "opened Form.java:42 in sh"},
                {"/bin/sh -c 'exit 3' %file", root, "opened Form.java:42 in sh",
                        "the editor '/bin/sh' has ended with status 3"},
                {"/nowhere/edit %file", root, "the editor '/nowhere/edit' does not start: No such file or directory"},
                {"edit '%file", root, "the editor command has a quote (') that nothing closes"},
                {"edit", root + "/none",
                        "Form.java was not found; source folders: " + root + "/none, "
                                + System.getProperty("user.dir")},
        };
        for (String[] c : cases) {
            Settings.set(Editor.COMMAND, c[0]);
            Settings.set(Editor.SOURCES, c[1]);
            BlockingQueue<Editor.Outcome> told = new LinkedBlockingQueue<>();
            Editor.open(LINE, told::add);
            for (int at = 2; at < c.length; at++) {
                Editor.Outcome outcome = told.take();
                assertEquals(c[at], outcome.line());
                assertEquals(!c[at].startsWith("opened"), outcome.isFailure());
            }
            assertEquals("nothing more", null, told.poll(50, TimeUnit.MILLISECONDS));
        }
        assertEquals(root + "/src/a/b/Form.java:42\n",
                new String(Files.readAllBytes(Paths.get(root, "opened")), StandardCharsets.UTF_8));
    }
}
