// vantrel-generate on the classes of real VMs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "java_vm.h"
#include "process.h"
#include "test_folder.h"

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

namespace {

class Generator : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(OnJdk, Generator, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

std::string text_of(const fs::path& path) {
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

// The names of files with an ending, without it.
std::vector<std::string> names_in(const fs::path& folder, const std::string& ending) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() == ending) {
            names.push_back(entry.path().stem());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

Finished generate(int release, const Arguments& arguments) {
    return run(Arguments{VANTREL_GENERATE, "--java-home", *find_jdk(release)} + arguments);
}

// A folder as the proxies have it: jc/ for the generated files, and what they include beside it.
struct ProxyFolder {
    ProxyFolder() {
        fs::create_directory(jc);
        for (const char* header : {"JCBase.h", "JavaInc.h", "common.h", "assertion.h"}) {
            fs::copy_file(fs::path(VANTREL_AGENT_SOURCES) / header, scratch.path / header);
        }
    }
    ScratchFolder scratch;
    fs::path jc = scratch.path / "jc";
};

// The compiler with the warnings that the generated files have to do without.
Arguments compiler(const ProxyFolder& folder) {
    return {VANTREL_CXX_COMPILER,
            "-std=c++20",
            "-Wall",
            "-Wextra",
            "-Werror",
            std::string("-I") + VANTREL_JDK_INCLUDE,
            std::string("-I") + VANTREL_JDK_PLATFORM_INCLUDE,
            "-I" + folder.scratch.path.string()};
}

// Files that no C++ compiler takes, and why.
const std::map<std::string, std::string> kNotCpp = {
    // A static method that takes the object in front has the parameters of the instance method's wrapper.
    {"DebugGraphics", "redefinition of .*DebugOptions"},
    // A method is called `operator`.
    {"GroupLayout$Group", "expected type-specifier before"},
    {"GroupLayout$ParallelGroup", "expected type-specifier before"},
    {"GroupLayout$SequentialGroup", "expected type-specifier before"},
    // A method is called `union`.
    {"Rectangle", "expected identifier before"},
};

TEST_P(Generator, AllPublicClassesOfTheToolkitsCompile) {
    SKIP_WITHOUT_JDK(GetParam());
    const Finished listed = run({*find_jdk(GetParam()) / "bin" / "java", "-cp", kTestFolder / "test-programs.jar",
                                 "PublicClasses", "java/awt", "javax/swing"});
    ASSERT_EQ(listed.status, 0) << listed.err;
    const std::vector<std::string> classes = lines_of(listed.out);
    ASSERT_GT(classes.size(), 250U);

    const ProxyFolder folder;
    const Finished generated = generate(GetParam(), Arguments{"--out", folder.jc} + classes);
    ASSERT_EQ(generated.status, 0) << generated.err;
    EXPECT_EQ(generated.err, "");
    const std::vector<std::string> names = names_in(folder.jc, ".cpp");
    EXPECT_EQ(names.size(), classes.size());
    EXPECT_EQ(names_in(folder.jc, ".h"), names);

    Arguments command = compiler(folder) + Arguments{"-fsyntax-only"};
    for (const std::string& name : names) {
        const std::string file = folder.jc / (name + ".cpp");
        if (kNotCpp.contains(name)) {
            const Finished refused = run(compiler(folder) + Arguments{"-fsyntax-only", file});
            EXPECT_THAT(refused.err, ContainsRegex(kNotCpp.at(name))) << name << " can be compiled";
        } else {
            command.push_back(file);
        }
    }
    const Finished compiled = run(command);
    EXPECT_EQ(compiled.status, 0) << compiled.err;
}

TEST_P(Generator, ListsInTheOrderOfTheClassFile) {
    SKIP_WITHOUT_JDK(GetParam());
    const Finished listed = generate(
        GetParam(), {"--class-path", kTestFolder / "test-programs.jar", "--list", "java.util.EventObject", "Listed"});
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.err, "");
    EXPECT_EQ(listed.out,
              "java/util/EventObject\n"
              "    0 EventObject (Ljava/lang/Object;)V\n"
              "    1 getSource ()Ljava/lang/Object;\n"
              "    2 toString ()Ljava/lang/String;\n"
              "Listed\n"
              "    static ZONE Ljava/lang/String;\n"
              "    count J\n"
              "    0 static sizes ([Ljava/lang/String;)[I\n"
              "    1 Listed (I)V\n"
              "    2 addWithInteger (Ljava/lang/Integer;)V\n"
              "    3 add (S)V\n");
}

TEST_P(Generator, GoesOnAfterAClassThatCannotBeWritten) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder scratch;
    const fs::path out = scratch.path / "new/folder";
    const Finished generated = generate(
        GetParam(), {"--class-path", kTestFolder / "test-programs.jar", "--out", out, "no.Such", "UnnamedArgument",
                     "FailingClass", "java.util.List", "java.awt.List", "a;b", "java.util.EventObject"});
    EXPECT_EQ(generated.status, 1);
    EXPECT_THAT(
        lines_of(generated.err),
        ElementsAre("vantrel-generate: no/Such: cannot be loaded: java.lang.ClassNotFoundException: no.Such",
                    "vantrel-generate: UnnamedArgument: its method take (ILUnnamedArgument;)V has an argument whose "
                    "class is in no package, which a proxy cannot have",
                    "vantrel-generate: FailingClass: cannot be loaded: java.lang.IllegalStateException: not today",
                    "vantrel-generate: java/awt/List: another class has been written to List.h in this run",
                    "vantrel-generate: 'a;b' is not a class name; write it like java.awt.Container or "
                    "java/awt/Container"));
    EXPECT_THAT(names_in(out, ".cpp"), ElementsAre("EventObject", "List"));
}

TEST_P(Generator, WritesBothFilesOrNone) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder scratch;
    fs::create_directory(scratch.path / "List.cpp");
    std::ofstream(scratch.path / "Set.h") << "old";
    const Finished generated =
        generate(GetParam(), {"--out", scratch.path, "java.util.List", "java.util.Set", "java.util.Iterator"});
    EXPECT_EQ(generated.status, 1);
    EXPECT_EQ(generated.err, "vantrel-generate: java/util/List: cannot write " + (scratch.path / "List.cpp").string() +
                                 ": Is a directory\n");
    EXPECT_THAT(names_in(scratch.path, ".h"), ElementsAre("Iterator", "Set"));
    EXPECT_THAT(names_in(scratch.path, ".part"), IsEmpty());
    EXPECT_THAT(text_of(scratch.path / "Set.h"), HasSubstr("namespace NSSet{"));
}

// `script` gives a program a terminal, and collects what is written to it.
TEST_P(Generator, ShowsItsProgressOnATerminalOnly) {
    SKIP_WITHOUT_JDK(GetParam());
    const std::string command = std::string(VANTREL_GENERATE) + " --java-home " + find_jdk(GetParam())->string() +
                                " --list java.util.EventObject no.Such java.util.List >/dev/null";
    const auto on_terminal = [](const std::string& line) { return run({"script", "-qec", line, "/dev/null"}).out; };
    EXPECT_EQ(on_terminal(command),
              "\033[K1 of 3: java.util.EventObject\r"
              "\033[K2 of 3: no.Such\r"
              "\033[Kvantrel-generate: no/Such: cannot be loaded: java.lang.ClassNotFoundException: no.Such\r\n"
              "\033[K3 of 3: java.util.List\r\033[K");
    EXPECT_EQ(on_terminal(command + " 2>/dev/null"), "");
}

TEST_P(Generator, SaysWhyItDoesNothing) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder scratch;
    const std::string out = scratch.path / "out";
    const std::string file = scratch.path / "file";
    std::ofstream(file) << "a file";
    const struct {
        Arguments arguments;
        std::string last_line;
    } cases[] = {
        {{"--out", out}, "vantrel-generate: CLASS is required; .*--help.*"},
        {{"java.util.List"}, "vantrel-generate: --out is required; .*--help.*"},
        {{"--list", "--out", out, "java.util.List"}, "vantrel-generate: --out excludes --list; .*--help.*"},
        {{"--out", out, "--vm-option=-Xnone", "java.util.List"},
         "vantrel-generate: the Java VM in .* does not start \\(JNI_CreateJavaVM: -[0-9]+\\)"},
        {{"--out", out, "--vm-option", "-Xmx1", "java.util.List"},
         "vantrel-generate: the Java VM has ended the process"},
        {{"--class-path", kTestFolder / "test-programs.jar", "--list", "LeavingClass"},
         "vantrel-generate: the Java VM has ended the process"},
        {{"--out", file + "/below", "java.util.List"}, "vantrel-generate: cannot make the folder .*: Not a directory"},
    };
    for (const auto& c : cases) {
        const Finished generated = generate(GetParam(), c.arguments);
        EXPECT_EQ(generated.status, 2);
        ASSERT_THAT(lines_of(generated.err), Not(IsEmpty())) << c.last_line;
        EXPECT_THAT(lines_of(generated.err).back(), MatchesRegex(c.last_line));
        EXPECT_EQ(generated.out, "");
    }
    EXPECT_FALSE(fs::exists(out));
}

TEST(GeneratorCommand, FindsTheVmOrSaysThatThereIsNone) {
    SKIP_WITHOUT_JDK(17);
    const ScratchFolder scratch;
    const std::string jdk = *find_jdk(17);
    const fs::path java = scratch.path / "java";
    fs::create_symlink(jdk + "/bin/java", java);
    const std::string none = "vantrel-generate: there is no Java: no --java-home, no JAVA_HOME, no java on the path\n";
    const struct {
        Arguments arguments;
        std::vector<std::string> environment;
        int status;
        std::string err;
    } cases[] = {
        {{"--vm-option", "-Da=1", "--vm-option=-Db=2"}, {"JAVA_HOME=" + jdk, "PATH="}, 0, ""},
        {{}, {"JAVA_HOME=", "PATH=/nowhere:" + scratch.path.string()}, 0, ""},
        {{"--java-home", jdk}, {"JAVA_HOME=/nowhere", "PATH="}, 0, ""},
        {{}, {"JAVA_HOME=", "PATH=/nowhere"}, 2, none},
        {{"--java-home", "/nowhere"}, {"JAVA_HOME=" + jdk}, 2, "vantrel-generate: there is no Java VM in /nowhere\n"},
    };
    for (const auto& c : cases) {
        const Finished listed = run(Arguments{VANTREL_GENERATE, "--list", "java.util.EventObject"} + c.arguments,
                                    {.folder = {}, .environment = c.environment});
        EXPECT_EQ(listed.status, c.status) << c.environment.front() << " " << c.environment.back();
        EXPECT_EQ(listed.err, c.err);
    }
}

// Older releases have their VM in other folders.
TEST(GeneratorCommand, FindsTheVmWhereReleasesHaveHadIt) {
    SKIP_WITHOUT_JDK(17);
    for (const char* place : {"lib/server", "lib/client", "jre/lib/amd64/server", "lib/amd64/server"}) {
        const ScratchFolder home;
        fs::create_directories((home.path / place).parent_path());
        fs::create_symlink(*find_jdk(17) / "lib/server", home.path / place);
        const Finished listed = run({VANTREL_GENERATE, "--java-home", home.path, "--list", "java.util.EventObject"});
        EXPECT_EQ(listed.status, 0) << place << ": " << listed.err;
        EXPECT_THAT(listed.out, StartsWith("java/util/EventObject\n")) << place;
    }
}

TEST(GeneratorCommand, ExplainsItself) {
    const Finished help = run({VANTREL_GENERATE, "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.out, AllOf(HasSubstr("--java-home DIR"), HasSubstr("--class-path PATH"),
                                HasSubstr("--vm-option OPT"), HasSubstr("--out DIR"), HasSubstr("--list"),
                                HasSubstr("\n  vantrel-generate --out proxies java.util.EventObject")));
    EXPECT_THAT(run({VANTREL_GENERATE, "--version"}).out, MatchesRegex("vantrel-generate [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

}  // namespace
