// Where vantrel-rewrite puts its results, and that they do not depend on how many threads made them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "tool_kit.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace fs = std::filesystem;

namespace {

// A folder with a class file, a jar, and a tree of both.
void make_inputs(const fs::path& folder) {
    const std::string image = program_class("Program$Square");
    write(folder / "A.class", image);
    make_jar(folder / "a.jar", {{"B.class", image}, {"text", "text"}});
    write(folder / "tree/b/C.class", image);
    write(folder / "tree/a.d/text", "text");
    make_jar(folder / "tree/b.jar", {{"D.class", image}});
    fs::create_directory(folder / "tree/none");
    fs::create_symlink("b/C.class", folder / "tree/link.class");
    fs::create_directory(folder / "there");
}

struct Placed {
    const char* name;
    Words arguments;
    std::vector<std::string> made;  // in the folder out or there
    int classes;
};

class Placing : public testing::TestWithParam<Placed> {};

TEST_P(Placing, IsAsCpDoes) {
    const ScratchFolder scratch;
    make_inputs(scratch.path);
    fs::create_directory(scratch.path / "out");
    const Finished done = rewrite(GetParam().arguments, scratch.path);
    ASSERT_EQ(done.status, 0) << done.err;
    EXPECT_THAT(done.out, HasSubstr(": " + std::to_string(GetParam().classes) + " rewritten"));
    EXPECT_EQ(names_in(scratch.path / "out"), GetParam().made);
    for (const std::string& name : GetParam().made) {
        const fs::path made = scratch.path / "out" / name;
        if (fs::is_symlink(made)) {
            EXPECT_EQ(fs::read_symlink(made), "b/C.class");
        } else if (made.extension() == ".class") {
            EXPECT_THAT(contents(made), HasSubstr("com/x/Tracker"));
        } else if (made.extension() == ".jar") {
            EXPECT_THAT(entries_of(made)[0].contents, HasSubstr("com/x/Tracker"));
        } else if (fs::is_regular_file(made)) {
            EXPECT_EQ(contents(made), "text");
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Placing,
                         testing::ValuesIn(std::vector<Placed>{
                             {"ClassToFile", {"-o", "out/X.class", "A.class"}, {"X.class"}, 1},
                             {"ClassToFolder", {"-o", "out", "A.class"}, {"A.class"}, 1},
                             {"JarToFile", {"-o", "out/x.jar", "a.jar"}, {"x.jar"}, 1},
                             {"JarToNewFolder", {"-o", "out/new/", "a.jar"}, {"new", "new/a.jar"}, 1},
                             {"FolderToFolder",
                              {"-o", "out/new", "tree"},
                              {"new", "new/a.d", "new/a.d/text", "new/b", "new/b.jar", "new/b/C.class",
                               "new/link.class", "new/none"},
                              2},
                             {"FolderIntoFolder", {"-o", "out", "tree/b/"}, {"b", "b/C.class"}, 1},
                             {"FolderWithoutAName", {"-o", "out/", "tree/b/../b/."}, {"b", "b/C.class"}, 1},
                             {"SeveralIntoFolder", {"-o", "out", "a.jar", "A.class"}, {"A.class", "a.jar"}, 2},
                             {"SeveralToNewFolder",
                              {"-o", "out/new", "a.jar", "tree/b"},
                              {"new", "new/a.jar", "new/b", "new/b/C.class"},
                              2}}),
                         [](const auto& info) { return info.param.name; });

// The input itself may be replaced: it is read before the result takes its place.
TEST(Output, MayBeTheInput) {
    const ScratchFolder scratch;
    make_inputs(scratch.path);
    fs::permissions(scratch.path / "a.jar", fs::perms::owner_read | fs::perms::owner_write | fs::perms::owner_exec);
    fs::create_symlink("../a.jar", scratch.path / "there/a.jar");
    ASSERT_EQ(rewrite({"-o", "there/a.jar", "a.jar"}, scratch.path).status, 0);
    ASSERT_EQ(rewrite({"-o", ".", "A.class"}, scratch.path).status, 0);
    EXPECT_TRUE(fs::is_symlink(scratch.path / "there/a.jar"));
    EXPECT_EQ(fs::status(scratch.path / "a.jar").permissions(), fs::perms::owner_all);
    EXPECT_THAT(entries_of(scratch.path / "a.jar")[0].contents, HasSubstr("com/x/Tracker"));
    EXPECT_THAT(contents(scratch.path / "A.class"), HasSubstr("com/x/Tracker"));
    EXPECT_THAT(names_in(scratch.path / "there"), ElementsAre("a.jar"));
}

// As with cp, a file that is there lends its owner and its permissions to what replaces it, and a new one has the
// input's.
TEST(Output, HasThePermissionsThatACopyWouldHave) {
    const ScratchFolder scratch;
    const fs::perms own = fs::perms::owner_read | fs::perms::owner_write;
    write(scratch.path / "A.class", program_class());
    write(scratch.path / "old.class", "old");
    fs::permissions(scratch.path / "A.class", own);
    fs::permissions(scratch.path / "old.class", fs::perms::owner_all);
    struct stat old {};
    if (geteuid() == 0) {
        ASSERT_EQ(chown((scratch.path / "old.class").c_str(), 4711, 4712), 0);
    }
    ASSERT_EQ(stat((scratch.path / "old.class").c_str(), &old), 0);
    ASSERT_EQ(rewrite({"-o", "old.class", "A.class"}, scratch.path).status, 0);
    ASSERT_EQ(rewrite({"-o", "new.class", "A.class"}, scratch.path).status, 0);
    struct stat now {};
    ASSERT_EQ(stat((scratch.path / "old.class").c_str(), &now), 0);
    EXPECT_EQ(now.st_uid, old.st_uid);
    EXPECT_EQ(now.st_gid, old.st_gid);
    EXPECT_EQ(fs::status(scratch.path / "old.class").permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(scratch.path / "new.class").permissions(), own);
}

// Numbers run on over all inputs, in the order of each: of the arguments, of a jar, of the sorted names of a folder.
TEST(Output, NumbersClassesInOrder) {
    const ScratchFolder scratch;
    const std::string square = program_class("Program$Square");
    const std::string shape = program_class("Program$Shape");
    write(scratch.path / "Z.class", square);
    write(scratch.path / "tree/b.class", shape);
    write(scratch.path / "tree/a/z.class", square);
    write(scratch.path / "tree/a.class", "not a class, but it counts");
    make_jar(scratch.path / "a.jar", {{"z.class", shape}, {"a.class", square}});
    const Finished done = rewrite({"--map", "map", "-o", "out", "Z.class", "tree", "a.jar"}, scratch.path);
    EXPECT_EQ(done.status, 1);
    EXPECT_THAT(lines_of(contents(scratch.path / "map")),
                ElementsAre("0\t0\tProgram$Square\t<init>\t()V", "0\t1\tProgram$Square\tcorners\t()I",
                            "0\t2\tProgram$Square\t<clinit>\t()V", "1\t0\tProgram$Square\t<init>\t()V",
                            "1\t1\tProgram$Square\tcorners\t()I", "1\t2\tProgram$Square\t<clinit>\t()V",
                            "3\t0\tProgram$Shape\tcorners\t()I",  //
                            "4\t0\tProgram$Shape\tcorners\t()I",  //
                            "5\t0\tProgram$Square\t<init>\t()V", "5\t1\tProgram$Square\tcorners\t()I",
                            "5\t2\tProgram$Square\t<clinit>\t()V"));
}

// What goes to a pipe is what would go to a file, and nothing else; the rest of what is said goes to stderr.
TEST(Output, MayBeAPipe) {
    const ScratchFolder scratch;
    make_inputs(scratch.path);
    ASSERT_EQ(rewrite({"--map", "map", "-o", "out.jar", "a.jar"}, scratch.path).status, 0);
    ASSERT_EQ(rewrite({"-o", "out.class", "A.class"}, scratch.path).status, 0);
    const std::string said = "1 class: 1 rewritten, 0 too new, 0 failed\n";
    const struct {
        Words arguments;
        std::string written;
    } cases[] = {{{"-o", "-", "a.jar"}, contents(scratch.path / "out.jar")},
                 {{"-o", "-", "A.class"}, contents(scratch.path / "out.class")},
                 {{"--map", "-", "-o", "other.jar", "a.jar"}, contents(scratch.path / "map")}};
    const auto before = names_in(scratch.path);
    for (const auto& c : cases) {
        const Finished done = rewrite(c.arguments, scratch.path);
        EXPECT_EQ(done.status, 0);
        EXPECT_EQ(done.out, c.written);
        EXPECT_EQ(done.err, said);
        EXPECT_TRUE(c.arguments[0] == "-o" || fs::remove(scratch.path / "other.jar"));
        EXPECT_EQ(names_in(scratch.path), before);

        // Nothing is put in place where that cannot be written.
        Words full{"bash", "-c", "exec \"$@\" >/dev/full", "bash"};
        const Words command = rewrite_command(c.arguments);
        full.insert(full.end(), command.begin(), command.end());
        const Finished failed = run_in(scratch.path, full);
        EXPECT_EQ(failed.status, 2);
        EXPECT_EQ(failed.err, "vantrel-rewrite: cannot write to stdout: No space left on device\n");
        EXPECT_EQ(names_in(scratch.path), before);
    }
}

// What goes to a pipe is made in the folder for temporary files first.
TEST(Output, ForAPipeNeedsAFolderForTemporaryFiles) {
    const ScratchFolder scratch;
    make_inputs(scratch.path);
    const Finished done =
        run(rewrite_command({"-o", "-", "a.jar"}), {.folder = scratch.path, .environment = {"TMPDIR=/no"}});
    EXPECT_EQ(done.status, 2);
    EXPECT_EQ(done.err, "vantrel-rewrite: TMPDIR names no folder for what goes to stdout: No such file or directory\n");
    EXPECT_EQ(done.out, "");
}

// A name may hold whatever the map uses to tell its columns apart.
TEST(Output, MapEscapesNames) {
    const ScratchFolder scratch;
    std::string image = program_class("Program$Square");
    image.replace(image.find("corners"), 7, "a\tb\nc\r\\");
    write(scratch.path / "A.class", image);
    ASSERT_EQ(rewrite({"--map", "map", "-o", "out", "A.class"}, scratch.path).status, 0);
    EXPECT_THAT(lines_of(contents(scratch.path / "map")),
                ElementsAre("0\t0\tProgram$Square\t<init>\t()V", "0\t1\tProgram$Square\ta\\tb\\nc\\r\\\\\t()I",
                            "0\t2\tProgram$Square\t<clinit>\t()V"));
}

TEST(Output, IsTheSameWithAnyNumberOfThreads) {
    const ScratchFolder scratch;
    std::vector<Entry> entries;
    for (int number = 0; number < 200; ++number) {
        const std::string name = std::to_string(number) + ".class";
        entries.push_back({name, number % 7 == 3 ? "broken" : program_class()});
        write(scratch.path / "tree" / name, entries.back().contents);
    }
    make_jar(scratch.path / "a.jar", entries);
    const Finished one =
        rewrite({"--verbose", "-j", "1", "--map", "map1", "-o", "out1", "a.jar", "tree"}, scratch.path);
    EXPECT_EQ(one.out, "400 classes: 342 rewritten, 0 too new, 58 failed\n");
    for (const std::string workers : {"2", "4"}) {
        const Finished more =
            rewrite({"--verbose", "-j", workers, "--map", "map" + workers, "-o", "out" + workers, "a.jar", "tree"},
                    scratch.path);
        EXPECT_EQ(more.out, one.out);
        EXPECT_EQ(more.err, one.err);
        EXPECT_EQ(contents(scratch.path / ("map" + workers)), contents(scratch.path / "map1"));
        const Finished diff = run_in(scratch.path, {"diff", "-r", "out1", "out" + workers});
        EXPECT_EQ(diff.status, 0) << diff.out;
    }
}

}  // namespace
