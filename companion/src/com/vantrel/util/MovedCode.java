package com.vantrel.util;

import java.nio.ByteBuffer;

/**
 * Makes a Code attribute (JVM specification, 4.7.3) with more code at its head: every pc moves by the length of the new
 * code, except those that stand for the method's entry.
 */
final class MovedCode {
    private final ClassFileEditor file;
    private final ByteBuffer image;
    private final int attributeAt;
    private final int distance;
    private final boolean jumpsToOldHead;

    /**
     * @param attributeAt    where the attribute begins in the file
     * @param distance       the length of the new code, a multiple of four, so that the padding of switches stays right
     * @param jumpsToOldHead whether the new code jumps to the instruction after it, with an empty stack and the
     *                       parameters as they came in; this needs a stack map frame there
     */
    private MovedCode(ClassFileEditor file, int attributeAt, int distance, boolean jumpsToOldHead) {
        this.file = file;
        this.image = file.image();
        this.attributeAt = attributeAt;
        this.distance = distance;
        this.jumpsToOldHead = jumpsToOldHead;
    }

    /**
     * The whole attribute with new code before its own. Nested attributes that this class does not know (type
     * annotations, extensions) are left out: they only inform, and would do so with wrong positions.
     *
     * @param head     the new code, of a length that is a multiple of four; it may only jump to its own end
     * @param maxStack how much of the operand stack the new code needs
     */
    static byte[] withHead(ClassFileEditor file, int attributeAt, byte[] head, int maxStack, boolean jumpsToOldHead) {
        return new MovedCode(file, attributeAt, head.length, jumpsToOldHead).attribute(head, maxStack);
    }

    private byte[] attribute(byte[] head, int maxStack) {
        int codeLength = image.getInt(attributeAt + 10);
        if (codeLength + distance > ClassFileEditor.MAX_U2) {
            throw new IllegalArgumentException("The method has no room for more code");
        }
        ByteSink out = new ByteSink();
        out.u2(Math.max(u2(attributeAt + 6), maxStack)).copy(image, attributeAt + 8, attributeAt + 10); // max_locals
        out.u4(codeLength + distance).bytes(head);
        int handlersAt = attributeAt + 14 + codeLength;
        out.copy(image, attributeAt + 14, handlersAt);

        int handlerCount = u2(handlersAt);
        out.u2(handlerCount);
        int at = handlersAt + 2;
        for (int i = 0; i < handlerCount; i++, at += 8) {
            out.u2(u2(at) + distance).u2(u2(at + 2) + distance).u2(u2(at + 4) + distance).u2(u2(at + 6));
        }

        ByteSink kept = new ByteSink();
        int keptCount = 0;
        boolean hasFrames = false;
        int attributeCount = u2(at);
        at += 2;
        for (int i = 0; i < attributeCount; i++) {
            int name = u2(at);
            byte[] moved = movedTable(name, at + 6);
            if (moved != null) {
                kept.u2(name).u4(moved.length).bytes(moved);
                keptCount++;
                hasFrames |= file.isUtf8(name, "StackMapTable");
            }
            at = file.attributeEnd(at);
        }
        if (jumpsToOldHead && !hasFrames) {
            kept.bytes(file.stackMapTable(distance));
            keptCount++;
        }
        out.u2(keptCount).bytes(kept.toByteArray());
        return new ByteSink().u2(u2(attributeAt)).u4(out.size()).bytes(out.toByteArray()).toByteArray();
    }

    /** The contents of an attribute of Code, moved; null for one that this class does not know. */
    private byte[] movedTable(int name, int tableAt) {
        if (file.isUtf8(name, "StackMapTable")) {
            return movedFrames(tableAt);
        }
        if (file.isUtf8(name, "LineNumberTable")) {
            return movedLines(tableAt);
        }
        if (file.isUtf8(name, "LocalVariableTable") || file.isUtf8(name, "LocalVariableTypeTable")) {
            return movedVariables(tableAt);
        }
        return null;
    }

    /** 4.7.12. The first line covers the new code too, so that a stack trace taken there has a line. */
    private byte[] movedLines(int tableAt) {
        ByteSink out = new ByteSink();
        int count = u2(tableAt);
        out.u2(count);
        for (int i = 0, at = tableAt + 2; i < count; i++, at += 4) {
            out.u2(u2(at) == 0 ? 0 : u2(at) + distance).u2(u2(at + 2));
        }
        return out.toByteArray();
    }

    /**
     * 4.7.13 and 4.7.14. Variables that are alive at the entry, which are the parameters, are alive in the new code
     * too.
     */
    private byte[] movedVariables(int tableAt) {
        ByteSink out = new ByteSink();
        int count = u2(tableAt);
        out.u2(count);
        for (int i = 0, at = tableAt + 2; i < count; i++, at += 10) {
            int startPc = u2(at);
            int length = u2(at + 2);
            if (startPc == 0) {
                out.u2(0).u2(length + distance);
            } else {
                out.u2(startPc + distance).u2(length);
            }
            out.copy(image, at + 4, at + 10);
        }
        return out.toByteArray();
    }

    /**
     * 4.7.4. Each offset counts from the frame before, so only the first one changes: it grows by the length of the new
     * code, or, if a new frame for the old head comes before it, counts from there.
     */
    private byte[] movedFrames(int tableAt) {
        ByteSink out = new ByteSink();
        int count = u2(tableAt);
        // If the old head has a frame already, because a loop jumps there, that one serves.
        boolean addsFrame = jumpsToOldHead && (count == 0 || offset(tableAt + 2) > 0);
        out.u2(addsFrame ? count + 1 : count);
        if (addsFrame) {
            out.bytes(ClassFileEditor.sameFrame(distance));
        }
        int at = tableAt + 2;
        for (int i = 0; i < count; i++) {
            at = moveFrame(out, at, i > 0 ? 0 : addsFrame ? -1 : distance);
        }
        return out.toByteArray();
    }

    private int offset(int frameAt) {
        int type = u1(frameAt);
        return type < 128 ? type & 63 : u2(frameAt + 1);
    }

    private int moveFrame(ByteSink out, int frameAt, int by) {
        int type = u1(frameAt);
        int at = frameAt + 1;
        if (type < 128) { // same_frame, same_locals_1_stack_item_frame: the offset is in the type
            boolean hasStackItem = type >= 64;
            int offset = (type & 63) + by;
            if (offset < 64) {
                out.u1(type + by);
            } else {
                out.u1(hasStackItem ? 247 : 251).u2(offset);
            }
            return hasStackItem ? moveTypes(out, at, 1) : at;
        }
        if (type < 247) {
            throw new IllegalArgumentException("A stack map frame has the unknown type " + type);
        }
        out.u1(type).u2(u2(at) + by);
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
                out.u2(u2(at) + distance);
                at += 2;
            }
        }
        return at;
    }

    private int u1(int at) {
        return image.get(at) & 0xFF;
    }

    private int u2(int at) {
        return image.getShort(at) & 0xFFFF;
    }
}
