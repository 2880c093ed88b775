package com.vantrel.model;

/** Lines of recorded stacks: whose they are, and how they are written. */
public final class CallSite {
    /**
     * Packages whose lines are not the program's: the JDK, ourselves, and the run times of languages that do not call
     * Java directly. On a stack they stand between the program and the container that it adds to. The name alone
     * decides, for a recorded stack has no classes.
     */
    private static final String[] MACHINERY = {"java.", "javax.", "sun.", "com.sun.", "jdk.", "com.apple.", "apple.",
            "com.vantrel.", "kotlin.", "groovy.lang.", "org.codehaus.groovy.", "org.apache.groovy.", "scala.",
            "clojure.lang.", "clojure.core", "org.python."};

    private CallSite() {
    }

    /** Whether a line is of the program's own code. */
    public static boolean isProgram(StackTraceElement line) {
        for (String prefix : MACHINERY) {
            if (line.getClassName().startsWith(prefix)) {
                return false;
            }
        }
        return true;
    }

    /** Class and method as a person would say them: {@code OrderForm.build}, also for a lambda in that method. */
    public static String method(StackTraceElement line) {
        String name = line.getMethodName();
        if (name.startsWith("lambda$") && name.lastIndexOf('$') > "lambda$".length()) {
            name = name.substring("lambda$".length(), name.lastIndexOf('$'));
            // These are the compiler's names for a constructor and a static initializer, whose own names no method of a
            // lambda could contain.
            name = name.equals("new") ? "<init>" : name.equals("static") ? "<clinit>" : name;
        }
        return line.getClassName().substring(packageName(line).length()).replaceFirst("^\\.", "") + "." + name;
    }

    /** The package of a line's class; empty for none. */
    public static String packageName(StackTraceElement line) {
        int end = line.getClassName().lastIndexOf('.');
        return end < 0 ? "" : line.getClassName().substring(0, end);
    }

    /** File and line, as far as the class file names them: {@code OrderForm.java:42}. */
    public static String place(StackTraceElement line) {
        if (line.isNativeMethod()) {
            return "Native Method";
        }
        if (line.getFileName() == null) {
            return "Unknown Source";
        }
        return line.getLineNumber() < 0 ? line.getFileName() : line.getFileName() + ":" + line.getLineNumber();
    }

    /** The whole line as text: {@code OrderForm.build(OrderForm.java:42)}. */
    public static String summary(StackTraceElement line) {
        return method(line) + "(" + place(line) + ")";
    }

    /** A line as a printed stack has it, which development environments turn into a link. */
    public static String link(StackTraceElement line) {
        // Without module and class loader, which a newer VM's own text has: not every reader of stacks expects them.
        return "at " + line.getClassName() + "." + line.getMethodName() + "(" + place(line) + ")";
    }
}
