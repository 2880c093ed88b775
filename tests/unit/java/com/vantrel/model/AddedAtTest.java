package com.vantrel.model;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Random;

import javax.swing.JLabel;
import javax.swing.JPanel;

import org.junit.Test;

import com.vantrel.stacktrace.StackTraceManager;

public class AddedAtTest {
    private static StackTraceElement line(String name) {
        String[] words = name.split(":");
        int dot = words[0].lastIndexOf('.');
        return new StackTraceElement(
                words[0].substring(0, dot), words[0].substring(dot + 1), "File.java", Integer.parseInt(words[1]));
    }

    private static StackTraceElement[] trace(String... names) {
        return Arrays.stream(names).map(AddedAtTest::line).toArray(StackTraceElement[] ::new);
    }

    private static AddedAt addedAt(String... names) {
        JLabel label = new JLabel();
        StackTraceManager.addStackTrace(label, trace(names));
        return AddedAt.of(label);
    }

    /** The parts, a word each: a program's line by its number, others by how many lines they stand for. */
    private static String parts(CallStack stack) {
        List<String> words = new ArrayList<>();
        for (CallStack.Part part : stack.parts()) {
            int lines = part.lines().size();
            words.add(part.kind() == CallStack.Kind.PROGRAM         ? "" + part.lines().get(0).getLineNumber()
                            : part.kind() == CallStack.Kind.TOOLKIT ? "toolkit*" + lines
                                                                    : part.times() + "more*" + lines);
        }
        return String.join(" ", words);
    }

    @Test
    public void theProgramStandsOutAndTheRestIsFolded() {
        String add = "java.awt.Container.add:1";
        String[][] cases = {
                // parts, lines
                {"toolkit*2 7 8", add, "javax.swing.JFrame.add:2", "a.Form.build:7", "a.Main.main:8"},
                {"toolkit*1 7 toolkit*2 8 toolkit*1", add, "a.B.c:7", "sun.x.Y.z:1", "kotlin.X.y:2", "a.B.c:8", add},
                {"toolkit*1 7 7", add, "a.B.c:7", "a.B.c:7"},
                {"toolkit*1 7 2more*2 8", add, "a.B.c:7", "a.B.c:7", "a.B.c:7", "a.B.c:8"},
                {"1 2 1more*2", "a.B.c:1", "a.B.c:2", "a.B.c:1", "a.B.c:2"},
                {"1 2 1more*2 1", "a.B.c:1", "a.B.c:2", "a.B.c:1", "a.B.c:2", "a.B.c:1"},
                {"7 toolkit*2 2more*6 9", "a.B.c:7", add, add, "a.B.c:7", add, add, "a.B.c:7", add, add, "a.B.c:9"},
                // Other calls of the toolkit between are another round.
                {"7 toolkit*2 7 toolkit*1", "a.B.c:7", add, add, "a.B.c:7", add},
                // A program may have packages whose names begin alike.
                {"7 8", "javafish.A.b:7", "com.sunny.A.b:8"},
                {
                        "",
                },
        };
        for (String[] c : cases) {
            assertEquals(c[0], parts(CallStack.of(trace(Arrays.copyOfRange(c, 1, c.length)))));
        }
    }

    @Test(timeout = 20_000)
    public void nothingIsLostByFolding() {
        Random random = new Random(1);
        String[] names = {"a.B.c:1", "a.B.c:2", "java.awt.Container.add:3", "javax.swing.Box.add:4"};
        for (int round = 0; round < 2_000; round++) {
            String[] trace = random.ints(random.nextInt(60), 0, 1 + random.nextInt(names.length))
                                     .mapToObj(i -> names[i])
                                     .toArray(String[] ::new);
            List<StackTraceElement> lines = new ArrayList<>();
            CallStack.of(trace(trace)).parts().forEach(part -> lines.addAll(part.lines()));
            assertEquals(Arrays.toString(trace), CallStack.of(trace(trace)).text(), text(lines));
        }
    }

    private static String text(List<StackTraceElement> lines) {
        return CallStack.of(lines.toArray(new StackTraceElement[0])).text();
    }

    @Test
    public void oneLineSaysWhere() {
        AddedAt addedAt = addedAt("java.awt.Container.add:1", "a.b.Form$Row.lambda$build$0:7", "a.Main.main:8");
        assertEquals("Form$Row.build(File.java:7)", addedAt.line());
        assertEquals("\tat java.awt.Container.add(File.java:1)\n\tat a.b.Form$Row.lambda$build$0(File.java:7)\n"
                        + "\tat a.Main.main(File.java:8)",
                addedAt.stack().text());
        AddedAt toolkits = addedAt("java.awt.Container.add:1");
        assertNull(toolkits.where());
        assertEquals("added by the toolkit, by no line of the program", toolkits.line());

        assertEquals("Form.<init>(File.java:7)", addedAt("a.Form.lambda$new$12:7").line());

        String[][] cases = {
                // the line, class, method, file, number
                {"at Main.main(Main.java:3)", "Main", "main", "Main.java", "3"},
                {"at a.Main.<init>(Main.java)", "a.Main", "<init>", "Main.java", "-1"},
                {"at a.Main.main(Unknown Source)", "a.Main", "main", null, "-1"},
                {"at a.Main.main(Native Method)", "a.Main", "main", "Main.java", "-2"},
        };
        for (String[] c : cases) {
            StackTraceElement line = new StackTraceElement(c[1], c[2], c[3], Integer.parseInt(c[4]));
            assertEquals(c[0], CallSite.link(line));
            assertEquals(c[0].replaceAll("at |a\\.", ""), CallSite.summary(line));
        }
    }

    @Test
    public void aComponentHasItsOwn() {
        JLabel label = new JLabel();
        assertEquals("not yet added to anything", AddedAt.of(label).line());
        assertEquals("nothing is selected", AddedAt.of(null).line());
        new JPanel().add(label);
        StackTraceManager.removeStackTrace(label);
        assertEquals("its addition was not recorded", AddedAt.of(label).line());
        AddedAt before = AddedAt.of(label);
        StackTraceManager.addStackTrace(label, new StackTraceElement[] {line("a.B.c:5")});
        assertEquals("B.c(File.java:5)", AddedAt.of(label).line());
        assertTrue(AddedAt.of(label).isSameAs(AddedAt.of(label)));
        assertTrue(!AddedAt.of(label).isSameAs(before));
    }
}
