package com.vantrel.util;

import java.nio.ByteBuffer;

/**
 * The instructions of the VM, as far as the companion walks through code or writes some of its own (JVM specification,
 * chapter 6). The set has not changed since Java 7. An unknown instruction is refused, because its length could only be
 * guessed.
 */
final class Instructions {
    static final int NOP = 0x00;
    static final int LDC_W = 0x13;
    static final int ALOAD_0 = 0x2A;
    static final int ALOAD_1 = 0x2B;
    static final int POP = 0x57;
    static final int IFEQ = 0x99;
    static final int ARETURN = 0xB0;
    static final int RETURN = 0xB1;
    static final int GETFIELD = 0xB4;
    static final int PUTFIELD = 0xB5;
    static final int INVOKEVIRTUAL = 0xB6;
    static final int INVOKESTATIC = 0xB8;
    static final int IFNULL = 0xC6;

    private static final int TABLESWITCH = 0xAA;
    private static final int LOOKUPSWITCH = 0xAB;
    private static final int WIDE = 0xC4;
    private static final int IINC = 0x84;

    /** The length of each instruction by its opcode, 16 to a line; 0 for the three that have no fixed one. */
    private static final String LENGTHS = ""
            + "1111111111111111" // 00 nop, constants
            + "2323322222111111" // 10 bipush, sipush, ldc, ldc_w, ldc2_w, loads; from 1a on short loads
            + "1111111111111111" // 20
            + "1111112222211111" // 30 array loads, stores
            + "1111111111111111" // 40
            + "1111111111111111" // 50 array stores, stack
            + "1111111111111111" // 60 arithmetic
            + "1111111111111111" // 70
            + "1111311111111111" // 80 84 is iinc; conversions
            + "1111111113333333" // 90 comparisons; from 99 on jumps
            + "3333333332001111" // a0 goto, jsr, ret, the switches, returns
            + "1133333335532311" // b0 returns, fields, calls, new, arrays, athrow
            + "3311043355"; // c0 casts, monitors, wide, multianewarray, ifnull, ifnonnull, goto_w, jsr_w

    private Instructions() {
    }

    /**
     * The length of an instruction, in bytes.
     *
     * @param code holds the method's code
     * @param base where in the buffer that code begins: switches are padded to a multiple of four from there
     * @param at   where in the buffer the instruction begins
     * @throws IllegalArgumentException if there is no such instruction in a class file
     */
    static int length(ByteBuffer code, int base, int at) {
        int opcode = code.get(at) & 0xFF;
        int operands = at + 4 - (at - base) % 4; // of a switch
        switch (opcode) {
            case TABLESWITCH:
                return operands + 12 + 4 * (code.getInt(operands + 8) - code.getInt(operands + 4) + 1) - at;
            case LOOKUPSWITCH:
                return operands + 8 + 8 * code.getInt(operands + 4) - at;
            case WIDE:
                return (code.get(at + 1) & 0xFF) == IINC ? 6 : 4;
            default:
                if (opcode >= LENGTHS.length()) {
                    throw new IllegalArgumentException("Code has the unknown instruction " + opcode);
                }
                return LENGTHS.charAt(opcode) - '0';
        }
    }
}
