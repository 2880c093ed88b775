// What vantrel-rewrite does to a jar: classes become others, all else stays.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "tool_kit.h"

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

namespace {

// The first version that is too new.
constexpr int kTooNew = 70;

TEST(Jar, KeepsAllButTheContentsOfItsClasses) {
    const ScratchFolder scratch;
    const std::vector<Entry> before{
        {"META-INF/", "", 946782246, true},
        {"META-INF/MANIFEST.MF", "Manifest-Version: 1.0\r\nMain-Class: Program\r\n\r\n", 1000000000},
        {"z/stored.bin", std::string("\0\1\2", 3), 315532800, true, "the first second of an archive's time"},
        {"Program.class", program_class(), 1111111110, false, "a class"},
        {"a/empty", "", 1234567890, true},
        {"a/noclass", "its name only ends like a class", 1234567890, true},
        {"Program$Square.class", program_class("Program$Square"), 1711852200, true,
         "half past two on a day without that hour"},
        {"lib/inner.jar", contents(kProgramJar), 1300000000, true},
        {"META-INF/versions/8/Program.class", program_class(), 1400000000},
    };
    make_jar(scratch.path / "in.jar", before, "the jar's own words");

    const Finished done = run(rewrite_command({"-o", "out.jar", "in.jar"}),
                              {.folder = scratch.path, .environment = {"TZ=CET-1CEST,M3.5.0,M10.5.0/3"}});

    ASSERT_EQ(done.status, 0) << done.err;
    EXPECT_EQ(done.out, "6 classes: 6 rewritten, 0 too new, 0 failed\n");
    EXPECT_EQ(done.err, "");
    std::vector<Entry> after = entries_of(scratch.path / "out.jar");
    ASSERT_EQ(after.size(), before.size());
    for (size_t index = 0; index < before.size(); ++index) {
        if (before[index].name.ends_with(".class")) {
            EXPECT_THAT(after[index].contents, AllOf(HasSubstr("com/x/Tracker"), HasSubstr("entered")));
        }
        if (before[index].name.ends_with(".class") || before[index].name.ends_with(".jar")) {
            after[index].contents = before[index].contents;
        }
        EXPECT_EQ(after[index], before[index]) << before[index].name;
    }
    EXPECT_EQ(comment_of(scratch.path / "out.jar"), "the jar's own words");
}

// The jar tool writes sizes after the entries and marks a jar as one; zip adds times and owners of its own.
TEST(Jar, OfOtherToolsKeepsTheRecordsOfItsEntries) {
    const ScratchFolder scratch;
    write(scratch.path / "files/Program.class", program_class());
    write(scratch.path / "files/text", std::string(1000, 'x'));
    ASSERT_EQ(run_in(scratch.path / "files", {"zip", "-qr", "../in.jar", "."}).status, 0);
    ASSERT_EQ(rewrite({"-o", "out.jar", "in.jar"}, scratch.path).status, 0);
    const auto record = [&](const std::string& jar, const std::string& entry) {
        std::string kept;
        for (const std::string& line : lines_of(run({"unzip", "-Zv", (scratch.path / jar).string(), entry}).out)) {
            for (const char* what : {"modified on", "extra field", "attributes", "compression method", "subfield"}) {
                kept += line.find(what) != std::string::npos ? line + "\n" : "";
            }
        }
        return kept;
    };
    for (const char* entry : {"Program.class", "text"}) {
        EXPECT_THAT(record("in.jar", entry), AllOf(HasSubstr("UT extra field"), HasSubstr("Unix file attributes")));
        EXPECT_EQ(record("out.jar", entry), record("in.jar", entry));
    }
}

// The jar tool writes sizes after the contents, where those who read a jar from a pipe look for them.
TEST(Jar, MayBeReadFromAPipeAsBefore) {
    const ScratchFolder scratch;
    const std::string text(1000, 'x');
    write(scratch.path / "files/Program.class", program_class());
    write(scratch.path / "files/a", text);
    write(scratch.path / "files/z", text);
    const Words jar{kJdk / "bin/jar", "cf", "in.jar", "-C", "files"};
    for (const char* name : {"a", "Program.class", "z"}) {
        Words command = jar;
        command.emplace_back(name);
        command[1] = fs::exists(scratch.path / "in.jar") ? "uf" : "cf";
        ASSERT_EQ(run_in(scratch.path, command).status, 0);
    }
    ASSERT_EQ(rewrite({"-o", "out.jar", "in.jar"}, scratch.path).status, 0);
    fs::create_directory(scratch.path / "out");
    const Finished piped = run_in(scratch.path / "out", {"bash", "-c", "exec \"$0\" x <../out.jar", kJdk / "bin/jar"});
    EXPECT_EQ(piped.status, 0) << piped.err;
    EXPECT_THAT(contents(scratch.path / "out/Program.class"), HasSubstr("com/x/Tracker"));
    EXPECT_EQ(contents(scratch.path / "out/a"), text);
    EXPECT_EQ(contents(scratch.path / "out/z"), text);
}

// The layout of programs that are one jar: their own classes, and their libraries as jars. Numbers go on in these.
TEST(Jar, IsRewrittenWithTheJarsInIt) {
    const ScratchFolder scratch;
    const std::string square = program_class("Program$Square");
    make_jar(scratch.path / "deep.jar", {{"A.class", square}, {"lib/deeper.jar", contents(kProgramJar)}});
    make_jar(scratch.path / "text.jar", {{"text", "text"}});
    const std::string deep = contents(scratch.path / "deep.jar");
    const std::string text = contents(scratch.path / "text.jar");
    const std::vector<Entry> before{
        {"lib/first.jar", deep, 1300000000, true},   {"classes/Program.class", program_class()},
        {"lib/packed.jar", deep, 1300000000, false}, {"lib/no.jar", "no jar", 1300000000, true},
        {"lib/text.jar", text, 1300000000, true},    {"classes/Shape.class", program_class("Program$Shape")}};
    make_jar(scratch.path / "in.jar", before);
    const Finished done = rewrite({"--map", "map", "-o", "out.jar", "in.jar"}, scratch.path);
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.out, "4 classes: 4 rewritten, 0 too new, 0 failed\n");
    EXPECT_EQ(done.err, "cannot read in.jar: lib/no.jar: Not a zip archive (is it a whole jar?); it is carried over\n");
    EXPECT_THAT(lines_of(contents(scratch.path / "map")),
                AllOf(Contains("0\t1\tProgram$Square\tcorners\t()I"), Contains(HasSubstr("1\t2\tProgram\t")),
                      Contains("2\t1\tProgram$Square\tcorners\t()I"), Contains("3\t0\tProgram$Shape\tcorners\t()I")));
    std::vector<Entry> after = entries_of(scratch.path / "out.jar");
    ASSERT_EQ(after.size(), before.size());
    for (size_t index = 0; index < before.size(); ++index) {
        if (before[index].contents == deep) {
            write(scratch.path / "inner.jar", after[index].contents);
            const std::vector<Entry> inner = entries_of(scratch.path / "inner.jar");
            ASSERT_EQ(inner.size(), 2U);
            EXPECT_THAT(inner[0].contents, HasSubstr("com/x/Tracker"));
            EXPECT_EQ(inner[1].contents, contents(kProgramJar)) << "one level only";
        }
        if (before[index].contents == deep || before[index].name.ends_with(".class")) {
            EXPECT_NE(after[index].contents, before[index].contents);
            after[index].contents = before[index].contents;
        }
        EXPECT_EQ(after[index], before[index]) << before[index].name;
    }
}

// Programs for a shell that are a jar from some place on, which the jar may know of or not.
TEST(Jar, KeepsAScriptInFrontOfIt) {
    const ScratchFolder scratch;
    const std::string script = "#!/bin/sh\nexec \"$JAVA\" -jar \"$0\"\n";
    for (const bool knows : {false, true}) {
        const fs::path start = scratch.path / "start";
        write(start, script + contents(kProgramJar));
        fs::permissions(start, fs::perms::owner_all);
        if (knows) {
            ASSERT_EQ(run({"zip", "-qA", start}).status, 0);
        }
        const Finished done =
            run_in(scratch.path, {kRewrite, "--tracker", "com.x.T", "--object-init", "made", "-o", "tracked", "start"});
        EXPECT_EQ(done.status, 0);
        EXPECT_EQ(done.out + done.err, "3 classes: 3 rewritten, 0 too new, 0 failed\n");
        EXPECT_EQ(contents(scratch.path / "tracked").substr(0, script.size()), script);
        EXPECT_NE(contents(scratch.path / "tracked"), contents(start));
        const Finished program = run({scratch.path / "tracked"},
                                     {.folder = scratch.path, .environment = {"JAVA=" + (kJdk / "bin/java").string()}});
        EXPECT_EQ(program.out, "24 55 4\n") << program.err;
        const bool is_well = run({"unzip", "-tq", scratch.path / "tracked"}).status == 0;
        EXPECT_EQ(is_well, knows) << "unzip warns of positions that do not count the script";
    }
}

// More than the numbers in the usual records can tell.
TEST(Jar, MayHaveManyEntries) {
    const ScratchFolder scratch;
    std::vector<Entry> entries(66000, {"", "", 946782246, true});
    for (size_t index = 0; index < entries.size(); ++index) {
        entries[index].name = std::to_string(index);
    }
    entries.back() = {"Program.class", program_class()};
    make_jar(scratch.path / "in.jar", entries);
    ASSERT_EQ(rewrite({"-o", "out.jar", "in.jar"}, scratch.path).status, 0);
    const std::vector<Entry> after = entries_of(scratch.path / "out.jar");
    ASSERT_EQ(after.size(), entries.size());
    EXPECT_EQ(after[65999].name, "Program.class");
    EXPECT_THAT(after[65999].contents, HasSubstr("com/x/Tracker"));
}

TEST(Jar, CopiesAndNamesWhatItCannotRewrite) {
    const ScratchFolder scratch;
    const std::string image = program_class();
    const std::string in_sum = "\x1A\x9A";  // iload_0, ifne
    make_jar(scratch.path / "in.jar", {
                                          {"New.class", of_version(image, kTooNew)},
                                          {"Program.class", image},
                                          {"Cut.class", image.substr(0, 200)},
                                          {"Text\033[2J.class", "no class at all"},
                                          {"Empty.class", ""},
                                          {"Long.class", image + "more"},
                                          {"Bad.class", std::string(image).replace(image.find(in_sum), 1, "\xCB")},
                                      });
    const std::vector<Entry> before = entries_of(scratch.path / "in.jar");

    const Finished quiet = rewrite({"--map", "quiet.map", "-o", "quiet.jar", "in.jar"}, scratch.path);
    EXPECT_EQ(quiet.status, 1);
    EXPECT_EQ(quiet.out, "7 classes: 1 rewritten, 1 too new, 5 failed (--verbose names them)\n");
    std::vector<std::string> lines{
        "in.jar: Cut.class: not rewritten: it ends in the middle of its constant pool",
        "in.jar: Text\\x1b[2J.class: not rewritten: it does not begin as a class file does",
        "in.jar: Empty.class: not rewritten: it is empty",
        "in.jar: Long.class: not rewritten: 4 bytes come after its end, which no VM accepts",
        "in.jar: Bad.class: not rewritten: class Program, method sum(I)I, pc 0: The class file contradicts itself.",
        "vantrel-rewrite: 1 class is newer than version 69 and carried over as it is"};
    EXPECT_EQ(lines_of(quiet.err), lines);

    const Finished verbose = rewrite({"--verbose", "--map", "map", "-o", "out.jar", "in.jar"}, scratch.path);
    EXPECT_EQ(verbose.status, 1);
    EXPECT_EQ(verbose.out, "7 classes: 1 rewritten, 1 too new, 5 failed\n");
    lines.insert(lines.begin(), "in.jar: New.class: not rewritten: version 70 is newer than 69");
    EXPECT_EQ(lines_of(verbose.err), lines);

    const std::vector<Entry> after = entries_of(scratch.path / "out.jar");
    ASSERT_EQ(after.size(), before.size());
    for (size_t index = 0; index < before.size(); ++index) {
        EXPECT_EQ(after[index] == before[index], before[index].name != "Program.class") << before[index].name;
    }
    for (const std::string& line : lines_of(contents(scratch.path / "map"))) {
        EXPECT_THAT(line, HasSubstr("1\t")) << "the second class, and no other";
        EXPECT_THAT(line, HasSubstr("\tProgram\t"));
    }
    EXPECT_EQ(contents(scratch.path / "quiet.jar"), contents(scratch.path / "out.jar"));
}

// The tracker would call itself without end.
TEST(Jar, KeepsTheTrackerAndWhatIsToBeKept) {
    const ScratchFolder scratch;
    const std::vector<Entry> before{{"a/Program.class", program_class()},
                                    {"Shape.class", program_class("Program$Shape")},
                                    {"Square.class", program_class("Program$Square")}};
    make_jar(scratch.path / "in.jar", before);
    const struct {
        std::string tracker;
        Words options;
        std::vector<const char*> reasons;  // of the three; nullptr for what is rewritten
    } cases[] = {
        {"Program",
         {},
         {"it is the tracker class", "it is a part of the tracker class", "it is a part of the tracker class"}},
        {"Program$Square", {}, {nullptr, nullptr, "it is the tracker class"}},
        {"Prog", {}, {nullptr, nullptr, nullptr}},
        {"T", {"--keep", "Program$*a*e"}, {nullptr, "--keep names it", "--keep names it"}},
        {"T", {"--keep", "Program", "--keep=*pe"}, {"--keep names it", "--keep names it", nullptr}},
        {"T", {"--keep", "*a*rog*", "--keep", "rogram"}, {nullptr, nullptr, nullptr}},
    };
    for (const auto& c : cases) {
        Words command{kRewrite, "--tracker", c.tracker, "--call", "entered", "-o", "out.jar", "in.jar"};
        command.insert(command.end(), c.options.begin(), c.options.end());
        const Finished done = run_in(scratch.path, command);
        EXPECT_EQ(done.status, 0) << done.err;
        const std::vector<Entry> after = entries_of(scratch.path / "out.jar");
        std::string notes;
        for (size_t index = 0; index < before.size(); ++index) {
            EXPECT_EQ(after[index] == before[index], c.reasons[index] != nullptr) << before[index].name;
            if (c.reasons[index] != nullptr) {
                notes += "in.jar: " + before[index].name + ": not rewritten: " + c.reasons[index] + "\n";
            }
        }
        EXPECT_EQ(done.err, notes);
        EXPECT_EQ(done.out.find(" kept") != std::string::npos, !notes.empty()) << done.out;
    }
}

TEST(Jar, NamesTenOfWhatFails) {
    const ScratchFolder scratch;
    for (const auto& [count, last] : {std::pair(10, "in.jar: 9.class: not rewritten: it is empty"),
                                      std::pair(12, "... and 2 more failed; --verbose names all")}) {
        std::vector<Entry> entries;
        entries.reserve(count);
        for (int number = 0; number < count; ++number) {
            entries.push_back({std::to_string(number) + ".class", ""});
        }
        make_jar(scratch.path / "in.jar", entries);
        const std::vector<std::string> lines = lines_of(rewrite({"-o", "out.jar", "in.jar"}, scratch.path).err);
        ASSERT_EQ(lines.size(), std::min(count, 11));
        EXPECT_EQ(lines.back(), last);
    }
}

// Class files that are too new are no failure, and a jar of nothing else is left alone, signature and all.
TEST(Jar, OfTooNewClassesIsCopiedByteForByte) {
    const ScratchFolder scratch;
    make_jar(scratch.path / "in.jar",
             {{"META-INF/MANIFEST.MF", "Manifest-Version: 1.0\r\n\r\nName: New.class\r\nSHA-256-Digest: AA==\r\n\r\n"},
              {"META-INF/A.SF", "signature"},
              {"New.class", of_version(program_class(), kTooNew)}});
    const Finished done = rewrite({"-o", "out.jar", "in.jar"}, scratch.path);
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.out, "1 class: 0 rewritten, 1 too new, 0 failed (--verbose names them)\n");
    EXPECT_EQ(done.err, "vantrel-rewrite: nothing was rewritten: all classes are newer than version 69\n");
    EXPECT_EQ(contents(scratch.path / "out.jar"), contents(scratch.path / "in.jar"));
}

// An entry whose packed bytes are damaged cannot be read, but it can be carried over.
TEST(Jar, CarriesADamagedClassOver) {
    const ScratchFolder scratch;
    const std::string marker = "these bytes will be others";
    // Long enough for its header to be read: what is no class at once is not read to its end.
    const std::string bad = program_class().substr(0, 8) + marker;
    make_jar(scratch.path / "in.jar", {{"Program.class", program_class()}, {"Bad.class", bad, 946782246, true}});
    std::string jar = contents(scratch.path / "in.jar");
    jar.replace(jar.find(marker), 5, "THESE");
    write(scratch.path / "in.jar", jar);

    const Finished done = rewrite({"--verbose", "-o", "out.jar", "in.jar"}, scratch.path);

    EXPECT_EQ(done.status, 1);
    EXPECT_THAT(done.err, HasSubstr("in.jar: Bad.class: not rewritten: cannot read in.jar: CRC error"));
    EXPECT_THAT(contents(scratch.path / "out.jar"), HasSubstr("THESE bytes will be others"));
}

TEST(Jar, ThatWasSignedWorksUnsigned) {
    const ScratchFolder scratch;
    const std::string keys = scratch.path / "keys";
    const Finished keytool = run({kJdk / "bin/keytool", "-genkeypair", "-keystore", keys, "-storepass", "secret",
                                  "-alias", "me", "-keyalg", "EC", "-dname", "CN=me"});
    ASSERT_EQ(keytool.status, 0) << keytool.out << keytool.err;
    // A class that is left alone, so that its digest must go as well as the others'.
    std::vector<Entry> entries = entries_of(kProgramJar);
    entries.push_back({"a/name/that/is/long/enough/for/the/manifest/to/break/its/line/in/two/New.class",
                       of_version(program_class(), kTooNew)});
    make_jar(scratch.path / "in.jar", entries);
    const Finished jarsigner =
        run({kJdk / "bin/jarsigner", "-keystore", keys, "-storepass", "secret", scratch.path / "in.jar", "me"});
    ASSERT_EQ(jarsigner.status, 0) << jarsigner.out << jarsigner.err;
    ASSERT_THAT(entry_names(scratch.path / "in.jar"), AllOf(Contains("META-INF/ME.SF"), Contains("META-INF/ME.EC")));

    const Finished done =
        run_in(scratch.path, {kRewrite, "--tracker", "T", "--object-init", "o", "-o", "out.jar", "in.jar"});

    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err,
              "in.jar: signed; the result is not (2 signature files dropped)\n"
              "vantrel-rewrite: 1 class is newer than version 69 and carried over as it is\n");
    const std::string jar = scratch.path / "out.jar";
    EXPECT_THAT(entry_names(jar), Not(Contains(HasSubstr("META-INF/ME."))));
    std::string manifest;
    for (const Entry& entry : entries_of(jar)) {
        manifest += entry.name == "META-INF/MANIFEST.MF" ? entry.contents : "";
    }
    EXPECT_THAT(manifest,
                AllOf(HasSubstr("Main-Class: Program\r\n"), Not(HasSubstr("Digest")), Not(HasSubstr("Name:"))));
    EXPECT_THAT(run({kJdk / "bin/jarsigner", "-verify", jar}).out, HasSubstr("jar is unsigned"));
    EXPECT_EQ(run({kJdk / "bin/java", "-jar", jar}).out, "24 55 4\n");
}

// What a manifest says of entries beside their digests stays.
TEST(Jar, LosesDigestsFromItsManifestAndNothingElse) {
    const ScratchFolder scratch;
    const std::string kept =
        "Manifest-Version: 1.0\nX-Digest-Algorithms: kept, being no entry's\n\n"
        "Name: a\nSealed: true\n\n";
    make_jar(scratch.path / "in.jar",
             {{"META-INF/manifest.mf", kept + "Name: Program.class\nSHA-256-Digest: AAAA\n BBBB\n\n"
                                              "Name: b\nSHA1-Digest-fr: AAAA\nComment: kept\nsha-512-digest: CCCC\n\n"
                                              "Name: c\n\n"},
              {"META-INF/a.sf", "signature"},
              {"META-INF/a.rsa", "signature"},
              {"META-INF/A.DSA", "signature"},
              {"META-INF/sig-a", "signature"},
              {"META-INF/services/a.SF", "no signature"},
              {"a.RSA", "no signature"},
              {"Program.class", program_class()}});
    const Finished done = rewrite({"-o", "out.jar", "in.jar"}, scratch.path);
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "in.jar: signed; the result is not (4 signature files dropped)\n");
    EXPECT_THAT(entry_names(scratch.path / "out.jar"),
                ElementsAre("META-INF/manifest.mf", "META-INF/services/a.SF", "a.RSA", "Program.class"));
    EXPECT_EQ(entries_of(scratch.path / "out.jar")[0].contents, kept + "Name: b\nComment: kept\n\nName: c\n\n");
}

}  // namespace
