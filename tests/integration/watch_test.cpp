// The watch of the event thread: what it reports of programs that block it, and of programs that do not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "agent_in_vm.h"
#include "process.h"
#include "x_server.h"

using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

namespace {

// A report that names no line of the program. On a busy machine the toolkit's first painting may be a block.
const auto kNamesNone = AllOf(StartsWith("vantrel: the event thread was "), Not(HasSubstr(" at Blocking.")));

class Watch : public OnEachJdk {
  protected:
    // Starts a program that does some things, and waits until it has done them.
    void start(const std::string& record, const Arguments& program_and_ways) {
        program.emplace(command(record, program_and_ways), options());
        ASSERT_TRUE(program->reaches([&] { return program->out().ends_with("done\n"); })) << program->err();
    }

    // Runs a program that does some things and ends at once when it has, and returns what it has reported.
    std::string run_through(const std::string& record, const Arguments& program_and_ways) {
        tell_to_end();
        const Finished finished = run(command(record, program_and_ways), options());
        EXPECT_EQ(finished.status, 3);
        EXPECT_THAT(finished.err, StartsWith(kAgentErr));
        return finished.err.substr(std::min(kAgentErr.size(), finished.err.size()));
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
        tell_to_end();
        EXPECT_EQ(program->wait(), 3);
        return program->err().substr(before.size());
    }

    void tell_to_end() { std::ofstream(folder.path / "end"); }

    const ScratchFolder folder;
    const XServer x;
    std::optional<Process> program;

  private:
    [[nodiscard]] ProcessOptions options() const { return {.folder = folder.path, .environment = {x.display()}}; }

    static Arguments command(const std::string& record, const Arguments& program_and_ways) {
        const Arguments all = {"-Dvantrel.record=" + record, "-Dvantrel.report=ask", "-cp", kPrograms};
        return java_under_agent(GetParam(), all + program_and_ways);
    }
};
ON_EACH_JDK(Watch);

TEST_P(Watch, NamesTheLineThatBlocksTheEventThreadWithinASecond) {
    start("blocks", {"Blocking", "click"});
    const auto after = std::chrono::steady_clock::now();
    const std::string report = ask();
    EXPECT_LT(std::chrono::steady_clock::now() - after, seconds(1));
    EXPECT_THAT(report, HasSubstr("vantrel: the event thread was blocked "));
    EXPECT_THAT(report, ContainsRegex("\n  (1\\.[89]|2\\.[01]). s at Blocking\\.sleep\\(Blocking\\.java:[0-9]+\\), "
                                      "with mouse released on JButton \"save\", from [0-9:.]+ on AWT-EventQueue-0:\n"));
    // What the samples say of the time after the first 200 ms: 0.3 s and 1.5 s, or nearly.
    EXPECT_THAT(report, ContainsRegex("\n +0\\.[23]. s +> Blocking\\.save\\(Blocking\\.java:[0-9]+\\)\n"));
    EXPECT_THAT(report, ContainsRegex("\n +1\\.[45]. s +> Blocking\\.store\\(Blocking\\.java:[0-9]+\\)\n"));
    EXPECT_THAT(report, ContainsRegex("\n +1\\.[45]. s +Thread\\.sleep"));
    EXPECT_EQ(end(), report) << "what is reported at the end";
}

TEST_P(Watch, TakesNoBusyOrWaitingEventThreadForABlockedOne) {
    EXPECT_THAT(run_through("blocks", {"Blocking", "busy", "dialog"}), kNamesNone);
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
    EXPECT_THAT(end(), kNamesNone);
}

// Also those that leave the thread in the state in which it waits for events, and what a handler does after its dialog.
TEST_P(Watch, TellsBlocksApart) {
    const std::string report = run_through("blocks", {"Blocking", "after a dialog", "waiting"});
    EXPECT_THAT(report, Not(HasSubstr("it has not ended")));
    EXPECT_THAT(report,
                ContainsRegex("\n  1\\.[1-4]. s at Blocking\\.await\\(.*, with a task \\(lambda in Blocking\\), "
                              "3 times, at most 0\\.[345]. s, the last, from "));
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

// Windows that are being built do not count, nor does what the toolkit does; a label with HTML reports two changes for
// each text, and setEnabled two of the same property. The report goes to
// stderr also when the program has replaced System.err.
TEST_P(Watch, CountsChangesOnOtherThreadsByLine) {
    const std::string report = run_through("threads", {"OtherThreads"});
    const std::vector<std::string> lines = lines_of(report);
    ASSERT_EQ(lines.size(), 7) << report;
    EXPECT_EQ(lines[0], "vantrel: components on the screen were changed on other threads than the event thread:");
    const std::string expected[] = {
        R"(1000 times at OtherThreads\.texts\(OtherThreads\.java:[0-9]+\): text of JLabel "state", on worker)",
        R"(200 times at OtherThreads\.html\(OtherThreads\.java:[0-9]+\): text of JLabel "state", on worker)",
        R"(30 times at OtherThreads\.enable\(OtherThreads\.java:[0-9]+\): enabled of JButton "ok", on worker)",
        R"(4 times at OtherThreads\.add\(OtherThreads\.java:[0-9]+\): addition of JLabel "new", on main, worker)",
        R"(once at OtherThreads\.remove\(OtherThreads\.java:[0-9]+\): removal of JLabel "new", on worker)",
        R"(once at OtherThreads\.work\(OtherThreads\.java:[0-9]+\): visible of JFrame, on worker)",
    };
    for (size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_THAT(lines[i + 1], MatchesRegex("  " + expected[i] + ", the last at [0-9:.]+"));
    }
}

TEST_P(Watch, SaysNothingWhereThereIsNoEventThread) {
    const Finished finished = run(java_under_agent(
        GetParam(), {"-Dvantrel.record=blocks,nonsense,threads", "-cp", kPrograms, "Ending", "return", "at once"}));
    EXPECT_EQ(finished.status, 0);
    EXPECT_THAT(finished.err, HasSubstr("vantrel: -Dvantrel.record=nonsense is not known; "));
    EXPECT_THAT(finished.err, Not(HasSubstr("thread than")));
    EXPECT_THAT(finished.err, Not(HasSubstr("blocked")));
}

}  // namespace
