package com.vantrel.model;

import java.io.File;
import java.nio.file.Files;
import java.nio.file.InvalidPathException;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.List;

/**
 * Where the program's source files are looked for: below folders that the user names, and below the folder that the
 * program was started in.
 */
public final class SourceFolders {
    /** Where packages usually begin below a given folder, the folder itself first. */
    private static final String[] INSIDE = {"", "src", "src/main/java", "src/main/kotlin", "src/java"};

    private final List<Path> folders = new ArrayList<>();

    /**
     * @param list folders, separated as in a class path; "~/" is the user's home; anything that is no path is left out
     */
    public SourceFolders(String list) {
        for (String folder : list.split(File.pathSeparator)) {
            add(folder.trim());
        }
        add(System.getProperty("user.dir", ""));
    }

    private void add(String folder) {
        try {
            Path path = folder.startsWith("~/") ? Paths.get(System.getProperty("user.home", ""), folder.substring(2))
                                                : Paths.get(folder);
            if (!folder.isEmpty() && !folders.contains(path.toAbsolutePath())) {
                folders.add(path.toAbsolutePath());
            }
        } catch (InvalidPathException e) {
            // Nothing lies there.
        }
    }

    /** The file of a line; null if it is in none of the folders. It asks the file system, which may take a while. */
    public Path find(StackTraceElement line) {
        if (line.getFileName() == null) {
            return null;
        }
        String name = CallSite.packageName(line).replace('.', '/') + "/" + line.getFileName();
        for (Path folder : folders) {
            for (String inside : INSIDE) {
                Path file = folder.resolve(inside).resolve(name.startsWith("/") ? name.substring(1) : name).normalize();
                if (Files.isRegularFile(file)) {
                    return file;
                }
            }
        }
        return null;
    }

    /** The folders, for a message. */
    @Override
    public String toString() {
        StringBuilder text = new StringBuilder();
        for (Path folder : folders) {
            text.append(text.length() == 0 ? "" : ", ").append(folder);
        }
        return text.toString();
    }
}
