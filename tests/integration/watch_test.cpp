// The watch of the event thread: what it reports of programs that block it, and of programs that do not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <optional>
#include <regex>
#include <string>
#include <thread>

#include "agent_in_vm.h"
#include "process.h"
#include "x_server.h"

using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string kNone = "vantrel: the event thread was never blocked for more than 200 ms.\n";

class Watch : public OnEachJdk {
  protected:
    // Starts a program that does some things, and waits until it has done them.
    void start(const std::string& record, const Arguments& program_and_ways) {
        const Arguments options = {"-Dvantrel.record=" + record, "-Dvantrel.report=ask", "-cp", kPrograms};
        program.emplace(java_under_agent(GetParam(), options + program_and_ways),
                        ProcessOptions{.folder = folder.path, .environment = {x.display()}});
        ASSERT_TRUE(program->reaches([&] { return program->out().ends_with("done\n"); })) << program->err();
    }

    // Asks for the report, and returns it as soon as it is there.
    std::string ask() {
        const std::string before = program->err();
        std::ofstream(folder.path / "ask") << before.size();
        EXPECT_TRUE(program->reaches([&] { return program->err().size() > before.size(); }, seconds(5)));
        std::this_thread::sleep_for(milliseconds(100));  // it comes in one piece, but is not read in one
        return program->err().substr(before.size());
    }

    // Has the program end by itself, and returns what it has reported at its end.
    std::string end() {
        const std::string before = program->err();
        std::ofstream(folder.path / "end");
        EXPECT_EQ(program->wait(), 3);
        return program->err().substr(before.size());
    }

    const ScratchFolder folder;
    const XServer x;
    std::optional<Process> program;
};
ON_EACH_JDK(Watch);

TEST_P(Watch, NamesTheLineThatBlocksTheEventThreadWithinASecond) {
    start("blocks", {"Blocking", "click"});
    const auto after = std::chrono::steady_clock::now();
    const std::string report = ask();
    EXPECT_LT(std::chrono::steady_clock::now() - after, seconds(1));
    EXPECT_THAT(report, HasSubstr("vantrel: the event thread was blocked once for more than 200 ms, "));
    EXPECT_THAT(report, ContainsRegex("\n  (1\\.[89]|2\\.[01]). s at Blocking\\.sleep\\(Blocking\\.java:[0-9]+\\), "
                                      "with mouse released on JButton \"save\", from [0-9:.]+ on AWT-EventQueue-0:\n"));
    // What the samples say of the time after the first 200 ms: 0.3 s and 1.5 s, or nearly.
    EXPECT_THAT(report, ContainsRegex("\n +0\\.[23]. s +> Blocking\\.save\\(Blocking\\.java:[0-9]+\\)\n"));
    EXPECT_THAT(report, ContainsRegex("\n +1\\.[45]. s +> Blocking\\.store\\(Blocking\\.java:[0-9]+\\)\n"));
    EXPECT_THAT(report, ContainsRegex("\n +1\\.[45]. s +Thread\\.sleep"));
    EXPECT_EQ(end(), report) << "what is reported at the end";
}

TEST_P(Watch, TakesNoBusyOrWaitingEventThreadForABlockedOne) {
    start("blocks", {"Blocking", "busy", "dialog"});
    EXPECT_EQ(end(), kNone);
}

// A program that somebody stops, as a debugger does, while it works off an event.
TEST_P(Watch, DoesNotCountTimeInWhichTheProgramIsStopped) {
    start("blocks", {"Blocking", "ticking"});
    for (int round = 0; round < 4; ++round) {
        program->signal(SIGSTOP);
        std::this_thread::sleep_for(milliseconds(700));
        program->signal(SIGCONT);
        std::this_thread::sleep_for(milliseconds(130));
    }
    EXPECT_EQ(end(), kNone);
}

// Also those that leave the thread in the state in which it waits for events, and what a handler does after its dialog.
TEST_P(Watch, TellsBlocksApart) {
    start("blocks", {"Blocking", "after a dialog", "waiting"});
    const std::string report = end();
    EXPECT_THAT(report, HasSubstr("was blocked 4 times for more than 200 ms"));
    EXPECT_THAT(report, ContainsRegex("\n  1\\.[12]. s at Blocking\\.await\\(.*, with a task \\(lambda in Blocking\\), "
                                      "3 times, at most 0\\.(3|40). s, the last, from "));
    EXPECT_THAT(report, ContainsRegex("\n  0\\.[56]. s at Blocking\\.sleep\\(.*, "
                                      "with the rest of an event, after a dialog or loop in it, from "));
}

// Somebody ends a program that hangs.
TEST_P(Watch, ReportsABlockThatHasNotEndedWhenTheProgramIsTerminated) {
    start("blocks", {"Blocking", "for ever"});
    EXPECT_THAT(ask(), HasSubstr(", and it has not ended:\n"));
    const std::string before = program->err();
    program->signal(SIGTERM);
    EXPECT_EQ(program->wait(), 128 + SIGTERM);
    EXPECT_THAT(program->err().substr(before.size()), HasSubstr(", and it has not ended:\n"));
}

TEST_P(Watch, SaysNothingWhereThereIsNoEventThread) {
    const Finished finished = run(java_under_agent(
        GetParam(), {"-Dvantrel.record=blocks,nonsense", "-cp", kPrograms, "Ending", "return", "at once"}));
    EXPECT_EQ(finished.status, 0);
    EXPECT_THAT(finished.err, HasSubstr("vantrel: -Dvantrel.record=nonsense is not known; "));
    EXPECT_THAT(finished.err, Not(HasSubstr("event thread")));
}

}  // namespace
