package com.vantrel.util;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.PrintWriter;
import java.io.StringWriter;
import java.lang.reflect.Field;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.net.URI;
import java.nio.file.FileSystem;
import java.nio.file.FileSystems;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.regex.Matcher;
import java.util.regex.Pattern;
import java.util.spi.ToolProvider;
import java.util.stream.Collectors;
import java.util.stream.Stream;

import org.junit.Test;

public class ClassFileEditorTest {
    /** What the edited classes call. */
    public static final class Recorder {
        static final List<Object> SEEN = new ArrayList<>();
        static StackTraceElement caller;

        public static void seen(Object argument) {
            SEEN.add(argument);
            caller = new Throwable().getStackTrace()[1];
        }
    }

    /** What is edited: the loop jumps back to the method's first instruction, a handler covers it. */
    public static class Subject {
        int field;

        public String repeat(Object what, int times) {
            while (true) {
                try {
                    if (field++ == times) {
                        return "" + what + (times > 1 ? new StringBuilder("s") : "");
                    }
                } catch (RuntimeException e) {
                    return "never";
                }
            }
        }

        public int none(int number) {
            return number;
        }
    }

    private static final String RECORDER = Recorder.class.getName().replace('.', '/');

    /** Loads the edited form of one class and everything else from the tests' own loader. */
    private static final class EditedLoader extends ClassLoader {
        EditedLoader() {
            super(ClassFileEditorTest.class.getClassLoader());
        }

        Class<?> define(String name, byte[] bytes) {
            return defineClass(name, bytes, 0, bytes.length);
        }
    }

    private static byte[] classFile(InputStream in) throws IOException {
        ByteArrayOutputStream bytes = new ByteArrayOutputStream();
        byte[] chunk = new byte[8192];
        for (int n = in.read(chunk); n >= 0; n = in.read(chunk)) {
            bytes.write(chunk, 0, n);
        }
        return bytes.toByteArray();
    }

    private static byte[] subject() throws IOException {
        try (InputStream in = Subject.class.getResourceAsStream("ClassFileEditorTest$Subject.class")) {
            return classFile(in);
        }
    }

    @Test
    public void calleeGetsTheFirstArgumentOnceAndFirst() throws Exception {
        ClassFileEditor editor = new ClassFileEditor(subject());
        editor.passFirstArgument("repeat", "(Ljava/lang/Object;I)Ljava/lang/String;", RECORDER, "seen",
                "(Ljava/lang/Object;)V");
        Class<?> edited = new EditedLoader().define(Subject.class.getName(), editor.toByteArray());
        Recorder.SEEN.clear();
        Object subject = edited.getConstructor().newInstance();
        assertEquals("dogs", edited.getMethod("repeat", Object.class, int.class).invoke(subject, "dog", 3));
        assertEquals(List.of("dog"), Recorder.SEEN);

        assertEquals("repeat", Recorder.caller.getMethodName());
        int firstLine = new Throwable().getStackTrace()[0].getLineNumber();
        assertTrue("a line of this file, above this method: " + Recorder.caller,
                Recorder.caller.getLineNumber() > 0 && Recorder.caller.getLineNumber() < firstLine);
    }

    @Test
    public void addedFieldIsThere() throws Exception {
        ClassFileEditor editor = new ClassFileEditor(subject());
        assertTrue(editor.declaresField("field"));
        assertFalse(editor.declaresField("added"));
        editor.addField(Modifier.PRIVATE | Modifier.TRANSIENT, "added", "Ljava/lang/RuntimeException;");
        byte[] image = editor.toByteArray();
        Field field = new EditedLoader().define(Subject.class.getName(), image).getDeclaredField("added");
        assertEquals(Modifier.PRIVATE | Modifier.TRANSIENT, field.getModifiers());
        assertEquals(RuntimeException.class, field.getType());
        assertTrue(new ClassFileEditor(image).declaresField("added"));
    }

    @Test
    public void whatCannotBeEditedIsRefused() throws Exception {
        ClassFileEditor editor = new ClassFileEditor(subject());
        IllegalArgumentException refusal = assertThrows(IllegalArgumentException.class,
                () -> editor.passFirstArgument("repeat", "(I)V", RECORDER, "seen", "(Ljava/lang/Object;)V"));
        assertEquals("The class has no code for repeat(I)V", refusal.getMessage());

        for (int i = 0; i < 33000; i++) {
            editor.addField(0, "f" + i, "I");
        }
        refusal = assertThrows(IllegalArgumentException.class, editor::toByteArray);
        assertEquals("The class has no room for more constants", refusal.getMessage());
    }

    /** The Java compiler, for its size and for being the newest kind of class file that the VM has. */
    @Test
    public void everyMethodOfALargeProgramCanBeEdited() throws Exception {
        FileSystem vm = FileSystems.getFileSystem(URI.create("jrt:/"));
        List<Path> files;
        try (Stream<Path> all = Files.walk(vm.getPath("/modules/jdk.compiler/com"))) {
            files = all.filter(file -> file.toString().endsWith(".class")).collect(Collectors.toList());
        }
        Path root = vm.getPath("/modules/jdk.compiler");
        CompilerLoader loader = new CompilerLoader(root);
        int privileged = 0;
        for (Path file : files) {
            byte[] image = Files.readAllBytes(file);
            assertArrayEquals(file.toString(), image, new ClassFileEditor(image).toByteArray());
            String name = root.relativize(file).toString().replace('/', '.').replaceFirst("\\.class$", "");
            try {
                Class.forName(name, false, loader).getDeclaredMethods(); // links it: the verifier sees every method
            } catch (IllegalAccessError e) {
                privileged++; // extends a class that the VM keeps to itself
            }
        }
        assertTrue("methods edited: " + loader.edited, loader.edited > 5_000);
        assertTrue("classes left out: " + privileged, privileged < 10);
    }

    /** Defines the compiler's own classes anew, with a call in every method that has a reference for its first argument. */
    private static final class CompilerLoader extends ClassLoader {
        private final Path root;
        int edited;

        CompilerLoader(Path root) {
            super(ClassFileEditorTest.class.getClassLoader());
            this.root = root;
        }

        @Override
        protected Class<?> loadClass(String name, boolean resolve) throws ClassNotFoundException {
            if (!name.startsWith("com.sun.")) {
                return super.loadClass(name, resolve);
            }
            synchronized (getClassLoadingLock(name)) {
                Class<?> loaded = findLoadedClass(name);
                return loaded != null ? loaded : define(name);
            }
        }

        private Class<?> define(String name) throws ClassNotFoundException {
            try {
                byte[] image = Files.readAllBytes(root.resolve(name.replace('.', '/') + ".class"));
                ClassFileEditor editor = new ClassFileEditor(image);
                for (Method method : Class.forName(name, false, getParent()).getDeclaredMethods()) {
                    if (takesReferenceFirst(method)) {
                        editor.passFirstArgument(method.getName(), descriptor(method), RECORDER, "seen",
                                "(Ljava/lang/Object;)V");
                        edited++;
                    }
                }
                image = editor.toByteArray();
                return defineClass(name, image, 0, image.length);
            } catch (IOException e) {
                throw new ClassNotFoundException(name, e);
            }
        }

        private static boolean takesReferenceFirst(Method method) {
            int without = Modifier.STATIC | Modifier.ABSTRACT | Modifier.NATIVE;
            return (method.getModifiers() & without) == 0 && method.getParameterCount() > 0
                    && !method.getParameterTypes()[0].isPrimitive();
        }

        private static String descriptor(Method method) {
            return java.lang.invoke.MethodType.methodType(method.getReturnType(), method.getParameterTypes())
                    .toMethodDescriptorString();
        }
    }

    @Test
    public void theSuppliersAddWhatTheVmLacks() throws Exception {
        ClassFileEditor component = new ClassFileEditor(BCIUtil.getComponentClassData());
        assertTrue(component.declaresField("windowClosingException"));

        String addImpl = disassembled(BCIUtil.getContainerClassData(),
                "protected void addImpl(java.awt.Component, java.lang.Object, int);");
        assertTrue(addImpl, addImpl.matches("(?s).*"
                + " 0: aload_1\n +1: invokestatic +#\\d+ +// Method com/vantrel/stacktrace/StackTraceManager"
                + "\\.componentAdded:\\(Ljava/awt/Component;\\)V\n +4: aload_0\n.*"));
        Matcher end = Pattern.compile("(\\d+): return\n +Exception table").matcher(addImpl);
        assertTrue(addImpl, end.find());
        int codeLength = Integer.parseInt(end.group(1)) + 1;
        assertTrue("parameters are known from the first instruction on:\n" + addImpl,
                addImpl.matches("(?s).* 0 +" + codeLength + " +1 +comp .*"));
    }

    private static String disassembled(byte[] image, String method) throws IOException {
        Path file = Files.createTempFile("Edited", ".class");
        try {
            Files.write(file, image);
            StringWriter text = new StringWriter();
            PrintWriter out = new PrintWriter(text);
            ToolProvider javap = ToolProvider.findFirst("javap").orElseThrow(IllegalStateException::new);
            assertEquals(0, javap.run(out, out, "-v", "-p", file.toString()));
            String all = text.toString();
            int start = all.indexOf(method);
            assertTrue(method, start >= 0);
            return all.substring(start, all.indexOf("\n\n", start));
        } finally {
            Files.delete(file);
        }
    }
}
