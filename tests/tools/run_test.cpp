// vantrel run: programs under the agent, and what it refuses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <string>

#include "agent_in_vm.h"
#include "tool_kit.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace fs = std::filesystem;

namespace {

const fs::path kCommand = VANTREL_COMMAND;
const fs::path kStartedJar = kTestFolder / "started-program.jar";
const std::string kNoDisplay = "vantrel-agent: no hot key: DISPLAY is not set.\n";

void write_script(const fs::path& file, const std::string& text) {
    write(file, text);
    fs::permissions(file, fs::perms::owner_all);
}

// Puts command, library and jar where an installation has them.
fs::path install(const fs::path& prefix) {
    fs::create_directories(prefix / "bin");
    fs::create_directories(prefix / "lib");
    fs::copy_file(kCommand, prefix / "bin" / "vantrel");
    for (const fs::path& file : {kLibrary, kCompanionJar}) {
        fs::copy_file(file, prefix / "lib" / file.filename());
    }
    return prefix / "bin" / "vantrel";
}

class Run : public testing::TestWithParam<int> {
  protected:
    void SetUp() override { SKIP_WITHOUT_JDK(GetParam()); }
    static fs::path java() { return *find_jdk(GetParam()) / "bin" / "java"; }
    const ScratchFolder folder;
};
INSTANTIATE_TEST_SUITE_P(OnJdk, Run, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

// A java that is found by way of a link, as Debian has it.
TEST_P(Run, BecomesJava) {
    fs::create_symlink(java(), folder.path / "java");
    const Words command{kCommand, "run", "--vm-option", "-Dx=one two", "java", "-Dy=3", "-cp", kStartedJar, "Started",
                        "a b",    "",    "--help",      "--",          "-x"};
    const ProcessOptions options{.folder = {}, .environment = {"PATH=" + folder.path.string(), "DISPLAY="}};
    Process program(command, options);
    EXPECT_EQ(program.wait(), 7);
    EXPECT_EQ(program.out(),
              kAgentOut +
                  "arguments [a b, , --help, --, -x]\nx one two, y 3\nvariable null\nagents [-agentpath]\nprocess " +
                  std::to_string(program.id()) + "\n");
    EXPECT_EQ(program.err(), kNoDisplay) << "the VM has picked nothing up";
}

// A VM that warns of agents is told not to, unless somebody wants it to refuse them.
TEST_P(Run, LetsTheProgramBeAskedWithoutAWarning) {
    const auto flag = [&](const Words& options) {
        const Finished program =
            run(Words{kCommand, "run", java()} + options + Words{"-XX:+PrintFlagsFinal", "-jar", kStartedJar});
        for (const std::string& line : lines_of(program.out)) {
            if (line.find(" EnableDynamicAgentLoading ") != std::string::npos) {
                return std::string(line.find("= true ") != std::string::npos ? "on " : "off ") +
                       (line.find("{command line}") != std::string::npos ? "as told" : "by itself");
            }
        }
        return program.err;
    };
    EXPECT_EQ(flag({}), GetParam() < 21 ? "on by itself" : "on as told");
    EXPECT_EQ(flag({"-XX:-EnableDynamicAgentLoading"}), "off as told");
}

// An agent in Java that is started after ours would miss classes.
TEST_P(Run, ComesAfterAgentsInJava) {
    const std::string agent = "-javaagent:" + kStartedJar.string();
    const struct {
        Words words;
        std::string agents;
    } cases[] = {
        {{"-cp", kStartedJar, agent, "-Dx=1", agent, "Started", agent}, "[-javaagent, -javaagent, -agentpath]"},
        {{"--add-modules", "java.base", agent, "-jar", kStartedJar, agent}, "[-javaagent, -agentpath]"},
    };
    for (const auto& c : cases) {
        const Finished program = run(Words{kCommand, "run", java()} + c.words);
        EXPECT_EQ(program.status, 7) << program.err;
        EXPECT_THAT(program.out, HasSubstr("arguments [" + agent + "]\n"));
        EXPECT_THAT(program.out, HasSubstr("agents " + c.agents + "\n"));
    }
}

// The script has no first line that names a shell. All that a VM can take from a variable is in the agent's path.
TEST_P(Run, StartsWhatAScriptStarts) {
    const fs::path place = folder.path / "it's \"here\"\t\n(\\é)";
    const fs::path command = install(place);
    write_script(place / "a script.sh",
                 "test \"$1\" = wait && exec \"$JAVA\" -cp \"$JAR\" Started \"$@\"\n\"$JAVA\" -jar \"$JAR\" \"$@\"\n");
    const ProcessOptions options{
        .folder = place,
        .environment = {"JAVA=" + java().string(), "JAR=" + kStartedJar.string(), "JAVA_TOOL_OPTIONS=-Dx=\"one two\""}};
    const Finished program = run({command, "run", "--vm-option=-Dy='\"\" ", "./a script.sh", "a b"}, options);
    EXPECT_EQ(program.status, 7) << program.err;
    EXPECT_THAT(program.out, StartsWith(kAgentOut + "arguments [a b]\nx one two, y '\"\" \n"));

    Process waiting({command, "run", "./a script.sh", "wait"}, options);
    ASSERT_TRUE(waiting.reaches([&] {
        return waiting.out().ends_with("process " + std::to_string(waiting.id()) + "\n");
    })) << waiting.out()
        << waiting.err();
    waiting.signal(SIGTERM);
    EXPECT_EQ(waiting.wait(), 128 + SIGTERM);
}

TEST_P(Run, StartsAJarWithTheAgentOnce) {
    fs::copy_file(kStartedJar, folder.path / "program.jar");
    write_script(folder.path / "nested", "exec \"$COMMAND\" run program.jar \"$@\"\n");
    const ProcessOptions options{
        .folder = folder.path,
        .environment = {"COMMAND=" + kCommand.string(), "JAVA_HOME=" + find_jdk(GetParam())->string()}};
    for (const std::string program : {"program.jar", "./nested"}) {
        const Finished started = run({kCommand, "run", program, "--vm-option"}, options);
        EXPECT_EQ(started.status, 7) << started.err;
        EXPECT_THAT(started.out, StartsWith(kAgentOut + "arguments [--vm-option]\n"));
    }
}

TEST(RunRefuses, InOneLine) {
    const ScratchFolder folder;
    write(folder.path / "text", "no program");
    write_script(folder.path / "bad", "#!/nowhere/at/all\n");
    fs::create_directory(folder.path / "folder");
    const struct {
        Words words;
        int status;
        std::string says;
    } cases[] = {
        {{}, 125, "vantrel --help tells"},
        {{"walk", "java"}, 125, "vantrel --help tells"},
        {{"run"}, 125, "which program?"},
        {{"run", "--vm-option", "-Xint"}, 125, "which program?"},
        {{"run", "--option", "java"}, 125, "--option; vantrel --help tells"},
        {{"run", "--"}, 125, "which program?"},
        {{"run", ""}, 127, "there is no program ''"},
        {{"run", "java"}, 127, "there is no program 'java' on the path\n"},
        {{"run", "text"}, 127, "there is no program 'text' on the path; the file in this folder is ./text\n"},
        {{"run", "./none"}, 127, "there is no file ./none\n"},
        {{"run", "./text"}, 126, "./text is not executable\n"},
        {{"run", "./folder"}, 126, "./folder is a folder, not a program\n"},
        {{"run", "./bad"}, 126, "cannot start ./bad: No such file or directory\n"},
        {{"run", "none.jar"}, 127, "there is no file none.jar\n"},
    };
    for (const auto& c : cases) {
        const Finished refused =
            run(Words{kCommand} + c.words, {.folder = folder.path, .environment = {"PATH=/nowhere", "JAVA_HOME="}});
        EXPECT_EQ(refused.status, c.status) << c.says;
        EXPECT_THAT(lines_of(refused.err), ElementsAre(StartsWith("vantrel: "))) << refused.err;
        EXPECT_THAT(refused.err, HasSubstr(c.says));
        EXPECT_EQ(refused.out, "");
    }
}

TEST(RunRefuses, AnAgentThatNoVmCouldLoad) {
    const ScratchFolder folder;
    std::string deep = "deep";
    while (deep.size() < 1024) {
        deep += "/" + std::string(200, 'a');
    }
    const struct {
        std::string prefix;
        std::string removed;
        std::string says;
    } cases[] = {
        {"no-library", "lib/" + kLibrary.filename().string(), "there is no "},
        {"no-jar", "lib/" + kCompanionJar.filename().string(), "there is no "},
        {"a:b", "", "':'"},
        {"a=b", "", "'='"},
        {deep, "", "1024 bytes or more"},
    };
    for (const auto& c : cases) {
        const fs::path prefix = folder.path / c.prefix;
        const fs::path command = install(prefix);
        if (!c.removed.empty()) {
            fs::remove(prefix / c.removed);
        }
        const Finished refused = run({command, "run", "sh", "-c", "echo started"});
        EXPECT_EQ(refused.status, 125) << c.prefix;
        EXPECT_THAT(lines_of(refused.err), ElementsAre(HasSubstr(c.says))) << refused.err;
        EXPECT_THAT(refused.err, HasSubstr(c.removed));
        EXPECT_EQ(refused.out, "");
    }
}

TEST(RunHelp, GoesToStdoutAndIsInTheManual) {
    for (const Words& words :
         {Words{"--help"}, Words{"run", "--help"}, Words{"tree", "--help"}, Words{"picture", "--help"}}) {
        const Finished help = run(Words{kCommand} + words);
        EXPECT_EQ(help.status, 0);
        EXPECT_EQ(help.err, "");
        EXPECT_GT(options_in_help(help.out).size(), 0);
        for (const std::string& option : options_in_help(help.out)) {
            EXPECT_THAT(contents(VANTREL_COMMAND_MANUAL), HasSubstr("`" + option));
        }
    }
    EXPECT_THAT(run({kCommand, "--version"}).out, StartsWith("vantrel "));
    const Finished full = run({"bash", "-c", "exec \"$@\" >/dev/full", "bash", kCommand, "--help"});
    EXPECT_EQ(full.status, 125);
    EXPECT_EQ(full.err, "vantrel: cannot write to standard output: No space left on device\n");
}

}  // namespace
