package com.vantrel.util;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.lang.invoke.MethodType;
import java.lang.reflect.Field;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.net.URI;
import java.nio.file.FileSystem;
import java.nio.file.FileSystems;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
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

        public static boolean refuses(Object argument) {
            return "cat".equals(argument);
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

        /** Writes to the field after every instruction whose length has to be worked out, and beside a look-alike. */
        public int write(int number) {
            int sum = number;
            switch (number) {
                case 0:
                case 1:
                case 2:
                    field = 1;
                    break;
                case 1000:
                case 100_000:
                    sum += 1000; // wide iinc
                    field = 0xB5B5; // putfield's opcode in a constant
                    break;
                default:
                    switch (number) {
                        case 0xB5:
                        case -7000:
                            other = 5;
                            break;
                        default:
                            field = number;
                    }
            }
            return sum + field;
        }

        int other;
    }

    private static final String SUBJECT = Subject.class.getName().replace('.', '/');
    private static final String RECORDER = Recorder.class.getName().replace('.', '/');

    /** Has a method tell the recorder of its first argument; or throw null where the recorder refuses that. */
    private static boolean addCall(ClassFileEditor editor, String method, String descriptor, boolean refusing) {
        ByteSink head = new ByteSink().u1(Instructions.ALOAD_1).u1(Instructions.INVOKESTATIC);
        if (refusing) {
            head.u2(editor.methodRef(RECORDER, "refuses", "(Ljava/lang/Object;)Z"));
            head.u1(Instructions.NOP).u1(Instructions.NOP).u1(Instructions.NOP).u1(Instructions.IFEQ).u2(5);
            head.u1(0x01).u1(0xBF); // aconst_null, athrow
        } else {
            head.u2(editor.methodRef(RECORDER, "seen", "(Ljava/lang/Object;)V"));
        }
        return editor.insertAtHead(method, descriptor, head.toByteArray(), 1, refusing);
    }

    /** Has a method of the class's own, which does nothing else, do all writes to a field. */
    private static void redirectWrites(ClassFileEditor editor, String owner, String field, String type) {
        String parameters = "(L" + owner + ";" + type + ")V";
        String name = "write$" + field;
        editor.replaceWrites(owner, field, type, editor.methodRef(owner, name, parameters));
        ByteSink code = new ByteSink().u1(Instructions.ALOAD_0);
        code.u1(type.equals("I") ? 0x1B : Instructions.ALOAD_1); // iload_1
        code.u1(Instructions.PUTFIELD).u2(editor.fieldRef(owner, field, type)).u1(Instructions.RETURN);
        editor.addMethod(Modifier.STATIC, name, parameters, 2, 2, code.toByteArray(), ClassFileEditor.NO_FRAME);
    }

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
        addCall(editor, "repeat", "(Ljava/lang/Object;I)Ljava/lang/String;", false);
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
    public void addedCodeMayLeaveTheMethodOrGoOn() throws Exception {
        ClassFileEditor editor = new ClassFileEditor(subject());
        addCall(editor, "repeat", "(Ljava/lang/Object;I)Ljava/lang/String;", true);
        Class<?> edited = new EditedLoader().define(Subject.class.getName(), editor.toByteArray());
        Object subject = edited.getConstructor().newInstance();
        Method repeat = edited.getMethod("repeat", Object.class, int.class);
        assertEquals("dogs", repeat.invoke(subject, "dog", 3));
        assertThrows(InvocationTargetException.class, () -> repeat.invoke(subject, "cat", 3));
    }

    @Test
    public void everyWriteToAFieldIsReplacedAndNoOther() throws Exception {
        ClassFileEditor editor = new ClassFileEditor(subject());
        String parameters = "(L" + SUBJECT + ";I)V";
        editor.replaceWrites(SUBJECT, "field", "I", editor.methodRef(SUBJECT, "tell", parameters));
        byte[] tell = new ByteSink()
                              .u1(Instructions.ALOAD_0)
                              .u1(Instructions.INVOKESTATIC)
                              .u2(editor.methodRef(RECORDER, "seen", "(Ljava/lang/Object;)V"))
                              .u1(Instructions.RETURN)
                              .toByteArray();
        editor.addMethod(Modifier.STATIC, "tell", parameters, 1, 2, tell, ClassFileEditor.NO_FRAME);
        Class<?> edited = new EditedLoader().define(Subject.class.getName(), editor.toByteArray());
        Object subject = edited.getConstructor().newInstance();
        int[][] cases = {
                {1, 1, 1},
                {1000, 1, 2000},
                {100_000, 1, 101_000},
                {5, 1, 5},
                {0xB5, 0, 0xB5},
                {-7000, 0, -7000},
        };
        for (int[] c : cases) {
            Recorder.SEEN.clear();
            assertEquals(c[2], edited.getMethod("write", int.class).invoke(subject, c[0]));
            assertEquals("of " + c[0], java.util.Collections.nCopies(c[1], subject), Recorder.SEEN);
        }
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
        assertFalse(addCall(editor, "repeat", "(I)V", false));
        IllegalArgumentException refusal =
                assertThrows(IllegalArgumentException.class, () -> redirectWrites(editor, SUBJECT, "field", "J"));
        assertEquals("The class never writes to " + SUBJECT + ".field", refusal.getMessage());

        for (int i = 0; i < 66_000; i++) {
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
        assertTrue("fields edited: " + loader.fieldsEdited, loader.fieldsEdited > 500);
        assertTrue("classes left out: " + privileged, privileged < 10);
    }

    /**
     * Defines the compiler's own classes anew, with code at the head of every method that has a reference for its first
     * argument, and with writes to fields replaced.
     */
    private static final class CompilerLoader extends ClassLoader {
        private final Path root;
        int edited;
        int fieldsEdited;

        CompilerLoader(Path root) {
            super(ClassLoader.getSystemClassLoader());
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
                        addCall(editor, method.getName(), descriptor(method), edited++ % 2 == 0);
                    }
                }
                image = withWritesReplaced(editor.toByteArray(), Class.forName(name, false, getParent()));
                return defineClass(name, image, 0, image.length);
            } catch (IOException e) {
                throw new ClassNotFoundException(name, e);
            }
        }

        private byte[] withWritesReplaced(byte[] image, Class<?> original) {
            ClassFileEditor editor = new ClassFileEditor(image);
            String owner = original.getName().replace('.', '/');
            for (Field field : original.getDeclaredFields()) {
                int without = Modifier.STATIC | Modifier.FINAL;
                boolean oneSlot = field.getType() == int.class || !field.getType().isPrimitive();
                if (oneSlot && (field.getModifiers() & without) == 0 && !field.isSynthetic()) {
                    String type = MethodType.methodType(field.getType()).toMethodDescriptorString().substring(2);
                    try {
                        redirectWrites(editor, owner, field.getName(), type);
                        fieldsEdited++;
                    } catch (IllegalArgumentException e) {
                        assertTrue(e.getMessage(), e.getMessage().startsWith("The class never writes to "));
                    }
                }
            }
            return editor.toByteArray();
        }

        private static boolean takesReferenceFirst(Method method) {
            int without = Modifier.STATIC | Modifier.ABSTRACT | Modifier.NATIVE;
            return (method.getModifiers() & without) == 0 && method.getParameterCount() > 0
                    && !method.getParameterTypes()[0].isPrimitive();
        }

        private static String descriptor(Method method) {
            return MethodType.methodType(method.getReturnType(), method.getParameterTypes()).toMethodDescriptorString();
        }
    }
}
