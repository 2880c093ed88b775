package com.vantrel.command;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.nio.file.StandardOpenOption;
import java.util.Arrays;
import java.util.List;

/**
 * One question from outside, and its answer. Both are files in a folder that whoever asks has made for them, and
 * removes when it has the answer or no longer wants it:
 *
 * <ul>
 * <li>{@code question}: its words in UTF-8, each with a zero byte after it. It is deleted when it has been read, which
 *     says that somebody is at it.
 * <li>{@code answer}: a line with the {@link Answer}'s status, and after it the answer's bytes. It is there when it is
 *     whole.
 * </ul>
 */
final class Visit implements Runnable {
    private final Path folder;

    Visit(Path folder) {
        this.folder = folder;
    }

    @Override
    public void run() {
        try {
            Path question = folder.resolve("question");
            List<String> words =
                    Arrays.asList(new String(Files.readAllBytes(question), StandardCharsets.UTF_8).split("\0"));
            Files.delete(question);
            write(Questions.answer(words));
        } catch (IOException e) {
            // Whoever has asked is gone, and the folder with it: there is nobody to tell.
        }
    }

    private void write(Answer answer) throws IOException {
        Path part = folder.resolve("part");
        Files.write(part, (answer.status() + "\n").getBytes(StandardCharsets.US_ASCII), StandardOpenOption.CREATE_NEW);
        Files.write(part, answer.bytes(), StandardOpenOption.APPEND);
        Files.move(part, folder.resolve("answer"), StandardCopyOption.ATOMIC_MOVE);
    }
}
