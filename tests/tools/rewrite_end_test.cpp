// A vantrel-rewrite that is stopped, or cannot write on, leaves nothing behind; one on a terminal shows how far it is.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>

#include "tool_kit.h"

using testing::AllOf;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

namespace fs = std::filesystem;

namespace {

constexpr int kMany = 10000;  // classes; enough to be met in the middle

bool has_temporary(const fs::path& folder) {
    return std::any_of(fs::directory_iterator(folder), fs::directory_iterator(), [](const auto& entry) {
        return entry.path().filename().string().starts_with(".vantrel-rewrite-");
    });
}

struct Stop {
    const char* name;
    int signal;
};

class Stopped : public testing::TestWithParam<Stop> {
  public:
    // What runs the tests may ignore signals, which a child inherits.
    void SetUp() override { std::signal(GetParam().signal, SIG_DFL); }

    // Stops the command when it has begun to write; gives its status.
    int stop(const Words& command) {
        Process process(command, {.folder = scratch.path, .environment = {}});
        EXPECT_TRUE(process.reaches([&] { return has_temporary(scratch.path); })) << process.err();
        process.signal(GetParam().signal);
        const int status = process.wait();
        EXPECT_EQ(process.out() + process.err(), "");
        return status;
    }

    const ScratchFolder scratch;
};
INSTANTIATE_TEST_SUITE_P(By, Stopped,
                         testing::Values(Stop{"SIGINT", SIGINT}, Stop{"SIGTERM", SIGTERM}, Stop{"SIGHUP", SIGHUP}),
                         [](const auto& info) { return info.param.name; });

TEST_P(Stopped, LeavesNoFolder) {
    make_many_classes(scratch.path / "tree", kMany);
    const auto before = names_in(scratch.path);
    EXPECT_EQ(stop(rewrite_command({"-o", "out", "tree"})), 128 + GetParam().signal);
    EXPECT_EQ(names_in(scratch.path), before);
}

TEST_P(Stopped, LeavesAnOldResultAsItWas) {
    make_jar(scratch.path / "in.jar", std::vector<Entry>(1, {"Program.class", program_class()}));
    make_many_classes(scratch.path / "tree", kMany);
    write(scratch.path / "out/in.jar", "old");
    write(scratch.path / "map", "old");
    const auto before = names_in(scratch.path);
    EXPECT_EQ(stop(rewrite_command({"--map", "map", "-o", "out", "in.jar", "tree"})), 128 + GetParam().signal);
    EXPECT_EQ(names_in(scratch.path), before);
    EXPECT_EQ(contents(scratch.path / "out/in.jar"), "old");
    EXPECT_EQ(contents(scratch.path / "map"), "old");
}

// Below nohup, or in a script's background, a signal is to be ignored.
TEST_P(Stopped, RunsOnWhereTheSignalIsIgnored) {
    make_many_classes(scratch.path / "tree", kMany);
    std::signal(GetParam().signal, SIG_IGN);
    Process process(rewrite_command({"-o", "out", "tree"}), {.folder = scratch.path, .environment = {}});
    std::signal(GetParam().signal, SIG_DFL);
    EXPECT_TRUE(process.reaches([&] { return has_temporary(scratch.path); }));
    process.signal(GetParam().signal);
    EXPECT_EQ(process.wait(), 0);
    EXPECT_THAT(names_in(scratch.path / "out"), SizeIs(kMany));
}

// A limit on the size of files stands in for a full disk.
class FullDisk : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Under, FullDisk, testing::Values("big.jar", "rewritten.jar", "tree", "Big.class"),
                         [](const auto& info) {
                             const std::string name = info.param;
                             return name.substr(0, name.find('.'));
                         });

TEST_P(FullDisk, LeavesNothing) {
    const ScratchFolder scratch;
    const std::string big(200000, 'x');
    make_jar(scratch.path / "big.jar", {{"big", big, 946782246, true}});
    make_jar(scratch.path / "rewritten.jar", {{"Program.class", program_class()}, {"big", big, 946782246, true}});
    write(scratch.path / "tree/a.class", program_class());
    write(scratch.path / "tree/big", big);
    write(scratch.path / "Big.class", big);
    const auto before = names_in(scratch.path);
    Words command{"bash", "-c", "ulimit -f 100; exec \"$@\"", "bash"};
    const Words rewriting = rewrite_command({"-o", "out", GetParam()});
    command.insert(command.end(), rewriting.begin(), rewriting.end());
    const Finished failed = run_in(scratch.path, command);
    EXPECT_EQ(failed.status, 2);
    EXPECT_THAT(lines_of(failed.err), SizeIs(1));
    EXPECT_THAT(failed.err, AllOf(StartsWith("vantrel-rewrite: cannot write "), HasSubstr(": File too large")));
    EXPECT_EQ(names_in(scratch.path), before);
}

// `script` gives a program a terminal, and collects what is written to it.
TEST(Progress, IsShownOnATerminalOnly) {
    const ScratchFolder scratch;
    make_many_classes(scratch.path / "tree", 300);
    std::string command;
    for (const std::string& word : rewrite_command({"tree", "-o"})) {
        command += word + " ";
    }
    const auto on_terminal = [&](const std::string& line) {
        return run_in(scratch.path, {"script", "-qec", line, "/dev/null"});
    };
    const Finished shown = on_terminal(command + "shown");
    EXPECT_EQ(shown.status, 0);
    EXPECT_THAT(shown.out, AllOf(HasSubstr("\r[" + std::string(30, ' ') + "]   0%  0 of 300 classes"),
                                 HasSubstr("\r[" + std::string(30, '#') + "] 100%  300 of 300 classes"),
                                 HasSubstr("\r\033[K300 classes: 300 rewritten")));
    const Finished redirected = on_terminal(command + "redirected 2>err");
    EXPECT_EQ(redirected.status, 0);
    EXPECT_EQ(redirected.out, "300 classes: 300 rewritten, 0 too new, 0 failed\r\n");
    EXPECT_EQ(contents(scratch.path / "err"), "");
}

}  // namespace
