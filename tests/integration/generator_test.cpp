// vantrel-generate on the classes of real VMs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "java_vm.h"
#include "process.h"
#include "test_folder.h"

namespace fs = std::filesystem;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::MatchesRegex;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

class Generator : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(OnJdk, Generator, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

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

// All proxies of a folder, in one go: each has a namespace of its own.
Finished compile_all(const ProxyFolder& folder, const fs::path& proxies) {
    const fs::path all = proxies / "all.cc";
    std::ofstream includes(all);
    for (const std::string& name : names_in(proxies, ".cpp")) {
        includes << "#include \"" << name << ".cpp\"\n";
    }
    includes.close();
    return run(compiler(folder) + Arguments{"-fsyntax-only", "-x", "c++", all});
}

TEST_P(Generator, PublicClassesCompileAndOnlyWhatWouldNotIsChanged) {
    SKIP_WITHOUT_JDK(GetParam());
    const ProxyFolder folder;
    for (const std::string place : {"java.desktop/java/awt", "java.desktop/javax/swing", "java.base/java/util",
                                    "java.base/java/io", "java.base/java/lang", "java.base/java/math"}) {
        SCOPED_TRACE(place);
        const Finished listed = run(
            {*find_jdk(GetParam()) / "bin" / "java", "-cp", kTestFolder / "test-programs.jar", "PublicClasses", place});
        ASSERT_EQ(listed.status, 0) << listed.err;
        const std::vector<std::string> classes = lines_of(listed.out);
        ASSERT_FALSE(classes.empty());

        const fs::path proxies = folder.scratch.path / place.substr(place.rfind('/') + 1);
        const Finished generated = generate(GetParam(), Arguments{"--out", proxies} + classes);
        ASSERT_EQ(generated.status, 0) << generated.err;
        EXPECT_EQ(names_in(proxies, ".cpp").size(), classes.size());
        const Finished compiled = compile_all(folder, proxies);
        EXPECT_EQ(compiled.status, 0) << compiled.err;

        std::set<std::string> changed;
        for (const std::string& line : lines_of(generated.err)) {
            std::smatch name;
            EXPECT_TRUE(std::regex_match(line, name, std::regex("vantrel-generate: .*/([^:]+): .+ is called .+: .+")))
                << line;
            changed.insert(name[1]);
        }
        const fs::path literal = proxies.string() + "-literal";
        const Finished stated = generate(GetParam(), Arguments{"--literal", "--out", literal} + classes);
        EXPECT_EQ(stated.err, "");
        for (const std::string& name : names_in(proxies, ".cpp")) {
            const bool same = contents(proxies / (name + ".h")) == contents(literal / (name + ".h")) &&
                              contents(proxies / (name + ".cpp")) == contents(literal / (name + ".cpp"));
            EXPECT_EQ(same, !changed.contains(name)) << name;
        }
    }
}

TEST_P(Generator, NamesThatAreNoCppAreChangedAndFound) {
    SKIP_WITHOUT_JDK(GetParam());
    const ProxyFolder folder;
    const fs::path programs = kTestFolder / "test-programs.jar";
    const Finished generated =
        generate(GetParam(), {"--class-path", programs, "--out", folder.jc, "AwkwardNames", "UnnamedArgument"});
    ASSERT_EQ(generated.status, 0) << generated.err;
    EXPECT_THAT(
        lines_of(generated.err),
        AllOf(SizeIs(8), Contains("vantrel-generate: AwkwardNames: field NULL is called NULL_: that is a macro"),
              Contains("vantrel-generate: AwkwardNames: the wrapper m of (Ljava/lang/Object;)I is called m10: "
                       "another wrapper has the same name and parameters")));
    const fs::path library = folder.scratch.path / "libawkward-names.so";
    const Finished compiled =
        run(compiler(folder) + Arguments{"-std=gnu++20", "-shared", "-fPIC", "-o", library, VANTREL_AWKWARD_NAMES,
                                         folder.jc / "AwkwardNames.cpp", folder.jc / "UnnamedArgument.cpp"});
    ASSERT_EQ(compiled.status, 0) << compiled.err;
    const Finished called =
        run({*find_jdk(GetParam()) / "bin" / "java", "-Xcheck:jni", "-cp", programs, "AwkwardNames", library});
    EXPECT_EQ(called.status, 0) << called.err;
    EXPECT_THAT(called.out, EndsWith("all called\n"));
    EXPECT_THAT(called.out, Not(HasSubstr("failed: ")));

    const Finished listed = generate(GetParam(), {"--class-path", programs, "--list", "AwkwardNames"});
    EXPECT_EQ(listed.err, "");
    EXPECT_THAT(lines_of(listed.out),
                IsSupersetOf({"    static NULL_ I (instead of NULL)", "    5 static \U0001D4B3 (I)I",
                              "    1 static union_ (I)I (instead of union)"}));
    const Finished literal = generate(GetParam(), {"--class-path", programs, "--literal", "--list", "AwkwardNames"});
    EXPECT_THAT(lines_of(literal.out), IsSupersetOf({"    static NULL I", "    1 static union (I)I"}));
}

// A class is named twice, one says something when it is initialised, and the jar is given as java takes it, too.
TEST_P(Generator, ListsInTheOrderOfTheClassFile) {
    SKIP_WITHOUT_JDK(GetParam());
    const Finished listed =
        generate(GetParam(), {"--class-path", "/nowhere/*:" + (kTestFolder / "*").string(), "--list",
                              "java.util.EventObject", "Listed", "java/util/EventObject"});
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.err, "Listed is initialised\n");
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

// The records of the library have no room for most of these, and it leaves them out.
TEST_P(Generator, HasNoLimitsOfLength) {
    SKIP_WITHOUT_JDK(GetParam());
    const Finished listed = generate(GetParam(), {"--list", "java.util.Map"});
    EXPECT_EQ(listed.err, "");
    for (const int pairs : {7, 10}) {
        std::string arguments;
        for (int i = 0; i < 2 * pairs; ++i) {
            arguments += "Ljava/lang/Object;";
        }
        EXPECT_THAT(listed.out, HasSubstr(" static of (" + arguments + ")Ljava/util/Map;\n"));
    }
}

TEST_P(Generator, GoesOnAfterAClassThatCannotBeWritten) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder scratch;
    const fs::path out = scratch.path / "new/folder";
    const Finished generated =
        generate(GetParam(), {"--class-path", kTestFolder / "test-programs.jar", "--out", out, "no.Such",
                              "UnnamedArgument", "FailingClass", "java.util.List", "java.awt.List", "a;b", "\xff",
                              "java.util.EventObject", "--literal"});
    EXPECT_EQ(generated.status, 1);
    EXPECT_THAT(
        lines_of(generated.err),
        ElementsAre("vantrel-generate: no/Such: cannot be loaded: java.lang.ClassNotFoundException: no.Such",
                    "vantrel-generate: UnnamedArgument: its method take (ILUnnamedArgument;)V has an argument whose "
                    "class is in no package, which a literal proxy cannot have",
                    "vantrel-generate: FailingClass: cannot be loaded: java.lang.IllegalStateException: not today",
                    "vantrel-generate: java/awt/List: another class has been written to List.h in this run",
                    "vantrel-generate: 'a;b' is not a class name; write it like java.awt.Container or "
                    "java/awt/Container",
                    "vantrel-generate: '\\xff' is not a class name; write it like java.awt.Container or "
                    "java/awt/Container"));
    EXPECT_THAT(names_in(out, ".cpp"), ElementsAre("EventObject", "List"));
}

TEST_P(Generator, WritesBothFilesOrNone) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder scratch;
    fs::create_directory(scratch.path / "List.cpp");
    std::ofstream(scratch.path / "Set.h") << "old\nnamespace NSSet{";
    const Finished generated =
        generate(GetParam(), {"--out", scratch.path, "java.util.List", "java.util.Set", "java.util.Iterator"});
    EXPECT_EQ(generated.status, 1);
    EXPECT_EQ(generated.err, "vantrel-generate: java/util/List: cannot write " + (scratch.path / "List.cpp").string() +
                                 ": Is a directory\n");
    EXPECT_THAT(names_in(scratch.path, ".h"), ElementsAre("Iterator", "Set"));
    EXPECT_THAT(names_in(scratch.path, ".part"), IsEmpty());
    EXPECT_THAT(contents(scratch.path / "Set.h"), HasSubstr("namespace NSSet{"));
}

TEST_P(Generator, ReplacesOnlyWhatIsItsOwn) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder scratch;
    const auto generate_to_scratch = [&](const Arguments& arguments) {
        return generate(GetParam(), Arguments{"--out", scratch.path} + arguments);
    };
    const fs::path body = scratch.path / "List.cpp";
    const fs::path header = scratch.path / "Set.h";
    ASSERT_EQ(generate_to_scratch({"java.awt.List"}).status, 0);
    EXPECT_EQ(generate_to_scratch({"java.awt.List"}).err, "") << "a second time";
    std::ofstream(scratch.path / "Map.cpp") << "by hand";
    std::ofstream(header) << "by hand";
    const std::string before = contents(body);
    const Finished refused = generate_to_scratch({"java.util.List", "java.util.Set", "java.util.Map"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(lines_of(refused.err),
                ElementsAre("vantrel-generate: java/util/List: " + body.string() +
                                " is the proxy of java/awt/List; --force replaces it",
                            "vantrel-generate: java/util/Set: " + header.string() + " is no proxy; --force replaces it",
                            "vantrel-generate: java/util/Map: " + (scratch.path / "Map.cpp").string() +
                                " is no proxy; --force replaces it"));
    EXPECT_EQ(contents(body), before);
    EXPECT_EQ(contents(header), "by hand");
    EXPECT_EQ(generate_to_scratch({"--force", "java.util.List", "java.util.Set"}).status, 0);
    EXPECT_THAT(contents(body), HasSubstr("\"java/util/List\""));
    EXPECT_THAT(contents(header), HasSubstr("namespace NSSet{"));
}

// What goes to standard output and does not get there is an error; nobody hears of it otherwise.
TEST_P(Generator, SaysWhenItsListIsLost) {
    SKIP_WITHOUT_JDK(GetParam());
    const std::string command = std::string(VANTREL_GENERATE) + " --java-home " + find_jdk(GetParam())->string();
    const struct {
        std::string line;
        int status;
        std::string err;
    } cases[] = {
        {" --list java.util.List >/dev/full", 1, "cannot write to standard output: No space left on device"},
        {" --list java.util.List >&-", 1, "cannot write to standard output: Bad file descriptor"},
        {" --help >/dev/full", 2, "cannot write to standard output: No space left on device"},
    };
    for (const auto& c : cases) {
        const Finished finished = run({"sh", "-c", command + c.line});
        EXPECT_EQ(finished.status, c.status) << c.line;
        EXPECT_EQ(finished.err, "vantrel-generate: " + c.err + "\n") << c.line;
    }
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

TEST_P(Generator, FindsTheVmOrSaysThatThereIsNone) {
    SKIP_WITHOUT_JDK(GetParam());
    const ScratchFolder scratch;
    const std::string jdk = *find_jdk(GetParam());
    const fs::path vm_alone = scratch.path / "vm-alone";
    fs::create_directories(vm_alone / "lib/server");
    fs::copy_file(jdk + "/lib/server/libjvm.so", vm_alone / "lib/server/libjvm.so");
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
        {{"--java-home", vm_alone},
         {"JAVA_HOME=" + jdk},
         2,
         "vantrel-generate: there is no whole Java in " + vm_alone.string() + ": it has a VM, but no classes\n"},
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
    EXPECT_THAT(help.out,
                AllOf(HasSubstr("--java-home DIR"), HasSubstr("--class-path PATH"), HasSubstr("--vm-option OPT"),
                      HasSubstr("--out DIR"), HasSubstr("--list"), HasSubstr("--literal"), HasSubstr("--force"),
                      HasSubstr("\n  vantrel-generate --out proxies java.util.EventObject")));
    EXPECT_THAT(run({VANTREL_GENERATE, "--version"}).out, MatchesRegex("vantrel-generate [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

}  // namespace
