// What vantrel-rewrite says to a command line, and to inputs and outputs that it cannot use. Each refusal is one line
// that says what is wrong, and leaves the folder as it was.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tool_kit.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

namespace fs = std::filesystem;

namespace {

struct Refused {
    const char* name;
    Words arguments;
    const char* says;
};

class Refusal : public testing::TestWithParam<Refused> {};

TEST_P(Refusal, IsOneLineAndLeavesAllAsItWas) {
    const ScratchFolder scratch;
    const auto& folder = scratch.path;
    write(folder / "A.class", program_class());
    write(folder / "tree/A.class", program_class());
    write(folder / "other/A.class", program_class());
    write(folder / "there/tree/note", "kept");
    write(folder / "text", "no class");
    write(folder / "text.jar", "no jar");
    write(folder / "bad/text.jar", "no jar");
    const std::string jar = contents(kProgramJar);
    write(folder / "program.jar", jar);
    write(folder / "short.jar", jar.substr(0, jar.size() / 2));
    // The last record says that its entry is where the first one is.
    write(folder / "twofold.jar", std::string(jar).replace(jar.rfind("PK\1\2") + 42, 4, 4, '\0'));
    const size_t extra_field_size = 28;  // of the first entry, which is no class
    write(folder / "damaged.jar", std::string(jar).replace(extra_field_size, 2, "\xFF\xFF"));
    fs::create_symlink("nothing", folder / "dangling");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), S_IRWXU), 0);
    const auto before = names_in(folder);

    Words command{kRewrite};
    command.insert(command.end(), GetParam().arguments.begin(), GetParam().arguments.end());
    const Finished refused = run_in(folder, command);

    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.out, "");
    EXPECT_THAT(lines_of(refused.err), SizeIs(1)) << refused.err;
    EXPECT_THAT(refused.err, StartsWith("vantrel-rewrite: "));
    EXPECT_THAT(refused.err, HasSubstr(GetParam().says));
    EXPECT_EQ(names_in(folder), before);
    EXPECT_EQ(contents(folder / "A.class"), program_class());
    EXPECT_EQ(contents(folder / "program.jar"), jar);
    EXPECT_EQ(contents(folder / "text"), "no class");
}

Words with_tracker(Words arguments) {
    arguments.insert(arguments.begin(), {"--tracker", "com/x/Tracker", "--object-init", "made"});
    return arguments;
}

INSTANTIATE_TEST_SUITE_P(
    OfOptions, Refusal,
    testing::ValuesIn(std::vector<Refused>{
        {"Nothing", {}, "--tracker is required"},
        {"NoTracker", {"-o", "out", "A.class"}, "--tracker is required"},
        {"NoOutput", with_tracker({"A.class"}), "--output is required"},
        {"NoInput", with_tracker({"-o", "out"}), "IN is required"},
        {"UnknownOption", with_tracker({"--trace", "-o", "out", "A.class"}), "--trace"},
        {"OptionWithoutValue", with_tracker({"-o", "out", "A.class", "--call"}), "--call"},
        {"NoCalls", {"--tracker", "T", "-o", "out", "A.class"}, "which calls? give one or more of --call"},
        {"TrackerAndCount", with_tracker({"--count", "-o", "out", "program.jar"}),
         "--tracker goes with a tracker of yours"},
        {"MapOfUnused", {"--unused", "--map", "map", "-o", "out", "program.jar"}, "--map goes with a tracker of yours"},
        {"CountOfAClassFile", {"--count", "-o", "out", "program.jar", "A.class"}, "A.class is a single class file"},
        {"EmptyTracker", {"--tracker", "", "-o", "out", "A.class"}, "'' is not a class name"},
        {"TrackerWithGap", {"--tracker", "com..x", "-o", "out", "A.class"}, "'com..x' is not a class name"},
        {"TrackerAsDescriptor", {"--tracker", "Lx/T;", "-o", "out", "A.class"}, "'Lx/T;' is not a class name"},
        {"MethodWithClass", with_tracker({"--call", "T.in", "-o", "out", "A.class"}), "'T.in' is not a method's name"},
        {"MethodWithParameters", with_tracker({"--return", "out()", "-o", "out", "A.class"}), "--return: 'out()'"},
        {"EmptyMethod", with_tracker({"--new-array", "", "-o", "out", "A.class"}), "--new-array: ''"},
        {"TrackerNotUtf8",
         {"--tracker", "a\xFFz", "--call", "c", "-o", "out", "A.class"},
         "'a\\xffz' is not a name in"},
        {"MethodNotUtf8", with_tracker({"--call", "\xED\xA0\xB5", "-o", "out", "A.class"}),
         "--call: '\\xed\\xa0\\xb5'"},
        {"KeepNotUtf8", with_tracker({"--keep", "\xC0\x80", "-o", "out", "A.class"}), "--keep: '\\xc0\\x80'"},
        {"LongTracker",
         {"--tracker", std::string(65534, 'x'), "--call", "c", "-o", "out", "A.class"},
         "--tracker: a name of 65534 bytes is too long"},
        {"LongMethod", with_tracker({"--call", std::string(65534, 'x'), "-o", "out", "A.class"}), "--call: a name of"},
        {"NoWorkers", with_tracker({"-j", "0", "-o", "out", "A.class"}), "-j"},
        {"WorkersInWords", with_tracker({"-j", "two", "-o", "out", "A.class"}), "-j"}}),
    [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    OfInputs, Refusal,
    testing::ValuesIn(std::vector<Refused>{
        {"Missing", with_tracker({"-o", "out", "A.class", "none.jar"}), "none.jar: there is no such file"},
        {"NoClassAndNoJar", with_tracker({"-o", "out", "text"}), "text is neither a class file nor a jar"},
        {"JarInNameOnly", with_tracker({"-o", "out", "text.jar"}), "cannot read text.jar: Not a zip archive"},
        {"NameForTerminals", with_tracker({"-o", "out", "no\033[2J\n\xC2\x9B.jar"}),
         "no\\x1b[2J\\n\\xc2\\x9b.jar: there"},
        {"DamagedEntry", with_tracker({"-o", "out", "damaged.jar"}), "cannot read damaged.jar: "},
        {"CutJar", with_tracker({"-o", "out", "short.jar"}), "cannot read short.jar: "},
        {"CutJarAfterAGoodOne", with_tracker({"-o", "out", "program.jar", "short.jar"}), "cannot read short.jar: "},
        {"BadJarInAFolder", with_tracker({"-o", "out", "bad"}), "cannot read bad/text.jar: Not a zip archive"},
        {"EntriesThatOverlap", with_tracker({"-o", "out", "twofold.jar"}), "what it says of its entries is wrong"},
        {"Device", with_tracker({"-o", "out", "/dev/null"}), "/dev/null is neither a file nor a folder"}}),
    [](const auto& info) { return info.param.name; });

// The program's own jar is the class path here.
Words with_path(const std::string& path, const std::string& tracker) {
    return {"--tracker", tracker, "--tracker-path", path, "--call", "sum", "-o", "out", "A.class"};
}

INSTANTIATE_TEST_SUITE_P(
    OfTrackers, Refusal,
    testing::ValuesIn(std::vector<Refused>{
        {"PathMissing", with_path("program.jar:none", "a.T"), "--tracker-path: there is no none"},
        {"PathOfNoJar", with_path("text", "a.T"), "cannot read text: Not a zip archive"},
        {"Missing", with_path("program.jar:tree", "a.T"), "--tracker-path: there is no class a.T in program.jar:tree"},
        {"OtherClass", with_path("tree", "A"), "--tracker-path: the class in the place of A is Program"},
        {"Interface", with_path("program.jar", "Program$Shape"), "Program$Shape is an interface"},
        {"NotPublic", with_path("program.jar", "Program$Square"), "Program$Square is not public"},
        {"OtherParameters", with_path("tree:program.jar", "Program"), "has no method sum(II)V; there is sum(I)I"}}),
    [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    OfOutputs, Refusal,
    testing::ValuesIn(std::vector<Refused>{
        {"InNoFolder", with_tracker({"-o", "none/out", "A.class"}), "none is not a folder; make it first"},
        {"InAFile", with_tracker({"-o", "text/out", "A.class"}), "text/out"},
        {"FileForSeveral", with_tracker({"-o", "text", "A.class", "program.jar"}), "text is a file; several results"},
        {"Pipe", with_tracker({"-o", "pipe", "A.class"}), "pipe is not a file that can be replaced"},
        {"NotWritable", with_tracker({"-o", "/proc/out", "A.class"}), "cannot write /proc/"},
        {"DanglingLink", with_tracker({"-o", "dangling", "A.class"}),
         "write dangling: it is a link to something that is"},
        {"DanglingMap", with_tracker({"--map", "dangling", "-o", "out", "A.class"}), "write dangling: it is a link"},
        {"FolderToStdout", with_tracker({"-o", "-", "tree"}), "-o -: only one class file or one jar"},
        {"SeveralToStdout", with_tracker({"-o", "-", "A.class", "program.jar"}),
         "-o -: only one class file or one jar"},
        {"MapToStdoutToo", with_tracker({"--map", "-", "-o", "-", "A.class"}), "--map -: the result goes to stdout"},
        {"FolderThatIsThere", with_tracker({"-o", "there", "tree"}), "there/tree is there already; remove it"},
        {"FolderInsideTheInput", with_tracker({"-o", "tree/out", "tree"}), "would be in the input tree"},
        {"TheInputItself", with_tracker({"-o", ".", "tree"}), "would be in the input tree"},
        {"TwoOfOneName", with_tracker({"-o", "out", "A.class", "other/A.class"}),
         "A.class and other/A.class would both"},
        {"MapIsTheInput", with_tracker({"--map", "A.class", "-o", "out", "A.class"}),
         "A.class is an input or a result"},
        {"MapIsTheOutput", with_tracker({"--map", "out", "-o", "out", "A.class"}), "out is an input or a result"},
        {"MapIsAFolder", with_tracker({"--map", "tree", "-o", "out", "A.class"}), "tree is not a file"}}),
    [](const auto& info) { return info.param.name; });

TEST(Arguments, HelpAndVersionGoToStdout) {
    const Finished help = run({kRewrite, "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    EXPECT_THAT(help.out, HasSubstr("Examples:"));
    const Finished version = run({kRewrite, "--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(lines_of(version.out), ElementsAre(StartsWith("vantrel-rewrite ")));
}

TEST(Arguments, ManualDescribesEachOptionOfHelp) {
    const std::string manual = contents(VANTREL_REWRITE_MANUAL);
    const std::vector<std::string> options = options_in_help(run({kRewrite, "--help"}).out);
    EXPECT_THAT(options, SizeIs(16));
    for (const std::string& option : options) {
        EXPECT_THAT(manual, HasSubstr("`" + option));
    }
}

}  // namespace
