package com.vantrel.model;

import java.io.File;
import java.io.IOException;
import java.lang.ProcessBuilder.Redirect;
import java.nio.file.Path;
import java.util.Map;
import java.util.function.Consumer;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

/**
 * Opens lines in the user's editor: {@link #COMMAND} is the command, {@link #SOURCES} says where source files are. Each
 * attempt has a thread of its own, because it may have to wait.
 */
public final class Editor {
    /** Names of {@link Settings}. The source folders are separated as in a class path. */
    public static final String COMMAND = "editor";
    public static final String SOURCES = "sources";

    /** What became of an attempt, in one line for the user. */
    public static final class Outcome {
        private final String line;
        private final boolean isFailure;

        public Outcome(String line, boolean isFailure) {
            this.line = line;
            this.isFailure = isFailure;
        }

        public String line() {
            return line;
        }

        public boolean isFailure() {
            return isFailure;
        }
    }

    /**
     * The system's reason in the text of an exception: "error=2, No such file" or, on newer VMs, "error: 2 (No such
     * file)".
     */
    private static final Pattern REASON = Pattern.compile("error[=:] ?\\d+[ ,(]+([^)]+)");

    private Editor() {
    }

    /** Whether the user has set a command. */
    public static boolean isSet() {
        return !Settings.get(COMMAND, "").trim().isEmpty();
    }

    /**
     * Opens a line. Returns at once.
     *
     * @param told hears on another thread what became of it: that the editor was started, or why it was not; and a
     *             second time, if the editor ends by itself and says by its status that it failed
     */
    public static void open(StackTraceElement line, Consumer<Outcome> told) {
        Thread thread = new Thread(() -> {
            try {
                start(line, told);
            } catch (IllegalArgumentException | IOException e) {
                told.accept(new Outcome(e.getMessage(), true));
            } catch (InterruptedException e) {
                // Somebody ends all threads, so nobody waits for the editor's status any more.
            }
        }, "vantrel-editor");
        thread.setDaemon(true);
        thread.start();
    }

    private static void start(StackTraceElement line, Consumer<Outcome> told) throws IOException, InterruptedException {
        EditorCommand command = new EditorCommand(Settings.get(COMMAND, ""));
        SourceFolders folders = new SourceFolders(Settings.get(SOURCES, ""));
        Path file = folders.find(line);
        if (file == null) {
            String name = line.getFileName() == null ? "the source of " + line.getClassName() : line.getFileName();
            throw new IOException(name + " was not found; source folders: " + folders);
        }
        ProcessBuilder builder = new ProcessBuilder(command.words(file, line.getLineNumber()));
        // The editor may outlive the program, so nothing may tie it to this VM: neither a pipe nor an output that is
        // the program's.
        File nothing = new File(File.separatorChar == '/' ? "/dev/null" : "NUL");
        builder.redirectInput(nothing).redirectOutput(Redirect.to(nothing)).redirectError(Redirect.to(nothing));
        leaveOutTheAgent(builder.environment());
        String name = builder.command().get(0);
        Process process;
        try {
            process = builder.start();
        } catch (IOException e) {
            throw new IOException("the editor '" + name + "' does not start: " + reason(e));
        }
        told.accept(new Outcome("opened " + CallSite.place(line) + " in " + new File(name).getName(), false));
        int status = process.waitFor();
        if (status != 0) {
            told.accept(new Outcome("the editor '" + name + "' has ended with status " + status, true));
        }
    }

    /**
     * Where the agent came into this program by an environment variable, an editor that runs on Java would inherit it.
     */
    private static void leaveOutTheAgent(Map<String, String> environment) {
        String options = environment.get("JAVA_TOOL_OPTIONS");
        if (options != null && options.contains("vantrel-agent")) {
            environment.remove("JAVA_TOOL_OPTIONS");
        }
    }

    /** What the system said, without what Java puts around it. */
    private static String reason(IOException e) {
        String text = String.valueOf(e.getMessage());
        Matcher reason = REASON.matcher(text);
        return reason.find() ? reason.group(1).trim() : text;
    }
}
