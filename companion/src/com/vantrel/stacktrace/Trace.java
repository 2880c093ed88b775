package com.vantrel.stacktrace;

import java.util.Arrays;

/**
 * The stack of one addition: the frames as the VM noted them or, once somebody has asked, the elements. Frames keep
 * the classes on them loaded; elements do not.
 */
final class Trace {
    /** A Throwable, never thrown, or a StackTraceElement[]. */
    private volatile Object stack;

    /** @param frames made by {@link StackTraceManager#take}, on the stack that is to be told */
    Trace(Throwable frames) {
        stack = frames;
    }

    /** @param elements innermost call first; copied */
    Trace(StackTraceElement[] elements) {
        stack = elements.clone();
    }

    /** The elements, innermost call first, in an array of the caller's own. */
    StackTraceElement[] elements() {
        Object known = stack;
        if (known instanceof Throwable) {
            known = withoutOurs(((Throwable) known).getStackTrace());
            stack = known;
        }
        return ((StackTraceElement[]) known).clone();
    }

    /**
     * Leaves out our own calls, which are innermost: those from the container's method to where the throwable was made.
     */
    private static StackTraceElement[] withoutOurs(StackTraceElement[] all) {
        int ours = 0;
        while (ours < all.length && isOurs(all[ours])) {
            ours++;
        }
        return Arrays.copyOfRange(all, ours, all.length);
    }

    private static boolean isOurs(StackTraceElement frame) {
        return frame.getClassName().equals(StackTraceManager.class.getName())
                || frame.getMethodName().startsWith("vantrel$");
    }
}
