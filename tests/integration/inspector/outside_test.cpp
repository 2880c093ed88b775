// vantrel list, tree and so on: what programs under the agent answer to whoever asks from outside.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "scenario.h"

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using Words = std::vector<std::string>;

const fs::path kCommand = VANTREL_COMMAND;

std::string contents(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// What questions leave in the folder for temporary files while they are being answered.
std::set<fs::path> left() {
    std::set<fs::path> found;
    for (const auto& entry : fs::directory_iterator("/tmp")) {
        const std::string name = entry.path().filename();
        if (name.starts_with("vantrel-ask-") || name.starts_with(".attach_pid")) {
            found.insert(entry.path());
        }
    }
    return found;
}

// JSON as `vantrel tree` prints it, in the form of the program's own dump: a line for each component, its class without
// the package, and its name.
std::string as_dump(const std::string& json) {
    static const std::regex kComponent(
        R"re(^  ( *)\{.*"class":"(?:[^"]*[.$](?=[^0-9$]))?([^"]*)"(?:,"name":"([^"]*)")?.*)re");
    std::string dump;
    for (const std::string& line : lines_of(json)) {
        std::smatch match;
        if (std::regex_match(line, match, kComponent)) {
            dump +=
                (dump.empty() ? "" : "\n") + match.str(1) + match.str(2) + (match[3].matched ? " " + match.str(3) : "");
        }
    }
    return dump;
}

class Outside : public Scenario {
  protected:
    [[nodiscard]] std::string id() const { return std::to_string(program->id()); }

    // Asks the program; a question that fails, or leaves something behind, fails the test.
    std::string told(const std::string& question, const Words& words = {}) const {
        const Finished command = run(Words{kCommand, question, id()} + words);
        EXPECT_EQ(command.status, 0) << question << ": " << command.err;
        EXPECT_EQ(command.err, "");
        return command.out;
    }

    // What a question says that has no answer.
    std::string refused(int status, const std::string& question, const Words& words = {}) const {
        const Finished command = run(Words{kCommand, question, id()} + words);
        EXPECT_EQ(command.status, status) << question << ": " << command.err;
        EXPECT_EQ(command.out, "");
        EXPECT_THAT(command.err, StartsWith("vantrel: "));
        return command.err;
    }

    // Whether all that questions have left is gone, apart from what others ask at the same time.
    static bool nothing_is_left_since(const std::set<fs::path>& before) {
        return eventually([&] {
            const std::set<fs::path> now = left();
            return std::includes(before.begin(), before.end(), now.begin(), now.end());
        });
    }
};
INSTANTIATE_TEST_SUITE_P(OnJdk, Outside, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

TEST_P(Outside, ListsThePrograms) {
    const auto before = left();
    start();
    ask("dialog modeless");
    const Finished list = run({kCommand, "list", id()});
    EXPECT_EQ(list.status, 0) << list.err;
    EXPECT_THAT(lines_of(list.out),
                ElementsAre(AllOf(StartsWith(id() + "  scenario.Scenario  " + std::to_string(GetParam()) + "."),
                                  HasSubstr(" VM  \"Scenario\", "))))
        << list.out;
    EXPECT_TRUE(nothing_is_left_since(before));
}

TEST_P(Outside, TellsTheTreeAsTheProgramHasIt) {
    start();
    ask("frame second \"]/\\");
    EXPECT_EQ(as_dump(told("tree", {"--json"})), ask("dump"));
    const std::vector<std::string> whole = lines_of(told("tree"));
    const std::vector<std::string> top = lines_of(told("tree", {"--depth", "0"}));
    EXPECT_THAT(whole.front() + " \u2026", top.front());
    EXPECT_GT(whole.size(), 20);
    EXPECT_EQ(top.size(), 2);
}

// As whoever looks for something does: each path that is printed leads to what it was printed for.
TEST_P(Outside, FindsComponentsAndTheirPaths) {
    start();
    EXPECT_THAT(lines_of(told("tree", {"--find", "amount"})),
                ElementsAre("frame[name=main]/\u2026/label[name=amount.label]  JLabel amount.label \"Amount\"",
                            "frame[name=main]/\u2026/field[name=amount]  JTextField amount \"12.50\""));
    EXPECT_THAT(refused(1, "tree", {"--find", "nowhere-at-all"}), HasSubstr("no component is found"));
}

// The answer comes in time, and says where the event thread is; two that ask at once do not wait for each other.
TEST_P(Outside, AnswersForAProgramThatHangs) {
    start();
    const auto before = left();
    told("tree");
    ask("hold 6000");
    const auto begin = steady_clock::now();
    Process first({kCommand, "tree", id()});
    Process second({kCommand, "list", id()});
    EXPECT_EQ(first.wait(), 2);
    EXPECT_EQ(second.wait(), 0);
    EXPECT_LT(steady_clock::now() - begin, milliseconds(3000));
    EXPECT_THAT(first.err(), AllOf(HasSubstr("the event thread has not come to this question for 2.5 s, and is at "),
                                   HasSubstr("(Commands.java:"), HasSubstr("\tat java.lang.Thread.sleep(")));
    EXPECT_THAT(second.out(), HasSubstr("the event thread has not come to this question"));

    Process interrupted({kCommand, "tree", id()});
    EXPECT_TRUE(eventually([&] { return left() != before; }));
    interrupted.signal(SIGINT);
    EXPECT_EQ(interrupted.wait(), 128 + SIGINT);
    EXPECT_TRUE(nothing_is_left_since(before));
    ask("focus");
    EXPECT_THAT(told("tree"), HasSubstr("JTextField amount"));
}

TEST_P(Outside, AnswersWhenTheProgramEndsOrIsStopped) {
    start();
    const auto before = left();
    program->signal(SIGSTOP);
    EXPECT_THAT(refused(2, "tree"), HasSubstr("is stopped; kill -CONT " + id()));
    program->signal(SIGCONT);
    ask("hold 10000");
    Process command({kCommand, "tree", id()});
    EXPECT_TRUE(eventually([&] { return left() != before; }));
    std::this_thread::sleep_for(milliseconds(500));
    program->signal(SIGKILL);
    EXPECT_EQ(command.wait(), 2);
    EXPECT_THAT(command.err(), HasSubstr("(scenario.Scenario) has ended\n"));
    EXPECT_TRUE(nothing_is_left_since(before));
}

TEST_P(Outside, SaysWhatCannotBeAsked) {
    start({"-XX:+DisableAttachMechanism"});
    const std::string written = program->out();
    EXPECT_THAT(refused(2, "tree"), HasSubstr("-XX:+DisableAttachMechanism"));
    EXPECT_EQ(program->out(), written) << "the VM was asked for its threads' stacks";

    Process other({"sleep", "60"});
    const struct {
        Words words;
        int status;
        std::string says;
    } cases[] = {
        {{"tree", std::to_string(other.id())}, 2, "(sleep) runs without the agent; vantrel run starts"},
        {{"tree", "no such program"}, 1, "no program of yours under the agent is called 'no such program'"},
        {{"tree", "99999999"}, 1, "there is no process 99999999"},
        {{"list", "no such program"}, 1, "that is called 'no such program'"},
        {{"tree"}, 125, "PROGRAM is required"},
        {{"tree", id(), "--depth", "-1"}, 125, "from 0 on"},
    };
    for (const auto& c : cases) {
        const Finished command = run(Words{kCommand} + c.words);
        EXPECT_EQ(command.status, c.status) << command.err;
        EXPECT_THAT(lines_of(command.err), ElementsAre(HasSubstr(c.says)));
        EXPECT_EQ(command.out, "");
    }
    if (geteuid() == 0) {
        Process others({"setpriv", "--reuid=65534", "--clear-groups", "sleep", "60"});
        EXPECT_TRUE(eventually([&] {
            return run({kCommand, "tree", std::to_string(others.id())}).err.find(" belongs to nobody;") !=
                   std::string::npos;
        }));
    }
}

}  // namespace
