package com.vantrel.util;

import java.nio.ByteBuffer;
import java.nio.charset.StandardCharsets;
import java.util.HashMap;
import java.util.Map;
import java.util.TreeMap;

/**
 * Edits a class file: adds fields and methods, inserts code at the head of methods, and replaces writes to a field by
 * calls. Every other byte stays as it was.
 *
 * <p>It does not look at the class file's version, so that it also edits the class files of future VMs: what it reads
 * has not changed its form since Java 7. Constants are appended to the constant pool and no old one moves, so all that
 * refers to them stays valid. Edits are splices at positions in the old image, applied in one pass at the end.
 *
 * <p>Terms and section numbers are those of the JVM specification, chapter 4. Not safe for use from several threads.
 */
final class ClassFileEditor {
    static final int MAX_U2 = 0xFFFF;

    private static final int CONSTANT_UTF8 = 1;
    private static final int CONSTANT_CLASS = 7;
    private static final int CONSTANT_STRING = 8;
    private static final int CONSTANT_FIELDREF = 9;
    private static final int CONSTANT_METHODREF = 10;
    private static final int CONSTANT_NAME_AND_TYPE = 12;

    /** Instead of the pc of a stack map frame: the method needs no frame. */
    static final int NO_FRAME = -1;

    private static final int POOL_COUNT_AT = 8;

    private final ByteBuffer image;
    /** Where each constant lies in the image, by its index; 0 for an index that no constant has. */
    private final int[] constantAt;
    private final int poolEnd;
    private final int fieldsAt;
    private final int fieldsEnd;
    private final int methodsEnd;

    private final ByteSink newConstants = new ByteSink();
    private final Map<String, Integer> newTexts = new HashMap<>();
    private int poolCount;
    private final ByteSink newFields = new ByteSink();
    private int fieldCount;
    private final ByteSink newMethods = new ByteSink();
    private int methodCount;
    private final Map<Integer, Splice> splices = new TreeMap<>();

    private static final class Splice {
        final int replacedLength;
        final byte[] bytes;

        Splice(int replacedLength, byte[] bytes) {
            this.replacedLength = replacedLength;
            this.bytes = bytes;
        }
    }

    /** @param classFile a whole class file; it is neither changed nor copied */
    ClassFileEditor(byte[] classFile) {
        image = ByteBuffer.wrap(classFile);
        poolCount = u2(POOL_COUNT_AT);
        constantAt = new int[poolCount];
        poolEnd = indexConstants(POOL_COUNT_AT + 2);
        int interfaceCountAt = poolEnd + 6; // after access_flags, this_class and super_class
        fieldsAt = interfaceCountAt + 2 + 2 * u2(interfaceCountAt);
        fieldCount = u2(fieldsAt);
        fieldsEnd = membersEnd(fieldsAt, fieldCount);
        methodCount = u2(fieldsEnd);
        methodsEnd = membersEnd(fieldsEnd, methodCount);
    }

    private int membersEnd(int countAt, int count) {
        int at = countAt + 2;
        for (int i = 0; i < count; i++) {
            at = memberEnd(at);
        }
        return at;
    }

    /** The whole file, as it came in. */
    ByteBuffer image() {
        return image;
    }

    boolean declaresField(String name) {
        int at = fieldsAt + 2;
        while (at < fieldsEnd) {
            if (isUtf8(u2(at + 2), name)) {
                return true;
            }
            at = memberEnd(at);
        }
        return false;
    }

    /** Adds a field that has no attributes (4.5). */
    void addField(int accessFlags, String name, String descriptor) {
        newFields.u2(accessFlags).u2(utf8(name)).u2(utf8(descriptor)).u2(0);
        fieldCount++;
    }

    /**
     * Adds a method whose code has no handlers and no more than one place that it jumps to.
     *
     * @param maxLocals how many variables it has, parameters included
     * @param frameAt   the pc that it jumps to, with an empty stack and no variables but the parameters; NO_FRAME if it
     *                  never jumps
     */
    void addMethod(
            int accessFlags, String name, String descriptor, int maxStack, int maxLocals, byte[] code, int frameAt) {
        ByteSink body = new ByteSink();
        body.u2(maxStack).u2(maxLocals).u4(code.length).bytes(code).u2(0); // no handlers
        if (frameAt == NO_FRAME) {
            body.u2(0);
        } else {
            body.u2(1).bytes(stackMapTable(frameAt));
        }
        newMethods.u2(accessFlags).u2(utf8(name)).u2(utf8(descriptor)).u2(1);
        newMethods.u2(utf8("Code")).u4(body.size()).bytes(body.toByteArray());
        methodCount++;
    }

    /**
     * Puts code before a method's own. That can be done once with a method, and writes in such a method cannot be
     * replaced any more. The new code may only jump to its own end, with an empty stack and unchanged parameters.
     *
     * @param head     the code, of a length that is a multiple of four
     * @param maxStack how much of the operand stack the code needs
     * @param jumps    whether it jumps
     * @return whether the class declares such a method, with code; if not, nothing is changed
     */
    boolean insertAtHead(String method, String descriptor, byte[] head, int maxStack, boolean jumps) {
        int at = fieldsEnd + 2;
        for (int i = u2(fieldsEnd); i > 0; i--) {
            int code = codeAttribute(at);
            if (code != 0 && isUtf8(u2(at + 2), method) && isUtf8(u2(at + 4), descriptor)) {
                byte[] edited = MovedCode.withHead(this, code, head, maxStack, jumps);
                splices.put(code, new Splice(attributeEnd(code) - code, edited));
                return true;
            }
            at = memberEnd(at);
        }
        return false;
    }

    /**
     * Replaces every write to an instance field, in whatever method, with the call of a static method that takes the
     * object and the new value. Both instructions have three bytes and take the same operands from the stack, so that
     * no other code moves.
     *
     * @param callee a constant, from {@link #methodRef}
     * @throws IllegalArgumentException if the class never writes to the field
     */
    void replaceWrites(String owner, String field, String descriptor, int callee) {
        byte[] call = new ByteSink().u1(Instructions.INVOKESTATIC).u2(callee).toByteArray();
        int found = 0;
        int methodAt = fieldsEnd + 2;
        for (int i = u2(fieldsEnd); i > 0; i--) {
            int attribute = codeAttribute(methodAt);
            if (attribute != 0) {
                int start = attribute + 14;
                int end = start + image.getInt(attribute + 10);
                for (int at = start; at < end; at += Instructions.length(image, start, at)) {
                    if (u1(at) == Instructions.PUTFIELD && isFieldRef(u2(at + 1), owner, field, descriptor)) {
                        splices.put(at, new Splice(call.length, call));
                        found++;
                    }
                }
            }
            methodAt = memberEnd(methodAt);
        }
        if (found == 0) {
            throw new IllegalArgumentException("The class never writes to " + owner + "." + field);
        }
    }

    /** @throws IllegalArgumentException if the additions exceed what a class file can hold */
    byte[] toByteArray() {
        splices.put(POOL_COUNT_AT, count(new ByteSink(), poolCount, "constants"));
        splices.put(poolEnd, new Splice(0, newConstants.toByteArray()));
        splices.put(fieldsAt, count(new ByteSink(), fieldCount, "fields"));
        splices.put(fieldsEnd, count(new ByteSink().bytes(newFields.toByteArray()), methodCount, "methods"));
        splices.put(methodsEnd, new Splice(0, newMethods.toByteArray()));
        ByteSink out = new ByteSink();
        int at = 0;
        for (Map.Entry<Integer, Splice> entry : splices.entrySet()) {
            out.copy(image, at, entry.getKey()).bytes(entry.getValue().bytes);
            at = entry.getKey() + entry.getValue().replacedLength;
        }
        return out.copy(image, at, image.limit()).toByteArray();
    }

    /** Replaces a two-byte count, and inserts other bytes before it. */
    private static Splice count(ByteSink bytes, int count, String what) {
        if (count > MAX_U2) {
            throw new IllegalArgumentException("The class has no room for more " + what);
        }
        return new Splice(2, bytes.u2(count).toByteArray());
    }

    // Reading (4.1 to 4.7). ByteBuffer refuses what lies outside the image.

    private int u1(int at) {
        return image.get(at) & 0xFF;
    }

    private int u2(int at) {
        return image.getShort(at) & 0xFFFF;
    }

    /** Fills constantAt and returns the position after the constant pool (4.4). */
    private int indexConstants(int poolAt) {
        int at = poolAt;
        for (int index = 1; index < poolCount; index++) {
            int tag = u1(at);
            constantAt[index] = at;
            switch (tag) {
                case CONSTANT_UTF8:
                    at += 3 + u2(at + 1);
                    break;
                case 7:
                case 8:
                case 16:
                case 19:
                case 20: // Class, String, MethodType, Module, Package
                    at += 3;
                    break;
                case 15: // MethodHandle
                    at += 4;
                    break;
                case 3:
                case 4:
                case 9:
                case 10:
                case 11:
                case 12:
                case 17:
                case 18: // numbers, references, dynamic
                    at += 5;
                    break;
                case 5:
                case 6: // Long and Double take two indices
                    at += 9;
                    index++;
                    break;
                default:
                    throw new IllegalArgumentException("Constant " + index + " has the unknown tag " + tag);
            }
        }
        return at;
    }

    /** Whether the constant is a Utf8 constant of this text, which must be ASCII. */
    boolean isUtf8(int index, String text) {
        int at = constantAt[index];
        if (at == 0 || u1(at) != CONSTANT_UTF8 || u2(at + 1) != text.length()) {
            return false;
        }
        for (int i = 0; i < text.length(); i++) {
            if (u1(at + 3 + i) != text.charAt(i)) {
                return false;
            }
        }
        return true;
    }

    /** Whether the constant, one that a field instruction has for its operand, stands for this field (4.4.2). */
    private boolean isFieldRef(int index, String owner, String name, String descriptor) {
        int at = constantAt[index];
        int nameAndType = constantAt[u2(at + 3)];
        return isUtf8(u2(constantAt[u2(at + 1)] + 1), owner) && isUtf8(u2(nameAndType + 1), name)
                && isUtf8(u2(nameAndType + 3), descriptor);
    }

    /** The position after the field or method (4.5, 4.6) that begins at a position. */
    private int memberEnd(int at) {
        int end = at + 8;
        for (int i = u2(at + 6); i > 0; i--) {
            end = attributeEnd(end);
        }
        return end;
    }

    int attributeEnd(int at) {
        return at + 6 + image.getInt(at + 2);
    }

    /** Where the method that begins at a position has its Code attribute; 0 if it has none. */
    private int codeAttribute(int methodAt) {
        int at = methodAt + 8;
        for (int i = u2(methodAt + 6); i > 0; i--) {
            if (isUtf8(u2(at), "Code")) {
                return at;
            }
            at = attributeEnd(at);
        }
        return 0;
    }

    // Constants to add. They are added even if the class has the same ones already: a second copy is harmless.

    private int utf8(String text) {
        Integer known = newTexts.get(text);
        if (known != null) {
            return known;
        }
        byte[] bytes = text.getBytes(StandardCharsets.US_ASCII);
        newConstants.u1(CONSTANT_UTF8).u2(bytes.length).bytes(bytes);
        newTexts.put(text, poolCount);
        return poolCount++;
    }

    int classRef(String className) {
        int text = utf8(className);
        newConstants.u1(CONSTANT_CLASS).u2(text);
        return poolCount++;
    }

    int stringRef(String text) {
        int index = utf8(text);
        newConstants.u1(CONSTANT_STRING).u2(index);
        return poolCount++;
    }

    int fieldRef(String className, String name, String descriptor) {
        return memberRef(CONSTANT_FIELDREF, className, name, descriptor);
    }

    int methodRef(String className, String name, String descriptor) {
        return memberRef(CONSTANT_METHODREF, className, name, descriptor);
    }

    private int memberRef(int kind, String className, String name, String descriptor) {
        int classIndex = classRef(className);
        int nameText = utf8(name);
        int descriptorText = utf8(descriptor);
        newConstants.u1(CONSTANT_NAME_AND_TYPE).u2(nameText).u2(descriptorText);
        int nameAndType = poolCount++;
        newConstants.u1(kind).u2(classIndex).u2(nameAndType);
        return poolCount++;
    }

    // Stack map frames to add (4.7.4).

    /** A whole StackMapTable attribute with one frame, at a pc. */
    byte[] stackMapTable(int pc) {
        byte[] frame = sameFrame(pc);
        return new ByteSink().u2(utf8("StackMapTable")).u4(2 + frame.length).u2(1).bytes(frame).toByteArray();
    }

    /** The first frame of a method, for a pc at which there are the parameters and an empty stack. */
    static byte[] sameFrame(int pc) {
        return (pc < 64 ? new ByteSink().u1(pc) : new ByteSink().u1(251).u2(pc)).toByteArray();
    }
}
