// The agent's work while a program runs, in real VMs and with real keys: the inspector's window, the companion's native
// methods, and how the program ends.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <future>
#include <memory>
#include <optional>
#include <random>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include "agent_in_vm.h"
#include "process.h"
#include "x_keys.h"
#include "x_picture.h"
#include "x_server.h"
#include "x_windows.h"

namespace fs = std::filesystem;
using std::chrono::seconds;
using testing::AnyOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

const std::string kWindow = "Vantrel";

// A program under the agent on a display of its own.
class Inspector : public OnEachJdk {
  protected:
    void start(const Arguments& arguments, const fs::path& library = kLibrary) {
        program.emplace(java_under_agent(GetParam(), arguments, library),
                        ProcessOptions{.folder = folder.path, .environment = environment});
    }
    // The program that ends in a given way when it is told to, and the companion that records what is called on it.
    void start_ending(const std::string& way, const Arguments& options = {}) {
        start(options + Arguments{"-cp", kPrograms, "Ending", way});
        ASSERT_TRUE(says("started\n")) << program->err();
    }
    void start_recorded(const std::string& then) {
        start({"-Dthen=" + then, "-cp", kPrograms, "Ending", "exit"}, copy_agent(folder.path, kRecordingCompanion));
        ASSERT_TRUE(says("started\n")) << program->err();
    }
    void tell_to_end() { std::ofstream(folder.path / "end"); }

    bool says(const std::string& text) {
        return program->reaches([&] { return program->out().find(text) != std::string::npos; });
    }
    bool complains(const std::string& text) {
        return program->reaches([&] { return program->err().find(text) != std::string::npos; });
    }
    void press_hot_key() { keys.press({XK_Control_L, XK_F12}); }
    bool shows_inspector() {
        return program->reaches([this] { return x.shows(kWindow); });
    }
    bool hides_inspector() {
        return program->reaches([this] { return !x.shows(kWindow); });
    }

    const ScratchFolder folder;
    const XServer x;
    XKeys keys{x.name()};
    std::vector<std::string> environment = {x.display()};  // of the program
    std::optional<Process> program;
};
ON_EACH_JDK(Inspector);

TEST_P(Inspector, TheHotKeyShowsAndHidesItsWindow) {
    for (const bool managed : {false, true}) {
        SCOPED_TRACE(managed ? "with a window manager" : "without a window manager");
        std::optional<WindowManager> manager;
        if (managed) {
            manager.emplace(x);
        }
        start({"-jar", kSampleJar});
        ASSERT_TRUE(program->reaches([&] { return x.shows("Vantrel sample"); })) << program->err();
        for (int round = 0; round < 2; ++round) {
            EXPECT_FALSE(x.shows(kWindow));
            press_hot_key();
            EXPECT_TRUE(shows_inspector());
            press_hot_key();
            EXPECT_TRUE(hides_inspector());
        }
        program->signal(SIGTERM);
        EXPECT_EQ(program->wait(), 128 + SIGTERM);
        EXPECT_EQ(program->out(), kAgentOut);
        EXPECT_EQ(program->err(), kAgentErr);
    }
}

TEST_P(Inspector, EveryPressIsACallOnOneDaemonThread) {
    start_recorded("");
    for (int press = 1; press <= 3; ++press) {
        press_hot_key();
        EXPECT_TRUE(says("call " + std::to_string(press)));
    }
    const std::regex calls(
        "\ncall 1: null on vantrel-hotkey ([0-9]+), a daemon\n"
        "call 2: null on vantrel-hotkey \\1, a daemon\n"
        "call 3: null on vantrel-hotkey \\1, a daemon\n");
    EXPECT_TRUE(std::regex_search(program->out(), calls)) << program->out();
}

// The one that holds the key is killed, the next one ends as programs do.
TEST_P(Inspector, ProgramsOnOneDisplayShareTheHotKey) {
    struct Program {
        const ScratchFolder folder;
        std::optional<Process> process;
    };
    XWindows windows(x.name());
    std::vector<std::unique_ptr<Program>> programs;
    for (int i = 0; i < 3; ++i) {
        programs.push_back(std::make_unique<Program>());
        Program& added = *programs.back();
        added.process.emplace(java_under_agent(GetParam(), {"-cp", kPrograms, "Ending", "dispose"},
                                               copy_agent(added.folder.path, kRecordingCompanion)),
                              ProcessOptions{.folder = added.folder.path, .environment = {x.display()}});
        ASSERT_TRUE(added.process->reaches([&] { return windows.shown_by(added.process->id()) != XCB_NONE; }))
            << added.process->err();
    }
    const auto calls_of = [](const Program& program) {
        const std::vector<std::string> lines = lines_of(program.process->out());
        return std::count_if(lines.begin(), lines.end(),
                             [](const std::string& line) { return line.starts_with("call "); });
    };
    const auto press_goes_to = [&](Program& program) {
        const xcb_window_t window = windows.shown_by(program.process->id());
        // A window that has just come asks for the focus, too.
        ASSERT_TRUE(program.process->reaches([&] {
            windows.focus(window);
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            return windows.focused() == window;
        }));
        std::vector<long> before;
        before.reserve(programs.size());
        for (const auto& other : programs) {
            before.push_back(calls_of(*other));
        }
        const long own = calls_of(program);
        EXPECT_TRUE(program.process->reaches(
            [&] {
                press_hot_key();
                return calls_of(program) > own;
            },
            seconds(1)))
            << program.process->out() << program.process->err();
        for (size_t i = 0; i < programs.size(); ++i) {
            EXPECT_TRUE(programs[i].get() == &program || calls_of(*programs[i]) == before[i]);
        }
    };
    for (const auto& program : programs) {
        press_goes_to(*program);
    }
    programs[0]->process->signal(SIGKILL);
    programs.erase(programs.begin());
    press_goes_to(*programs[1]);
    const std::ofstream end(programs[0]->folder.path / "end");
    EXPECT_EQ(programs[0]->process->wait(), 0);
    programs.erase(programs.begin());
    press_goes_to(*programs[0]);
    EXPECT_EQ(programs[0]->process->err(), kAgentErr);
}

TEST_P(Inspector, AFaultOfTheInspectorIsDescribedAndTheNextPressStartsClean) {
    start_recorded("throw");
    for (int press = 1; press <= 2; ++press) {
        press_hot_key();
        EXPECT_TRUE(complains("java.lang.IllegalStateException: fault " + std::to_string(press) + "\n"));
        EXPECT_THAT(program->err(), HasSubstr("at com.vantrel.Vantrel.showVantrel(")) << "with its stack";
    }
    tell_to_end();
    EXPECT_EQ(program->wait(), 3);
}

TEST_P(Inspector, AHeadlessVmSaysThatItHasNoWindow) {
    start_ending("exit", {"-Djava.awt.headless=true"});
    press_hot_key();
    EXPECT_TRUE(complains("Vantrel has no window here: this Java VM is headless (java.awt.headless).\n"));
    tell_to_end();
    EXPECT_EQ(program->wait(), 3);
}

// All that the agent does at run time, under the VM's own checks.
TEST_P(Inspector, TheNativesDoTheirWork) {
    start({"-Xcheck:jni", "--add-exports", "java.desktop/sun.awt=ALL-UNNAMED", "-cp", kPrograms, "Natives"});
    ASSERT_TRUE(says("ready, free\n")) << program->out() << program->err();
    const std::string said = std::regex_replace(program->out(), std::regex("(WARNING|Warning|\tat |\t- ).*\n"), "");
    EXPECT_THAT(said, HasSubstr("system -1\n"
                                "beep [\a]\n"
                                "OOOOOOOOOO..\n"
                                "OttttttttO..\n"
                                "OttttttttO..\n"
                                "OttttttttO..\n"
                                "OOOOOOOOOO..\n"
                                "............\n"
                                "............\n"
                                "event thread of main, new threads: 0\n"
                                "event thread of other posted by vantrel-context-thread\n"));

    const auto colour_at = [&](int across, int down) { return Picture(x.name()).at(across, down); };
    // Outside the tint and inside it; blending on the screen's surface rounds otherwise than on an image of its own.
    EXPECT_TRUE(program->reaches([&] { return colour_at(399, 249) == "FC7E00"; })) << colour_at(399, 249);
    EXPECT_THAT(colour_at(350, 225), AnyOf("FED5AB", "FDD4AB"));
    EXPECT_THAT(colour_at(300, 200), AnyOf("FC7E00", "FB7D00"));

    for (const xcb_keysym_t control : {XK_Control_L, XK_Control_R}) {
        for (const xcb_keysym_t other : {XK_Shift_L, XK_Alt_L, XK_Super_L, XK_F12}) {
            keys.press({other});
        }
        const size_t before = program->out().size();
        keys.down(control);
        EXPECT_TRUE(program->reaches([&] { return program->out().substr(before) == "held\n"; }))
            << program->out().substr(before);
        keys.up(control);
        EXPECT_TRUE(program->reaches([&] { return program->out().substr(before) == "held\nfree\n"; }))
            << program->out().substr(before);
    }

    press_hot_key();
    EXPECT_TRUE(shows_inspector());
    press_hot_key();
    EXPECT_TRUE(hides_inspector());
    program->signal(SIGTERM);
    EXPECT_EQ(program->wait(), 128 + SIGTERM);

    // The AWT of some VMs has faults of its own. The agent's natives call Java several times in a row and leave what it
    // throws to their caller: that is all that the VM has against them.
    const std::set<std::string> others =
        jni_reports(run({tool("java"), "-Xcheck:jni", "-cp", kPrograms, "Ending", "dispose", "at once"},
                        {.folder = {}, .environment = {x.display()}})
                        .out);
    for (const std::string& report : jni_reports(program->out() + program->err())) {
        if (!others.contains(report)) {
            EXPECT_THAT(report, StartsWith("WARNING in native method: JNI call made without checking exceptions when "
                                           "required to from Call"));
        }
    }
}

TEST_P(Inspector, NeverKeepsAProgramAlive) {
    const struct {
        const char* way;
        int presses;
    } cases[] = {{"dispose", 0}, {"dispose", 1}, {"dispose", 2}, {"return", 1}};
    for (const auto& [way, presses] : cases) {
        SCOPED_TRACE(std::string(way) + " " + std::to_string(presses));
        start_ending(way);
        for (int press = 1; press <= presses; ++press) {
            press_hot_key();
            EXPECT_TRUE(press % 2 == 1 ? shows_inspector() : hides_inspector());
        }
        tell_to_end();
        EXPECT_EQ(program->wait(seconds(10)), 0);
        EXPECT_EQ(program->err(), kAgentErr);
        fs::remove(folder.path / "end");
    }
}

TEST_P(Inspector, NeverKeepsAProgramFromEnding) {
    for (const char* then : {"sleep", "spin"}) {
        SCOPED_TRACE(then);
        start_recorded(then);
        press_hot_key();
        EXPECT_TRUE(says("call 1: "));
        tell_to_end();
        EXPECT_EQ(program->wait(seconds(2)), 3);
        for (const fs::path& entry : fs::directory_iterator(folder.path)) {
            fs::remove(entry);
        }
    }
}

TEST_P(Inspector, ADisplayThatGoesAwayDoesNotEndAProgramWithoutWindows) {
    auto display = std::make_unique<XServer>();
    program.emplace(java_under_agent(GetParam(), {"-cp", kPrograms, "Ending", "exit"}),
                    ProcessOptions{.folder = folder.path, .environment = {display->display()}});
    ASSERT_TRUE(says("started\n"));
    display.reset();
    std::this_thread::sleep_for(seconds(1));
    tell_to_end();
    EXPECT_EQ(program->wait(), 3);
    EXPECT_EQ(program->err(), kAgentErr);
}

// Some by themselves; some are ended while the hot key is pressed at any moment of their life. With --gtest_repeat this
// goes on for as long as you like.
TEST_P(Inspector, StartsAndEndsManyTimes) {
    constexpr int kCycles = 10;  // of each kind
    struct Way {
        const char* name;
        int status;
    };
    const auto cycles = [this](const XServer& display, const std::vector<Way>& ways) {
        for (size_t cycle = 0; cycle < kCycles; ++cycle) {
            const Way& way = ways[cycle % ways.size()];
            const Finished ended = run(java_under_agent(GetParam(), {"-cp", kPrograms, "Ending", way.name, "at once"}),
                                       {.folder = folder.path, .environment = {display.display()}});
            EXPECT_EQ(ended.status, way.status) << way.name << "\n" << ended.out << ended.err;
            EXPECT_THAT(ended.out, HasSubstr("started\n"));
        }
    };
    const XServer quiet;
    auto by_themselves = std::async(std::launch::async, [&] {
        cycles(quiet, {{"return", 0}, {"throw", 1}, {"dispose", 0}});
    });
    auto while_pressed = std::async(std::launch::async, [&] { cycles(x, {{"exit", 3}, {"event thread", 3}}); });
    std::mt19937 random(std::random_device{}());
    while (while_pressed.wait_for(std::chrono::milliseconds(random() % 50)) != std::future_status::ready) {
        press_hot_key();
    }
    by_themselves.wait();
    for (const auto& entry : fs::directory_iterator(folder.path)) {
        ADD_FAILURE() << "left behind: " << entry.path().filename();
    }
}

TEST_P(Inspector, EndsWhileItsNativesRun) {
    for (int end = 0; end < 10; ++end) {
        const Finished ended = run(java_under_agent(GetParam(), {"-cp", kPrograms, "EndingInside"}),
                                   {.folder = folder.path, .environment = {x.display()}});
        EXPECT_EQ(ended.status, 3) << ended.out << ended.err;
    }
}

// An agent in Java that comes first ends the VM before ours is initialised, while it is, or soon after.
TEST_P(Inspector, EndsBeforeItHasBegun) {
    for (const char* way : {"at once", "meanwhile", "meanwhile", "meanwhile", "meanwhile"}) {
        const Arguments command = {tool("java"),
                                   "-javaagent:" + kPrograms.string() + "=" + way,
                                   "-agentpath:" + kLibrary.string(),
                                   "-cp",
                                   kPrograms,
                                   "Ending",
                                   "exit"};
        const Finished ended = run(command, {.folder = folder.path, .environment = {x.display()}});
        EXPECT_EQ(ended.status, 3) << way << "\n" << ended.out << ended.err;
    }
}

TEST_P(Inspector, NamedTwiceThereIsOneHotKeyAndOneLineThatSaysSo) {
    const std::string option = "-agentpath:" + (folder.path / kLibrary.filename()).string();
    environment.push_back("JAVA_TOOL_OPTIONS=" + option);
    start_recorded("");
    press_hot_key();
    EXPECT_TRUE(says("call 1: "));
    press_hot_key();
    EXPECT_TRUE(says("call 2: "));
    tell_to_end();
    EXPECT_EQ(program->wait(), 3);
    EXPECT_THAT(program->out(), Not(HasSubstr("call 3: ")));
    EXPECT_EQ(program->err(), "Picked up JAVA_TOOL_OPTIONS: " + option + "\n" + kAgentErr +
                                  "vantrel-agent: loaded more than once; one -agentpath is enough (see "
                                  "JAVA_TOOL_OPTIONS).\n");
}

TEST(SecurityManager, DoesNotEndAnOldVm) {
    constexpr int kLastReleaseWithOne = 17;
    SKIP_WITHOUT_JDK(kLastReleaseWithOne);
    const ScratchFolder folder;
    std::ofstream(folder.path / "all.policy") << "grant { permission java.security.AllPermission; };\n";
    const Finished program = run(
        java_under_agent(kLastReleaseWithOne, {"-Djava.security.manager", "-Djava.security.policy=all.policy",
                                               "-Djava.awt.headless=true", "-cp", kPrograms, "Ending", "exit", "now"}),
        {.folder = folder.path, .environment = {"DISPLAY="}});
    EXPECT_EQ(program.status, 3) << program.err;
    EXPECT_THAT(program.out, EndsWith(kAgentOut + "started\n"));
    EXPECT_THAT(program.err, Not(HasSubstr("Exception")));
}

}  // namespace
