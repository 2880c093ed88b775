// Programs that vantrel-rewrite has rewritten, in a VM that verifies them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

#include "tool_kit.h"

using testing::AllOf;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

namespace {

// Compiles com.x.Tracker into the folder `tracker`.
void compile_tracker(const fs::path& folder, const std::string& source) {
    write(folder / "Tracker.java", source);
    const Finished javac = run_in(folder, {kJdk / "bin/javac", "--release", "8", "-Xlint:all,-options", "-Werror", "-d",
                                           "tracker", "Tracker.java"});
    ASSERT_EQ(javac.status, 0) << javac.out << javac.err;
}

Finished run_program(const fs::path& folder) {
    return run_in(folder, {kJdk / "bin/java", "-cp", "tracked.jar:tracker", "Program"});
}

// The manual's example, as it stands there.
std::string tracker_of_manual() {
    const std::string manual = contents(VANTREL_REWRITE_MANUAL);
    const std::string begin = "```java\n";
    const size_t from = manual.find(begin) + begin.size();
    return manual.substr(from, manual.find("```", from) - from);
}

TEST(RewrittenProgram, IsCountedByTheManualsTracker) {
    const ScratchFolder scratch;
    compile_tracker(scratch.path, tracker_of_manual());
    // The tracker is in the input, too; it must not call itself.
    std::vector<Entry> entries = entries_of(kProgramJar);
    entries.push_back({"com/x/Tracker.class", contents(scratch.path / "tracker/com/x/Tracker.class")});
    make_jar(scratch.path / "program.jar", entries);
    const Finished done = rewrite({"--return", "left", "--new-array", "made", "--tracker-path", "program.jar:tracker",
                                   "-o", "tracked.jar", "program.jar"},
                                  scratch.path);
    ASSERT_EQ(done.status, 0) << done.err;
    fs::remove_all(scratch.path / "tracker");
    const Finished program = run_program(scratch.path);
    EXPECT_EQ(program.status, 0);
    EXPECT_EQ(program.out, "24 55 4\n");
    // main, array 7 times, fail (which does not return), sum 11 times, a square set up, made and asked; 7 arrays and a
    // double one
    EXPECT_EQ(program.err, "23 calls, 22 returns, 8 arrays\n");
}

TEST(RewrittenProgram, IsReadWithTheMap) {
    const ScratchFolder scratch;
    compile_tracker(scratch.path,
                    "package com.x;\n"
                    "public final class Tracker {\n"
                    "    public static void entered(int type, int method) {\n"
                    "        System.err.println(type + \"\\t\" + method);\n"
                    "    }\n"
                    "}\n");
    // Two classes before the program's own, so that its numbers are not those of its jar.
    write(scratch.path / "Program$Square.class", program_class("Program$Square"));
    write(scratch.path / "Program$Shape.class", program_class("Program$Shape"));
    fs::copy_file(kProgramJar, scratch.path / "tracked.jar");
    ASSERT_EQ(rewrite({"--map", "map", "-o", "out", "Program$Square.class", "Program$Shape.class", "tracked.jar"},
                      scratch.path)
                  .status,
              0);
    fs::rename(scratch.path / "out/tracked.jar", scratch.path / "tracked.jar");
    std::map<std::string, std::string> methods;
    for (const std::string& line : lines_of(contents(scratch.path / "map"))) {
        const size_t tab = line.find('\t', line.find('\t') + 1);
        methods[line.substr(0, tab)] = line.substr(tab + 1);
    }
    std::vector<std::string> entered;
    for (const std::string& line : lines_of(run_program(scratch.path).err)) {
        entered.push_back(methods[line]);
    }
    std::vector<std::string> expected{"Program\tmain\t([Ljava/lang/String;)V"};
    expected.insert(expected.end(), 7, "Program\tarray\t(I)[I");
    expected.emplace_back("Program\tfail\t()V");
    expected.insert(expected.end(), 11, "Program\tsum\t(I)I");
    expected.emplace_back("Program$Square\t<clinit>\t()V");
    expected.emplace_back("Program$Square\t<init>\t()V");
    expected.emplace_back("Program$Square\tcorners\t()I");
    EXPECT_THAT(entered, ElementsAreArray(expected));
}

// Letters outside of the basic plane are two characters in a class file.
TEST(RewrittenProgram, CallsATrackerOfAnyName) {
    const ScratchFolder scratch;
    const std::vector<std::string> locale{"LC_ALL=C.UTF-8"};
    write(scratch.path / "Tracker.java",
          "package \xC3\xA9; public class \xF0\x9D\x92\x9C {"
          "public static void \xF0\x9D\x92\x9Ez(int type, int method) { System.err.println(\"called\"); } }");
    fs::rename(scratch.path / "Tracker.java", scratch.path / "\xF0\x9D\x92\x9C.java");
    const Finished javac = run({kJdk / "bin/javac", "-encoding", "UTF-8", "--release", "8", "-Xlint:-options", "-d",
                                "tracker", "\xF0\x9D\x92\x9C.java"},
                               {.folder = scratch.path, .environment = locale});
    ASSERT_EQ(javac.status, 0) << javac.out << javac.err;
    const Finished done =
        run_in(scratch.path, {kRewrite, "--tracker", "\xC3\xA9.\xF0\x9D\x92\x9C", "--tracker-path", "tracker", "--call",
                              "\xF0\x9D\x92\x9Ez", "-o", "tracked.jar", kProgramJar});
    ASSERT_EQ(done.status, 0) << done.err;
    const Finished program = run({kJdk / "bin/java", "-cp", "tracked.jar:tracker", "Program"},
                                 {.folder = scratch.path, .environment = locale});
    EXPECT_EQ(program.out, "24 55 4\n");
    EXPECT_EQ(lines_of(program.err), std::vector<std::string>(23, "called"));
}

// Methods may be in a class that the tracker extends.
TEST(Tracker, IsCheckedWhereItsPathIsKnown) {
    const ScratchFolder scratch;
    compile_tracker(scratch.path,
                    "package com.x;\n"
                    "class Base {\n"
                    "    public static void entered(int type, int method) { }\n"
                    "}\n"
                    "public final class Tracker extends Base {\n"
                    "    public void unbound(int type, int method) { }\n"
                    "    static void hidden(Object array) { }\n"
                    "    public static void made(Object array) { }\n"
                    "}\n");
    const struct {
        Words calls;
        std::string says;
    } cases[] = {
        {{"--new-array", "made", "--object-init", "made"}, ""},
        {{"--return", "unbound"}, "the method unbound(II)V of com.x.Tracker is not static"},
        {{"--new-array", "hidden"}, "the method hidden(Ljava/lang/Object;)V of com.x.Tracker is not public"},
        {{"--object-init", "none"}, "com.x.Tracker has no method none(Ljava/lang/Object;)V"},
        {{"--return", "made"}, "com.x.Tracker has no method made(II)V; there is made(Ljava/lang/Object;)V"},
    };
    for (const auto& c : cases) {
        Words arguments{"--tracker-path", "tracker", "-o", "out.jar", kProgramJar};
        arguments.insert(arguments.end(), c.calls.begin(), c.calls.end());
        const Finished done = rewrite(arguments, scratch.path);
        EXPECT_EQ(done.status, c.says.empty() ? 0 : 2);
        EXPECT_EQ(done.err, c.says.empty() ? "" : "vantrel-rewrite: --tracker-path: " + c.says + "\n");
        EXPECT_EQ(fs::remove(scratch.path / "out.jar"), c.says.empty());
    }
}

// Each option names what it names, the tracker with dots or with slashes, and what is not asked for is not there.
TEST(RewrittenClass, HoldsTheNamesThatWereGiven) {
    const ScratchFolder scratch;
    write(scratch.path / "A.class", program_class());
    const std::vector<std::string> options{"--call", "--return", "--object-init", "--new-array"};
    for (const std::string& given : options) {
        const std::string tracker = given == "--call" ? "com/x/Tracker" : "com.x.Tracker";
        const Finished done = run_in(
            scratch.path, {kRewrite, "--tracker", tracker, given, "tracked" + given, "-o", "B.class", "A.class"});
        ASSERT_EQ(done.status, 0) << done.err;
        const std::string image = contents(scratch.path / "B.class");
        EXPECT_THAT(image, AllOf(HasSubstr("com/x/Tracker"), HasSubstr("tracked" + given)));
        EXPECT_THAT(image, Not(HasSubstr("com.x.Tracker")));
    }
}

// What sets a class up is left alone in a system class.
TEST(RewrittenClass, OfTheSystemIsHandledWithCare) {
    const ScratchFolder scratch;
    write(scratch.path / "A.class", program_class("Program$Square"));
    ASSERT_EQ(rewrite({"-o", "own", "A.class"}, scratch.path).status, 0);
    ASSERT_EQ(rewrite({"--system-class", "-o", "system", "A.class"}, scratch.path).status, 0);
    EXPECT_LT(fs::file_size(scratch.path / "system"), fs::file_size(scratch.path / "own"));
}

}  // namespace
