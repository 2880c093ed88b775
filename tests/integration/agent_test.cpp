// Real Java VMs under the agent.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "agent_in_vm.h"
#include "process.h"
#include "x_picture.h"
#include "x_server.h"

namespace fs = std::filesystem;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

class Agent : public OnEachJdk {
  protected:
    static Arguments java(const Arguments& arguments, const fs::path& library = kLibrary) {
        return java_under_agent(GetParam(), arguments, library);
    }
};
ON_EACH_JDK(Agent);

const ProcessOptions kNoDisplay = {.folder = {}, .environment = {"DISPLAY="}};

const Arguments kReplacedProgram = {"-Djava.awt.headless=true", "-cp", kPrograms, "Replaced"};

void expect_replaced(const Finished& program) {
    EXPECT_EQ(program.status, 0) << program.err;
    EXPECT_THAT(program.out, HasSubstr("\nprivate transient java.lang.RuntimeException "
                                       "java.awt.Component.windowClosingException\n"));
    std::smatch line;
    ASSERT_TRUE(std::regex_search(program.out, line, std::regex("\nadded in line ([0-9]+)\n"))) << program.out;
    EXPECT_TRUE(std::regex_search(program.out, std::regex("\nat java.awt.Container.addImpl line [1-9][0-9]*\n"
                                                          "at java.awt.Container.add line [1-9][0-9]*\n"
                                                          "at Replaced.main line " +
                                                          line[1].str() + "\n")))
        << program.out;
    EXPECT_THAT(program.out, HasSubstr("\nin the panel: true\n"));
}

TEST_P(Agent, ReplacesBothClasses) {
    const Finished program = run(java(kReplacedProgram), kNoDisplay);
    expect_replaced(program);
    EXPECT_THAT(program.out, StartsWith(kAgentOut));
    EXPECT_EQ(program.err, "vantrel-agent: no hot key: DISPLAY is not set.\n");
}

TEST_P(Agent, StandsUpToTheVmsOwnChecks) {
    const Finished program = run(java(Arguments{"-Xcheck:jni", "-verbose:class", "-XX:+UnlockDiagnosticVMOptions",
                                                "-XX:+BytecodeVerificationLocal", "-XX:+BytecodeVerificationRemote"} +
                                      kReplacedProgram));
    expect_replaced(program);
    EXPECT_THAT(jni_reports(program.out + program.err), ElementsAre(kOwnJniReport));
    EXPECT_THAT(program.out, ContainsRegex("java\\.awt\\.Container source: "));
}

// The sizes of the class files as the VM logs them: both grow under the agent, others do not.
TEST_P(Agent, TheVmsLogShowsTheReplacements) {
    const auto logged_size = [](const std::string& log, const std::string& name) {
        std::smatch size;
        const std::regex entry(" java\\.awt\\." + name + " source: .*\n.* bytes: ([0-9]+) ");
        return std::regex_search(log, size, entry) ? std::stoi(size[1].str()) : -1;
    };
    const Arguments logged = Arguments{"-Xlog:class+load=debug", "-Xshare:off"} + kReplacedProgram;
    const Finished with = run(java(logged));
    const Finished without = run(Arguments{tool("java"), "-Xbootclasspath/a:" + kCompanionJar.string()} + logged);
    for (const char* name : {"Component", "Container"}) {
        const int own = logged_size(without.out, name);
        ASSERT_GT(own, 0);
        EXPECT_GT(logged_size(with.out, name), own) << name;
    }
    const int other = logged_size(without.out, "Cursor");
    ASSERT_GT(other, 0);
    EXPECT_EQ(logged_size(with.out, "Cursor"), other);
}

// What the agent adds to components is not serialised with them. Without the agent the companion knows of no addition.
TEST_P(Agent, SerialisedComponentsAreReadWithAndWithoutIt) {
    const ScratchFolder folder;
    const auto in_vm = [&](bool under_agent, const char* action, const char* file) {
        const Arguments arguments = {"-Djava.awt.headless=true",
                                     "-cp",
                                     kPrograms.string() + ":" + kCompanionJar.string(),
                                     "Serialised",
                                     action,
                                     file};
        const Finished program =
            run(under_agent ? java(arguments) : Arguments{tool("java")} + arguments, {folder.path, {}});
        EXPECT_EQ(program.status, 0) << program.err;
        return program.out;
    };
    in_vm(true, "write", "with");
    in_vm(false, "write", "without");
    EXPECT_EQ(run({"cmp", folder.path / "with", folder.path / "without"}).status, 0);
    EXPECT_EQ(in_vm(false, "read", "with"),
              "java.awt.Container\n"
              " in javax.swing.JPanel\n"
              " in  in javax.swing.JLabel written\n");
    EXPECT_EQ(in_vm(true, "read", "without"), kAgentOut +
                                                  "java.awt.Container\n"
                                                  " in traced javax.swing.JPanel\n"
                                                  " in traced  in traced javax.swing.JLabel written\n");
}

TEST_P(Agent, ShowsASwingProgram) {
    const XServer x;
    Process sample(java({"-jar", kSampleJar}), {.folder = {}, .environment = {x.display()}});
    EXPECT_TRUE(sample.reaches([&] { return x.shows("Vantrel sample"); })) << sample.out() << sample.err();
    EXPECT_TRUE(sample.reaches([&] { return Picture(x.name()).colours() > 16; })) << "nothing painted";
    sample.signal(SIGTERM);
    EXPECT_EQ(sample.wait(), 128 + SIGTERM);
    EXPECT_EQ(sample.out(), kAgentOut);
    EXPECT_EQ(sample.err(), kAgentErr);
}

TEST_P(Agent, ShowsAProgramThatNobodyHereWrote) {
    const fs::path jedit = "/usr/share/jedit/jedit.jar";
    if (!fs::exists(jedit)) {
        GTEST_SKIP() << "jEdit is not installed";
    }
    const XServer x;
    const ScratchFolder folder;
    Process program(
        java({"-Duser.home=" + folder.path.string(), "-jar", jedit, "-noserver", "-settings=" + folder.path.string()}),
        {.folder = folder.path, .environment = {x.display()}});
    EXPECT_TRUE(program.reaches([&] { return x.shows("jEdit - Untitled-1"); })) << program.out() << program.err();
    EXPECT_TRUE(program.reaches([&] { return Picture(x.name()).colours() > 64; })) << "nothing painted";
    program.signal(SIGTERM);
    EXPECT_EQ(program.wait(), 128 + SIGTERM);
    EXPECT_THAT(program.out(), HasSubstr("Starting Vantrel.\n"));
}

TEST_P(Agent, MayLieInAnyFolder) {
    const ScratchFolder folder;
    const fs::path library = copy_agent(folder.path / "größer als ein Wort, 日本");
    expect_replaced(run(java(kReplacedProgram, library)));
    expect_replaced(run(java(kReplacedProgram, library), {.folder = {}, .environment = {"LC_ALL=C"}}));
    expect_replaced(run(java(kReplacedProgram, fs::path(".") / library.filename()),
                        {.folder = library.parent_path(), .environment = {}}));

    fs::path deep = folder.path;
    while (deep.string().size() < 1024) {
        deep /= std::string(200, 'd');
    }
    const Finished refused = run(java(kReplacedProgram, copy_agent(deep)));
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err, StartsWith(deep.string().substr(0, 1023) + " doesn't exist.\n"));
    EXPECT_THAT(refused.out, Not(HasSubstr("A fatal error has been detected"))) << "the VM ends by itself";
}

TEST_P(Agent, RefusesToBeAttached) {
    Process program({tool("java"), "-cp", kPrograms, "Waiting"});
    ASSERT_TRUE(program.reaches([&] { return program.out() == "Waiting.\n"; }));
    const Finished jcmd = run({tool("jcmd"), std::to_string(program.id()), "JVMTI.agent_load", kLibrary});
    EXPECT_THAT(jcmd.out, HasSubstr("return code: 1\n"));
}

TEST_P(Agent, ABrokenHelperEndsTheVmWithAReason) {
    const ScratchFolder folder;
    const fs::path library = copy_agent(folder.path, kTestFolder / "broken/vantrel-1.2.3.jar");
    const Finished program = run(java(kReplacedProgram, library), {.folder = folder.path, .environment = {}});
    EXPECT_EQ(program.status, 128 + SIGABRT);
    const std::regex report(
        "java\\.lang\\.IllegalStateException: no class file today(\n.*)*Caused by: java\\.io\\.IOException: the disk "
        "is "
        "gone(.|\n)*vantrel-agent/vantrel-agent\\.cpp:[0-9]+: .*cbClassFileLoadHook.*Assertion `byteArrayData' "
        "failed\\.");
    EXPECT_TRUE(std::regex_search(program.err, report)) << program.err;
}

}  // namespace
