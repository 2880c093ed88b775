package com.vantrel.watch;

import com.vantrel.model.CallSite;

/** The program's line on a stack. */
final class ProgramLine {
    private ProgramLine() {
    }

    /** Whether a call is only what the VM has made to get into a lambda, which some VMs show and others do not. */
    static boolean isGlue(StackTraceElement line) {
        return line.getClassName().contains("$$Lambda");
    }

    /**
     * Where the innermost call of the program is.
     *
     * @param stack innermost call first
     * @return its index; the length of the stack where there is none
     */
    static int in(StackTraceElement[] stack) {
        int at = 0;
        while (at < stack.length && (isGlue(stack[at]) || !CallSite.isProgram(stack[at]))) {
            at++;
        }
        return at;
    }
}
