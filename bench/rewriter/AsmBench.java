import java.io.File;
import java.io.IOException;
import java.io.InputStream;
import java.lang.management.ManagementFactory;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.jar.JarFile;
import java.util.zip.ZipEntry;
import org.objectweb.asm.ClassReader;
import org.objectweb.asm.ClassVisitor;
import org.objectweb.asm.ClassWriter;
import org.objectweb.asm.MethodVisitor;
import org.objectweb.asm.Opcodes;

/**
 * The same work by ASM: calls at entries, returns and new arrays, on the same classes of the same jars. Says on each
 * line the megabytes a second of this thread's CPU time in one round; the first rounds are there to warm up.
 */
public final class AsmBench {
    private static final String TRACKER = "com/example/Tracker";
    private static final int NEWEST = 52;

    private AsmBench() {
    }

    /** ROUNDS JAR... */
    public static void main(String[] arguments) throws IOException {
        List<byte[]> classes = new ArrayList<>();
        long bytes = 0;
        for (int i = 1; i < arguments.length; ++i) {
            try (JarFile jar = new JarFile(new File(arguments[i]), false)) {
                for (ZipEntry entry : Collections.list(jar.entries())) {
                    byte[] image = entry.getName().endsWith(".class") ? read(jar, entry) : new byte[0];
                    if (image.length > 8 && (image[6] & 0xFF) * 256 + (image[7] & 0xFF) <= NEWEST) {
                        classes.add(image);
                        bytes += image.length;
                    }
                }
            }
        }
        for (int round = Integer.parseInt(arguments[0]); round > 0; --round) {
            long start = ManagementFactory.getThreadMXBean().getCurrentThreadCpuTime();
            long written = 0;
            for (byte[] image : classes) {
                try {
                    written += rewrite(image).length;
                } catch (RuntimeException refusal) {
                    written += image.length;
                }
            }
            long end = ManagementFactory.getThreadMXBean().getCurrentThreadCpuTime();
            System.out.println(written == 0 ? 0 : bytes * 1000 / (end - start));
        }
    }

    private static byte[] read(JarFile jar, ZipEntry entry) throws IOException {
        try (InputStream in = jar.getInputStream(entry)) {
            return in.readAllBytes();
        }
    }

    private static byte[] rewrite(byte[] image) {
        ClassReader reader = new ClassReader(image);
        ClassWriter writer = new ClassWriter(reader, 0);
        reader.accept(new ClassVisitor(Opcodes.ASM9, writer) {
            private int number;

            @Override
            public MethodVisitor visitMethod(int access, String name, String type, String signature, String[] thrown) {
                return new Calls(super.visitMethod(access, name, type, signature, thrown), number++);
            }
        }, 0);
        return writer.toByteArray();
    }

    private static final class Calls extends MethodVisitor {
        private final int number;

        Calls(MethodVisitor next, int number) {
            super(Opcodes.ASM9, next);
            this.number = number;
        }

        private void call(String name) {
            visitIntInsn(Opcodes.SIPUSH, 7);
            visitIntInsn(Opcodes.SIPUSH, number);
            visitMethodInsn(Opcodes.INVOKESTATIC, TRACKER, name, "(II)V", false);
        }

        private void callWithArray() {
            visitInsn(Opcodes.DUP);
            visitMethodInsn(Opcodes.INVOKESTATIC, TRACKER, "madeArray", "(Ljava/lang/Object;)V", false);
        }

        @Override
        public void visitCode() {
            super.visitCode();
            call("entered");
        }

        @Override
        public void visitInsn(int opcode) {
            if (opcode >= Opcodes.IRETURN && opcode <= Opcodes.RETURN) {
                call("left");
            }
            super.visitInsn(opcode);
        }

        @Override
        public void visitIntInsn(int opcode, int operand) {
            super.visitIntInsn(opcode, operand);
            if (opcode == Opcodes.NEWARRAY) {
                callWithArray();
            }
        }

        @Override
        public void visitTypeInsn(int opcode, String type) {
            super.visitTypeInsn(opcode, type);
            if (opcode == Opcodes.ANEWARRAY) {
                callWithArray();
            }
        }

        @Override
        public void visitMultiANewArrayInsn(String type, int dimensions) {
            super.visitMultiANewArrayInsn(type, dimensions);
            callWithArray();
        }

        @Override
        public void visitMaxs(int stack, int locals) {
            super.visitMaxs(stack + 2, locals);
        }
    }
}
