// Programs with every class passed through the rewriter as it is loaded, under full verification.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

#include "jars.h"
#include "programs.h"
#include "x_server.h"

namespace fs = std::filesystem;

namespace {

class AtLoad : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(OnJdk, AtLoad, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

Tracked run_program(int release, const std::string& name) {
    return run_both_ways(release, {"-cp", kTestFolder / "rewriter-programs.jar", name});
}

TEST_P(AtLoad, AMethodReturnsAsOftenAsItIsEntered) {
    SKIP_WITHOUT_JDK(GetParam());
    const Tracked tracked = run_program(GetParam(), "Balanced");
    expect_same_and_balanced(tracked);
    for (const auto& [method, counts] : tracked.report.methods) {
        EXPECT_EQ(counts.first, counts.second) << method;
    }
    EXPECT_EQ(tracked.report.counts.at("entries"), tracked.report.counts.at("returns"));

    std::istringstream lines(tracked.plain.out);
    int counted = 0;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string calls;
        std::string method;
        long expected = 0;
        if (!(words >> calls >> method >> expected) || calls != "calls") {
            continue;
        }
        ++counted;
        long entries = 0;
        for (const auto& [name, counts] : tracked.report.methods) {
            entries += name.starts_with("Balanced." + method + "(") ? counts.first : 0;
        }
        EXPECT_EQ(entries, expected) << method;
    }
    EXPECT_GT(counted, 0) << tracked.plain.out;
}

TEST_P(AtLoad, ArraysAreCountedAsTheyAreMade) {
    SKIP_WITHOUT_JDK(GetParam());
    const Tracked tracked = run_program(GetParam(), "MakesArrays");
    expect_same_and_balanced(tracked);
    EXPECT_EQ(tracked.report.counts.at("arrays"), number_after("arrays", tracked.plain.out));
}

TEST_P(AtLoad, OnlyMethodsThatAreLeftByAnExceptionLackAReturn) {
    SKIP_WITHOUT_JDK(GetParam());
    const Tracked tracked = run_program(GetParam(), "Leaving");
    expect_same_and_balanced(tracked);
    const std::map<std::string, long>& counts = tracked.report.counts;
    EXPECT_EQ(counts.at("entries") - counts.at("returns"), number_after("left", tracked.plain.out));
}

TEST_P(AtLoad, TheCountsAreOfOneMoment) {
    SKIP_WITHOUT_JDK(GetParam());
    const Tracked tracked = run_program(GetParam(), "RunningOn");
    expect_same_and_balanced(tracked);
    EXPECT_GT(tracked.report.counts.at("left by exception"), 100);
}

// The files below a folder, with what is in them.
std::map<std::string, std::string> files_of(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files[fs::relative(entry.path(), folder)] = contents(entry.path());
        }
    }
    return files;
}

// For a tool that somebody else wrote: it has many classes, and writes the same files both ways.
void expect_same_work(int release, const Arguments& arguments, long least_classes, BothWays how = {}) {
    const ScratchFolder plain;
    const ScratchFolder rewritten;
    how.plain_folder = plain.path;
    how.rewritten_folder = rewritten.path;
    const Tracked tracked = run_both_ways(release, arguments, how);
    EXPECT_EQ(tracked.plain.status, 0) << tracked.plain.out << tracked.plain.err;
    EXPECT_NE(tracked.plain.out + tracked.plain.err, "");
    expect_same_and_balanced(tracked);
    EXPECT_GT(tracked.report.classes, least_classes);
    const auto expected = files_of(plain.path);
    const auto actual = files_of(rewritten.path);
    EXPECT_EQ(actual.size(), expected.size());
    for (const auto& [name, text] : expected) {
        EXPECT_TRUE(actual.contains(name) && actual.at(name) == text) << name << " is another file";
    }
    std::cout << expected.size() << " files, " << tracked.report.classes << " classes\n";
    for (const auto& [name, count] : tracked.report.counts) {
        std::cout << name << ": " << count << '\n';
    }
}

const fs::path kSources = VANTREL_SOURCE_FOLDER;
const fs::path kScripts = kSources / "tests/rewriter_real/scripts";

TEST_P(AtLoad, EcjCompiles) {
    SKIP_WITHOUT_JDK(GetParam());
    expect_same_work(GetParam(),
                     {"-cp", installed_jar("eclipse-jdt-core.jar"), "org.eclipse.jdt.internal.compiler.batch.Main",
                      "-8", "-g", "-warn:+all,-unused", "-proc:none", "-d", "classes", kSources / "companion/src",
                      kSources / "tests/rewriter_real/java/programs"},
                     300, {.is_modern = true});
}

// Classes of the VM's own version, in a module.
TEST_P(AtLoad, JavacCompiles) {
    SKIP_WITHOUT_JDK(GetParam());
    Arguments arguments{
        "-m",     "jdk.compiler/com.sun.tools.javac.Main", "-version", "-Xlint:all", "--release", "8", "-g", "-d",
        "classes"};
    for (const fs::directory_entry& entry : fs::directory_iterator(kSources / "tests/rewriter_real/java/programs")) {
        arguments.push_back(entry.path());
    }
    expect_same_work(GetParam(), arguments, 500, {.is_modern = true});
}

TEST_P(AtLoad, JEditOpensItsWindow) {
    SKIP_WITHOUT_JDK(GetParam());
    const XServer x;
    const ScratchFolder home;  // where the VM keeps what it finds out about fonts
    const std::string programs = kTestFolder / "rewriter-programs.jar";
    expect_same_work(GetParam(),
                     {"-Duser.home=" + home.path.string(), "-cp", programs + ":/usr/share/jedit/jedit.jar",
                      "ShowsWindow", "org.gjt.sp.jedit.jEdit", "-noserver", "-nosettings"},
                     300, {.environment = {x.display()}, .is_modern = true});
}

TEST_P(AtLoad, JythonRunsAScript) {
    SKIP_WITHOUT_JDK(GetParam());
    expect_same_work(
        GetParam(),
        {"-cp", installed_jar("jython.jar"), "-Dpython.home=/usr/share/jython", "-Dpython.cachedir.skip=true",
         "-Dpython.console=", "org.python.util.jython", kScripts / "script.py"},
        300);
}

}  // namespace
