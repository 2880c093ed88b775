package com.vantrel.util;

import java.io.ByteArrayOutputStream;
import java.nio.ByteBuffer;
import java.nio.charset.StandardCharsets;
import java.util.Map;
import java.util.TreeMap;

/**
 * Adds a field to a class file, or a call at the head of one of its methods, and leaves every other byte as it was.
 *
 * <p>It knows no class-file version: what it reads has had one form since Java 7, so that a new VM's class files are
 * edited as soon as the VM is there. Constants are appended to the constant pool and no old one moves, so all that
 * refers to them stays valid. Edits are splices at positions in the old image, applied in one pass at the end.
 *
 * <p>Terms and section numbers are those of the JVM specification, chapter 4. Not safe for use from several threads.
 */
final class ClassFileEditor {
    private static final int MAX_U2 = 0xFFFF;

    private static final int CONSTANT_UTF8 = 1;
    private static final int CONSTANT_CLASS = 7;
    private static final int CONSTANT_METHODREF = 10;
    private static final int CONSTANT_NAME_AND_TYPE = 12;

    private static final int ALOAD_1 = 0x2B;
    private static final int INVOKESTATIC = 0xB8;

    /** aload_1 and invokestatic: a multiple of four, so that the paddings of switches stay what they are. */
    private static final int CALL_LENGTH = 4;

    private static final int POOL_COUNT_AT = 8;

    private final ByteBuffer image;
    /** Where each Utf8 constant lies in the image, by its index; 0 for all other constants. */
    private final int[] utf8At;
    private final int poolEnd;
    private final int fieldsAt;
    private final int fieldsEnd;

    private final ByteSink newConstants = new ByteSink();
    private int poolCount;
    private final ByteSink newFields = new ByteSink();
    private int fieldCount;
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
        utf8At = new int[poolCount];
        poolEnd = indexConstants(POOL_COUNT_AT + 2);
        int interfaceCountAt = poolEnd + 6; // behind access_flags, this_class and super_class
        fieldsAt = interfaceCountAt + 2 + 2 * u2(interfaceCountAt);
        fieldCount = u2(fieldsAt);
        int at = fieldsAt + 2;
        for (int i = 0; i < fieldCount; i++) {
            at = memberEnd(at);
        }
        fieldsEnd = at;
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
     * Makes an instance method call a static one first, with its own first argument, a reference, as the only argument.
     *
     * @throws IllegalArgumentException if the class declares no such method with code
     */
    void passFirstArgument(String method, String descriptor, String calleeClass, String callee,
            String calleeDescriptor) {
        int at = fieldsEnd + 2;
        for (int i = u2(fieldsEnd); i > 0; i--) {
            if (isUtf8(u2(at + 2), method) && isUtf8(u2(at + 4), descriptor)) {
                int code = codeAttribute(at);
                if (code != 0) {
                    byte[] edited = codeWithCall(code, methodRef(calleeClass, callee, calleeDescriptor));
                    splices.put(code, new Splice(attributeEnd(code) - code, edited));
                    return;
                }
            }
            at = memberEnd(at);
        }
        throw new IllegalArgumentException("The class has no code for " + method + descriptor);
    }

    /** @throws IllegalArgumentException if the additions exceed what a class file can hold */
    byte[] toByteArray() {
        replaceCount(POOL_COUNT_AT, poolCount, "constants");
        splices.put(poolEnd, new Splice(0, newConstants.toByteArray()));
        replaceCount(fieldsAt, fieldCount, "fields");
        if (newFields.size() > 0) {
            splices.put(fieldsEnd, new Splice(0, newFields.toByteArray()));
        }
        ByteSink out = new ByteSink();
        int at = 0;
        for (Map.Entry<Integer, Splice> entry : splices.entrySet()) {
            out.copy(image, at, entry.getKey());
            out.write(entry.getValue().bytes, 0, entry.getValue().bytes.length);
            at = entry.getKey() + entry.getValue().replacedLength;
        }
        return out.copy(image, at, image.limit()).toByteArray();
    }

    private void replaceCount(int at, int count, String what) {
        if (count > MAX_U2) {
            throw new IllegalArgumentException("The class has no room for more " + what);
        }
        splices.put(at, new Splice(2, new ByteSink().u2(count).toByteArray()));
    }

    // Reading (4.1 to 4.7). ByteBuffer refuses what lies outside the image.

    private int u1(int at) {
        return image.get(at) & 0xFF;
    }

    private int u2(int at) {
        return image.getShort(at) & 0xFFFF;
    }

    /** Fills utf8At and returns the position behind the constant pool (4.4). */
    private int indexConstants(int poolAt) {
        int at = poolAt;
        for (int index = 1; index < poolCount; index++) {
            int tag = u1(at);
            switch (tag) {
                case CONSTANT_UTF8:
                    utf8At[index] = at;
                    at += 3 + u2(at + 1);
                    break;
                case 7: case 8: case 16: case 19: case 20: // Class, String, MethodType, Module, Package
                    at += 3;
                    break;
                case 15: // MethodHandle
                    at += 4;
                    break;
                case 3: case 4: case 9: case 10: case 11: case 12: case 17: case 18: // numbers, references, dynamic
                    at += 5;
                    break;
                case 5: case 6: // Long and Double take two indices
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
    private boolean isUtf8(int index, String text) {
        int at = utf8At[index];
        if (at == 0 || u2(at + 1) != text.length()) {
            return false;
        }
        for (int i = 0; i < text.length(); i++) {
            if (u1(at + 3 + i) != text.charAt(i)) {
                return false;
            }
        }
        return true;
    }

    /** The position behind the field or method (4.5, 4.6) that begins at a position. */
    private int memberEnd(int at) {
        int end = at + 8;
        for (int i = u2(at + 6); i > 0; i--) {
            end = attributeEnd(end);
        }
        return end;
    }

    private int attributeEnd(int at) {
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

    // Constants to add. They are not looked up among the old ones: a second copy of a constant is harmless.

    private int utf8(String text) {
        byte[] bytes = text.getBytes(StandardCharsets.US_ASCII);
        newConstants.u1(CONSTANT_UTF8).u2(bytes.length).write(bytes, 0, bytes.length);
        return poolCount++;
    }

    private int methodRef(String className, String name, String descriptor) {
        int classText = utf8(className);
        newConstants.u1(CONSTANT_CLASS).u2(classText);
        int classIndex = poolCount++;
        int nameText = utf8(name);
        int descriptorText = utf8(descriptor);
        newConstants.u1(CONSTANT_NAME_AND_TYPE).u2(nameText).u2(descriptorText);
        int nameAndType = poolCount++;
        newConstants.u1(CONSTANT_METHODREF).u2(classIndex).u2(nameAndType);
        return poolCount++;
    }

    // Code (4.7.3): every pc moves by the length of the call, but those that stand for the method's entry.

    private byte[] codeWithCall(int attributeAt, int calleeRef) {
        int maxStack = u2(attributeAt + 6);
        int codeLength = image.getInt(attributeAt + 10);
        if (codeLength + CALL_LENGTH > MAX_U2) {
            throw new IllegalArgumentException("The method has no room for more code");
        }
        ByteSink out = new ByteSink();
        out.u2(Math.max(maxStack, 1)).copy(image, attributeAt + 8, attributeAt + 10); // max_locals
        out.u4(codeLength + CALL_LENGTH).u1(ALOAD_1).u1(INVOKESTATIC).u2(calleeRef);
        int handlersAt = attributeAt + 14 + codeLength;
        out.copy(image, attributeAt + 14, handlersAt);

        int handlerCount = u2(handlersAt);
        out.u2(handlerCount);
        int at = handlersAt + 2;
        for (int i = 0; i < handlerCount; i++, at += 8) {
            out.u2(u2(at) + CALL_LENGTH).u2(u2(at + 2) + CALL_LENGTH).u2(u2(at + 4) + CALL_LENGTH).u2(u2(at + 6));
        }

        ByteSink kept = new ByteSink();
        int keptCount = 0;
        int attributeCount = u2(at);
        at += 2;
        for (int i = 0; i < attributeCount; i++) {
            byte[] moved = movedTable(at);
            if (moved != null) {
                kept.u2(u2(at)).u4(moved.length).write(moved, 0, moved.length);
                keptCount++;
            }
            at = attributeEnd(at);
        }
        out.u2(keptCount).write(kept.toByteArray(), 0, kept.size());
        ByteSink attribute = new ByteSink();
        attribute.u2(u2(attributeAt)).u4(out.size()).write(out.toByteArray(), 0, out.size());
        return attribute.toByteArray();
    }

    /**
     * The contents of an attribute of Code, moved; null for one that this class does not know. Those only inform (type
     * annotations, extensions), and wrong positions inform worse than none.
     */
    private byte[] movedTable(int attributeAt) {
        int name = u2(attributeAt);
        if (isUtf8(name, "StackMapTable")) {
            return movedFrames(attributeAt + 6);
        }
        if (isUtf8(name, "LineNumberTable")) {
            return movedLines(attributeAt + 6);
        }
        if (isUtf8(name, "LocalVariableTable") || isUtf8(name, "LocalVariableTypeTable")) {
            return movedVariables(attributeAt + 6);
        }
        return null;
    }

    /** 4.7.12. The entry's line covers the call too, or a stack trace taken there would have none. */
    private byte[] movedLines(int tableAt) {
        ByteSink out = new ByteSink();
        int count = u2(tableAt);
        out.u2(count);
        for (int i = 0, at = tableAt + 2; i < count; i++, at += 4) {
            out.u2(u2(at) == 0 ? 0 : u2(at) + CALL_LENGTH).u2(u2(at + 2));
        }
        return out.toByteArray();
    }

    /** 4.7.13 and 4.7.14. What is alive at the entry, the parameters, is alive during the call too. */
    private byte[] movedVariables(int tableAt) {
        ByteSink out = new ByteSink();
        int count = u2(tableAt);
        out.u2(count);
        for (int i = 0, at = tableAt + 2; i < count; i++, at += 10) {
            int startPc = u2(at);
            int length = u2(at + 2);
            if (startPc == 0) {
                out.u2(0).u2(length + CALL_LENGTH);
            } else {
                out.u2(startPc + CALL_LENGTH).u2(length);
            }
            out.copy(image, at + 4, at + 10);
        }
        return out.toByteArray();
    }

    /** 4.7.4. Offsets are relative to the frame before, so that only the first one moves. */
    private byte[] movedFrames(int tableAt) {
        ByteSink out = new ByteSink();
        int count = u2(tableAt);
        out.u2(count);
        int at = tableAt + 2;
        for (int i = 0; i < count; i++) {
            at = moveFrame(out, at, i == 0 ? CALL_LENGTH : 0);
        }
        return out.toByteArray();
    }

    private int moveFrame(ByteSink out, int frameAt, int distance) {
        int type = u1(frameAt);
        int at = frameAt + 1;
        if (type < 128) { // same_frame, same_locals_1_stack_item_frame: the offset is in the type
            boolean hasStackItem = type >= 64;
            int offset = (type & 63) + distance;
            if (offset < 64) {
                out.u1(type + distance);
            } else {
                out.u1(hasStackItem ? 247 : 251).u2(offset);
            }
            return hasStackItem ? moveTypes(out, at, 1) : at;
        }
        if (type < 247) {
            throw new IllegalArgumentException("A stack map frame has the unknown type " + type);
        }
        out.u1(type).u2(u2(at) + distance);
        at += 2;
        if (type == 247) { // same_locals_1_stack_item_frame_extended
            return moveTypes(out, at, 1);
        }
        if (type <= 251) { // chop_frame, same_frame_extended
            return at;
        }
        if (type < 255) { // append_frame
            return moveTypes(out, at, type - 251);
        }
        for (int part = 0; part < 2; part++) { // full_frame: locals, then stack
            int typeCount = u2(at);
            at = moveTypes(out.u2(typeCount), at + 2, typeCount);
        }
        return at;
    }

    private int moveTypes(ByteSink out, int typesAt, int count) {
        int at = typesAt;
        for (int i = 0; i < count; i++) {
            int tag = u1(at++);
            out.u1(tag);
            if (tag == 7) { // Object_variable_info: a constant
                out.u2(u2(at));
                at += 2;
            } else if (tag == 8) { // Uninitialized_variable_info: the pc of its `new`
                out.u2(u2(at) + CALL_LENGTH);
                at += 2;
            }
        }
        return at;
    }

    /** Big-endian numbers and ranges of the image, appended. */
    private static final class ByteSink extends ByteArrayOutputStream {
        ByteSink u1(int value) {
            write(value);
            return this;
        }

        ByteSink u2(int value) {
            write(value >>> 8);
            write(value);
            return this;
        }

        ByteSink u4(int value) {
            return u2(value >>> 16).u2(value);
        }

        ByteSink copy(ByteBuffer from, int start, int end) {
            write(from.array(), start, end - start);
            return this;
        }
    }
}
