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
using testing::AnyOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
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

TEST_P(Outside, ShowsWhatThereIsToSayOfAComponent) {
    start({"-Dvantrel.record=changes"});
    ask("set amount editable false");
    const std::string added = "MainFrame.java:" + std::to_string(line_of("MainFrame.java", "form.add(right,"));
    const std::string set = "Commands.java:" + std::to_string(line_of("Commands.java", ".invoke(component"));
    const std::string shown = told("show", {"field[name=amount]"});
    EXPECT_THAT(shown, StartsWith("path: frame[name=main]/\u2026/field[name=amount]\nclass: javax.swing.JTextField\n"));
    EXPECT_THAT(told("show", {"label[name=invisible]"}), HasSubstr("\nwhy: It is invisible"));
    EXPECT_THAT(shown, AllOf(HasSubstr(added), HasSubstr("  editable: false\n    Set by "), HasSubstr(set)));
}

// What a path may be, and what is said of one that leads nowhere or to too much.
TEST_P(Outside, FollowsPaths) {
    start();
    ask("text amount.label a/b [c]/\\d \u00fc\U0001F600");
    const std::string path = "frame[name=main]/\u2026/label[text=a/b [c\\]/\\\\d \u00fc\U0001F600]";
    const auto leads = [&](const std::string& to) { return told("show", {to}); };
    const std::string expected = "path: frame[name=main]/\u2026/label[name=amount.label]\n";
    for (const std::string& each :
         {path, std::string("label[text=a/b [c\\]/\\\\d \u00fc\U0001F600]"), std::string("JLabel[name=amount.label]"),
          std::string("frame0/.../[name=amount.label]"), std::string("/frame0/\u2026/label[name=amount.label]/")}) {
        EXPECT_THAT(leads(each), StartsWith(expected)) << each;
    }
    // Every line of the tree is a step from the line that it is indented under.
    std::vector<std::string> steps;
    for (const std::string& line : lines_of(told("tree"))) {
        const size_t indent = line.find_first_not_of(' ');
        steps.resize(indent / 2);
        steps.push_back(line.substr(indent, line.find("  ", indent) - indent));
    }
    std::string last;
    for (const std::string& step : steps) {
        last += "/" + step;
    }
    EXPECT_THAT(told("show", {last}), HasSubstr(steps.back()));

    EXPECT_THAT(refused(1, "show", {"field[name=amuont]"}),
                HasSubstr("the nearest is frame[name=main]/\u2026/field[name=amount]\n"));
    EXPECT_THAT(refused(1, "show", {"label0"}), HasSubstr("components: frame[name=main]/"));
    EXPECT_THAT(refused(1, "show", {"button[colour=red]"}), HasSubstr("makes no sense"));
    EXPECT_THAT(refused(1, "show", {"//"}), HasSubstr("the path is empty"));
}

TEST_P(Outside, MakesPicturesOfTheWindowsPixels) {
    start();
    ask("find root JRootPane ");
    for (const char* name : {"root", "amount"}) {
        const std::string file = folder.path / (std::string(name) + ".png");
        Words words{"-o", file};
        if (name == std::string("amount")) {
            words.insert(words.begin(), "field[name=amount]");
        }
        const Place area = where(name);
        EXPECT_TRUE(eventually([&] {  // a caret blinks
            told("picture", words);
            const Picture screen = picture(area);
            EXPECT_EQ(run({"convert", file, "-depth", "8", "RGB:" + file + ".rgb"}).status, 0);
            const std::string rgb = contents(file + ".rgb");
            EXPECT_EQ(rgb.size(), 3 * area.width * area.height);
            for (size_t pixel = 0; pixel < rgb.size() / 3; ++pixel) {
                char colour[7];
                const auto part = [&](size_t at) { return static_cast<unsigned char>(rgb[3 * pixel + at]); };
                snprintf(colour, sizeof colour, "%02X%02X%02X", part(0), part(1), part(2));
                const int at = static_cast<int>(pixel);
                if (screen.at(at % area.width, at / area.width) != colour) {
                    return false;
                }
            }
            return true;
        })) << name;
    }
    EXPECT_THAT(refused(125, "picture", {"-o", "/nowhere/at/all.png"}), HasSubstr("cannot write /nowhere/at/all.png"));
}

TEST_P(Outside, SelectsInTheInspector) {
    start();
    EXPECT_THAT(refused(1, "selection"), HasSubstr("nothing is selected"));
    const std::string selected = "frame[name=main]/\u2026/field[name=amount]  JTextField amount \"12.50\"\n";
    EXPECT_EQ(told("select", {"field[name=amount]"}), selected);
    EXPECT_TRUE(eventually([this] { return inspector_is_open() && ask("selected") == "amount"; }));
    EXPECT_EQ(told("selection"), selected);
    EXPECT_THAT(told("tree"), testing::Not(HasSubstr("vantrel"))) << "the inspector is not part of the program";
}

TEST_P(Outside, TakesSnapshotsThatDifferInWhatHasChanged) {
    start();
    const auto snapshot = [this](const std::string& name) {
        told("snapshot", {"-o", folder.path / name});
        return (folder.path / name).string();
    };
    const std::string before = snapshot("before");
    EXPECT_TRUE(eventually([&] {  // the program comes to rest
        fs::rename(before, folder.path / "last");
        snapshot("before");
        const Finished same = run({kCommand, "diff", folder.path / "last", before});
        EXPECT_EQ(same.out.empty(), same.status == 0);
        return same.status == 0;
    }));
    ask("set cancel focusPainted false");
    ask("set amount.label enabled false");
    ask("set room opaque false");
    const Finished changed = run({kCommand, "diff", before, snapshot("after")});
    EXPECT_EQ(changed.status, 1);
    const std::string top = "  frame[name=main]/split[name=split]/panel[name=top]/";
    EXPECT_EQ(changed.out, top + "panel[name=form]/label[name=amount.label]\n    enabled: true -> false\n" + top +
                               "panel[name=form]/button[name=cancel]\n    focusPainted: true -> false\n" + top +
                               "panel[name=right]/panel[name=room]\n    opaque: true -> false\n");
    ask("add room newcomer");
    const Finished added = run({kCommand, "diff", before, snapshot("later")});
    EXPECT_THAT(added.out, HasSubstr("+ frame[name=main]/"));

    const std::string text = contents(before);
    std::ofstream(folder.path / "cut") << text.substr(0, text.size() / 2).substr(0, text.rfind('\t', text.size() / 2));
    for (const auto& [file, says] : {std::pair<std::string, std::string>{"cut", "changed or cut"},
                                     {"none", "cannot read"},
                                     {"commands", "is no snapshot"}}) {
        const Finished refusal = run({kCommand, "diff", before, folder.path / file});
        EXPECT_EQ(refusal.status, 125);
        EXPECT_THAT(refusal.err, HasSubstr(says));
    }
}

TEST_P(Outside, AnswersTheExamplesOfTheManual) {
    start();
    const std::string before = "For instance, for a program with a button";
    const std::string manual = contents(VANTREL_COMMAND_MANUAL);
    const std::string examples = manual.substr(manual.find(before), manual.find("### Paths") - manual.find(before));
    std::ofstream script(folder.path / "examples");
    int number = 0;
    for (const std::string& line : lines_of(examples)) {
        if (line.starts_with("    vantrel ")) {
            script << std::regex_replace(line, std::regex("com\\.x\\.Main"), id()) << "\n";
            ++number;
        }
    }
    script.close();
    EXPECT_EQ(number, 10);
    const Finished told =
        run({"bash", "-e", "examples"},
            {.folder = folder.path, .environment = {"PATH=" + kCommand.parent_path().string() + ":/usr/bin:/bin"}});
    EXPECT_TRUE(told.status == 0 || told.status == 1) << told.err;  // selecting may have moved the focus meanwhile
    EXPECT_EQ(told.err, "");
    EXPECT_TRUE(fs::exists(folder.path / "after"));
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

// As `vantrel run` starts it: nothing that is asked shows in what the program writes, nor in how it ends. What it
// writes itself is not the same in every run: at its first start an exception of Swing's is among that now and then.
TEST_P(Outside, LeavesARealProgramAsItWas) {
    const fs::path editor = "/usr/share/jedit/jedit.jar";
    if (!fs::exists(editor)) {
        GTEST_SKIP() << "jEdit is not installed";
    }
    manager.emplace(x);
    std::ofstream(folder.path / "properties") << "tip.show=false\n";
    program.emplace(Words{kCommand, "run", *find_jdk(GetParam()) / "bin" / "java", "-cp", editor,
                          "org.gjt.sp.jedit.jEdit", "-noserver", "-nobackground", "-settings=" + folder.path.string()},
                    ProcessOptions{.folder = folder.path, .environment = {x.display()}});
    ASSERT_TRUE(program->reaches([this] { return x.shows("jEdit - Untitled-1"); })) << program->err();
    for (int time = 0; time < 5; ++time) {
        Process tree({kCommand, "tree", id(), "--json"});
        EXPECT_THAT(told("list"), HasSubstr("\"jEdit - Untitled-1\""));
        EXPECT_THAT(told("show", {"TextAreaPainter0"}), HasSubstr("\nadded: TextArea.<init>(TextArea.java:"));
        told("picture", {"-o", folder.path / "picture.png"});
        EXPECT_EQ(tree.wait(), 0);
        EXPECT_THAT(tree.out(), EndsWith("]}\n"));
    }
    program->signal(SIGTERM);
    EXPECT_EQ(program->wait(), 128 + SIGTERM);
    EXPECT_THAT(program->out() + program->err(), Not(AnyOf(HasSubstr("com.vantrel"), HasSubstr("WARNING"))));
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
