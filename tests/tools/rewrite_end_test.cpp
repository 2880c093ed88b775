// A vantrel-rewrite that is stopped, or cannot write on, leaves nothing behind; one on a terminal shows how far it is.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

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

bool is_temporary(const fs::directory_entry& entry) {
    return entry.path().filename().string().starts_with(".vantrel-rewrite-");
}

bool has_temporary(const fs::path& folder) {
    return std::any_of(fs::directory_iterator(folder), fs::directory_iterator(), is_temporary);
}

struct Stop {
    const char* name;
    int signal;
};

class Stopped : public testing::TestWithParam<Stop> {
  public:
    // What runs the tests may ignore signals, which a child inherits; and some signals leave a core behind.
    void SetUp() override {
        std::signal(GetParam().signal, SIG_DFL);
        const rlimit none{};
        setrlimit(RLIMIT_CORE, &none);
    }

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

class Ended : public Stopped {};
INSTANTIATE_TEST_SUITE_P(By, Ended,
                         testing::Values(Stop{"SIGTERM", SIGTERM}, Stop{"SIGQUIT", SIGQUIT}, Stop{"SIGUSR1", SIGUSR1},
                                         Stop{"SIGALRM", SIGALRM}, Stop{"SIGXCPU", SIGXCPU}, Stop{"SIGPWR", SIGPWR},
                                         Stop{"SIGRTMIN", SIGRTMIN}, Stop{"SIGRTMAX", SIGRTMAX}),
                         [](const auto& info) { return info.param.name; });

TEST_P(Ended, LeavesNoFolder) {
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

// Nobody can help being killed. The next run puts that right, and leaves alone what another one has in work.
TEST(Killed, LeavesWhatTheNextRunRemoves) {
    const ScratchFolder scratch;
    make_many_classes(scratch.path / "tree", kMany);
    write(scratch.path / "A.class", program_class());
    const auto is_in_work = [&](const Process& process) {
        return fs::exists(scratch.path / (".vantrel-rewrite-" + std::to_string(process.id()) + "-0"));
    };
    Process killed(rewrite_command({"-o", "killed", "tree"}), {.folder = scratch.path, .environment = {}});
    ASSERT_TRUE(killed.reaches([&] { return is_in_work(killed); })) << killed.err();
    killed.signal(SIGKILL);
    EXPECT_EQ(killed.wait(), 128 + SIGKILL);
    EXPECT_TRUE(is_in_work(killed));

    Process slow(rewrite_command({"-o", "slow", "tree"}), {.folder = scratch.path, .environment = {}});
    ASSERT_TRUE(slow.reaches([&] { return is_in_work(slow); })) << slow.err();
    slow.signal(SIGSTOP);
    EXPECT_EQ(rewrite({"-o", "B.class", "A.class"}, scratch.path).status, 0);
    EXPECT_FALSE(is_in_work(killed));
    EXPECT_TRUE(is_in_work(slow));
    slow.signal(SIGCONT);
    EXPECT_EQ(slow.wait(), 0);
    EXPECT_THAT(names_in(scratch.path / "slow"), SizeIs(kMany));
    EXPECT_FALSE(has_temporary(scratch.path));
}

// A command under a limit, as the shell's ulimit takes it.
Words limited(const std::string& limit, const Words& command) {
    Words words{"bash", "-c", "ulimit " + limit + "; exec \"$@\"", "bash"};
    words.insert(words.end(), command.begin(), command.end());
    return words;
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
    const Finished failed = run_in(scratch.path, limited("-f 100", rewrite_command({"-o", "out", GetParam()})));
    EXPECT_EQ(failed.status, 2);
    EXPECT_THAT(lines_of(failed.err), SizeIs(1));
    EXPECT_THAT(failed.err, AllOf(StartsWith("vantrel-rewrite: cannot write " + (scratch.path / "out").string()),
                                  HasSubstr(": File too large")));
    EXPECT_EQ(names_in(scratch.path), before);
}

// What is packed as a class may be as large as it likes; what begins as no class is not read, what is no class in
// length is not read to its end. Memory is short here, and a thread's stack is large: there can be three of them.
TEST(ShortMemory, IsEnough) {
    const ScratchFolder scratch;
    write(scratch.path / "tree/A.class", program_class());
    write(scratch.path / "tree/B.class", program_class());
    write(scratch.path / "Zeros.class", "");
    write(scratch.path / "Header.class", program_class().substr(0, 8));
    for (const char* name : {"Zeros.class", "Header.class"}) {
        fs::resize_file(scratch.path / name, size_t{300} << 20U);
    }
    ASSERT_EQ(run_in(scratch.path, {"zip", "-q1", "zeros.jar", "Zeros.class"}).status, 0);
    const Finished zeros = run_in(scratch.path, limited("-v 200000", rewrite_command({"-o", "out.jar", "zeros.jar"})));
    EXPECT_EQ(zeros.status, 1);
    EXPECT_EQ(zeros.err, "zeros.jar: Zeros.class: not rewritten: it does not begin as a class file does\n");
    const Finished header = rewrite({"-o", "out.class", "Header.class"}, scratch.path);
    EXPECT_EQ(header.status, 1);
    EXPECT_EQ(header.err, "Header.class: not rewritten: it is too large to be a class file\n");
    EXPECT_EQ(fs::file_size(scratch.path / "out.class"), size_t{300} << 20U);
    const Finished threads =
        run_in(scratch.path, limited("-s 100000 -v 350000", rewrite_command({"-j", "9", "-o", "out", "tree"})));
    EXPECT_EQ(threads.status, 0) << threads.err;
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
