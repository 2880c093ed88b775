// The hot key and the modifier on a real X server, without a VM.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "java_vm.h"
#include "process.h"
#include "x_keys.h"
#include "x_server.h"
#include "x_windows.h"

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

const std::string kAnnouncement = "Pressing \u2318+F12 to toggle the Vantrel window visible.\n";
const std::string kWhichKey = "vantrel-agent: on this platform the hot key is Control+F12.\n";
const std::string kAttached = "attached as vantrel-hotkey, running as vantrel-hotkey\n";

// The probe on some display, with its hot key bound.
class Probe : public Process {
  public:
    explicit Probe(const std::string& display, const std::string& mode = "", const std::string& hot_key = "")
        : Process({VANTREL_HOT_KEY_PROBE, mode},
                  {.folder = {}, .environment = {"DISPLAY=" + display, "VANTREL_HOT_KEY=" + hot_key}}) {
        EXPECT_TRUE(reaches([this] { return out().find("bound in time\n") != std::string::npos; })) << out() << err();
    }
    bool says(const std::string& line) {
        return reaches([&] { return out().find(line + "\n") != std::string::npos; }, std::chrono::seconds(5));
    }
    bool complains(const std::string& line) {
        return reaches([&] { return err().find(line + "\n") != std::string::npos; }, std::chrono::seconds(5));
    }
    // How many presses it has been asked to work on so far.
    [[nodiscard]] size_t presses() const {
        const std::vector<std::string> lines = lines_of(out());
        return std::count_if(lines.begin(), lines.end(),
                             [](const std::string& line) { return line.starts_with("press "); });
    }
    void unbind() {
        signal(SIGTERM);
        EXPECT_TRUE(says("unbound"));
    }
    std::string end() {
        unbind();
        signal(SIGTERM);
        EXPECT_EQ(wait(), 0);
        EXPECT_THAT(out(), Not(HasSubstr("socket was ended")));
        return out();
    }
};

TEST(HotKey, IsControlF12AndNothingElse) {
    const XServer x;
    XKeys keys(x.name());
    Probe probe(x.name());
    const std::initializer_list<xcb_keysym_t> others[] = {
        {XK_F12},
        {XK_Shift_L, XK_F12},
        {XK_Alt_L, XK_F12},
        {XK_Super_L, XK_F12},
        {XK_Control_L, XK_F11},
        {XK_Control_L, XK_Shift_L, XK_F12},
        {XK_Control_L, XK_Alt_L, XK_F12},
        {XK_F12, XK_Control_L},
    };
    for (const auto& combination : others) {
        keys.press(combination);
    }
    keys.press({XK_Control_L, XK_F12});
    keys.press({XK_Control_R, XK_F12});
    EXPECT_TRUE(probe.says("press 2"));
    EXPECT_THAT(probe.end(), AllOf(StartsWith(kAnnouncement), HasSubstr(kAttached), HasSubstr("press 1\npress 2\n"),
                                   Not(HasSubstr("press 3")), HasSubstr("unbound\n")));
    EXPECT_EQ(probe.err(), kWhichKey);
}

TEST(HotKey, LockKeysMakeNoDifference) {
    const XServer x;
    XKeys keys(x.name());
    Probe probe(x.name());
    int presses = 0;
    for (const xcb_keysym_t lock : {XK_Caps_Lock, XK_Num_Lock, XK_Caps_Lock, XK_Num_Lock}) {
        keys.press({lock});
        keys.press({XK_Control_L, XK_F12});
        EXPECT_TRUE(probe.says("press " + std::to_string(++presses)));
    }
    // Nor does a mouse button, which the server reports as it does modifiers.
    keys.button_down(1);
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(probe.says("press " + std::to_string(++presses)));
    keys.button_up(1);
}

TEST(HotKey, CountsOnceWhileItIsHeld) {
    const XServer x({"-ardelay", "200", "-arinterval", "50"});
    XKeys keys(x.name());
    Probe probe(x.name());
    ASSERT_TRUE(keys.grab_with_control(XK_F11));
    keys.down(XK_Control_L);
    keys.down(XK_F11);
    int repeats = 0;
    ASSERT_TRUE(probe.reaches([&] { return (repeats += keys.grabbed_presses()) > 5; })) << "this server repeats keys";
    keys.up(XK_F11);

    keys.down(XK_F12);
    std::this_thread::sleep_for(std::chrono::milliseconds(600));  // some eight repeats
    keys.up(XK_F12);
    keys.press({XK_F12});
    EXPECT_TRUE(probe.says("press 2"));
    keys.up(XK_Control_L);
    EXPECT_THAT(probe.end(), Not(HasSubstr("press 3")));
}

// While F12 is held the server sends us all keys.
TEST(HotKey, OtherKeysWhileItIsHeldAreNobodysPress) {
    const XServer x;
    XKeys keys(x.name());
    Probe probe(x.name());
    keys.down(XK_Control_L);
    keys.down(XK_F12);
    for (const xcb_keysym_t other : {XK_a, XK_b, XK_Shift_L, XK_F11, XK_a}) {
        keys.press({other});
    }
    keys.press({XK_Shift_L, XK_a});
    keys.up(XK_F12);
    EXPECT_TRUE(probe.says("press 1"));

    keys.down(XK_F12);
    keys.down(XK_a);
    keys.up(XK_F12);
    keys.up(XK_a);
    EXPECT_TRUE(probe.says("press 2"));
    keys.press({XK_F12});
    EXPECT_TRUE(probe.says("press 3"));
    keys.up(XK_Control_L);
    EXPECT_THAT(probe.end(), Not(HasSubstr("press 4")));
}

TEST(HotKey, FollowsChangesOfTheKeyboard) {
    const XServer x;
    XKeys keys(x.name());
    Probe probe(x.name());
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(probe.says("press 1"));

    // F12 moves to another key, and the key that made it makes something else.
    keys.change(XK_F12, XK_F20);
    EXPECT_TRUE(probe.complains("vantrel-agent: no hot key: no keys of the keyboard make Control+F12."));
    keys.change(XK_Pause, XK_F12);
    EXPECT_TRUE(probe.complains("vantrel-agent: Control+F12 is the hot key now."));
    ASSERT_TRUE(probe.reaches([&] {
        keys.press({XK_Control_L, XK_F12});
        return probe.out().find("press 2\n") != std::string::npos;
    }));
    const std::string before = probe.out();
    keys.press({XK_Control_L, XK_F20});

    // A lock changes its modifier; held there, it makes no difference either.
    for (const xcb_keysym_t lock : {XK_Num_Lock, XK_Scroll_Lock}) {
        const std::string so_far = probe.out();
        keys.give_modifier(lock, XCB_MAP_INDEX_3);
        keys.down(lock);
        EXPECT_TRUE(probe.reaches([&] {
            keys.press({XK_Control_L, XK_F12});
            return probe.out() != so_far;
        })) << probe.out();
        EXPECT_THAT(probe.out(), StartsWith(so_far + "press "));
        keys.up(lock);
    }
    EXPECT_THAT(probe.out(), StartsWith(before + "press "));
}

TEST(HotKey, SaysSoWhenTheServerDoesNotTellItsKeys) {
    const XServer x;
    XKeys keys(x.name());
    Probe probe(x.name());
    probe.signal(SIGUSR1);
    EXPECT_TRUE(probe.says("deaf"));
    keys.change(XK_Pause, XK_F20);
    EXPECT_TRUE(probe.complains("vantrel-agent: no hot key: the X server does not say what keys there are."));
    probe.signal(SIGUSR1);
    EXPECT_TRUE(probe.says("hears"));
    keys.change(XK_F20, XK_Pause);
    EXPECT_TRUE(probe.complains("vantrel-agent: Control+F12 is the hot key now."));
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(probe.says("press 1"));
    // The server tells every connection of every change.
    for (int change = 0; change < 200; ++change) {
        keys.change(XK_Pause, XK_F20);
        keys.change(XK_F20, XK_Pause);
    }
    EXPECT_THAT(probe.end(), Not(HasSubstr("events pile up")));
}

TEST(HotKey, IsTheOneThatTheEnvironmentNames) {
    const std::string wrong = "vantrel-agent: VANTREL_HOT_KEY names no key that X knows: ";
    const std::string stays = " (Control+Shift+F11 would be one); it stays Control+F12.\n";
    const auto is = [](const std::string& name) {
        return "vantrel-agent: on this platform the hot key is " + name + ".\n";
    };
    const struct {
        const char* value;
        std::vector<xcb_keysym_t> keys;
        std::string said;
    } cases[] = {
        {"Control+Shift+F11", {XK_Control_L, XK_Shift_L, XK_F11}, is("Control+Shift+F11")},
        {"ctrl+ALT+x", {XK_Control_L, XK_Alt_L, XK_x}, is("ctrl+ALT+x")},
        {"Super+X", {XK_Super_L, XK_x}, is("Super+X")},
        {"F9", {XK_F9}, is("F9")},
        {"Control+Shift", {XK_Control_L, XK_F12}, wrong + "Control+Shift" + stays + kWhichKey},
        {"Hyper+F11", {XK_Control_L, XK_F12}, wrong + "Hyper+F11" + stays + kWhichKey},
        {"Control+", {XK_Control_L, XK_F12}, wrong + "Control+" + stays + kWhichKey},
        {"Control+F\n12", {XK_Control_L, XK_F12}, wrong + "Control+F?12" + stays + kWhichKey},
        {"Control+F30", {}, is("Control+F30")},
    };
    const XServer x;
    XKeys keys(x.name());
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        Probe probe(x.name(), "", c.value);
        EXPECT_THAT(probe.err(), StartsWith(c.said));
        if (c.keys.empty()) {
            EXPECT_TRUE(probe.complains("vantrel-agent: no hot key: no keys of the keyboard make Control+F30."));
            continue;
        }
        for (const xcb_keysym_t key : c.keys) {
            keys.down(key);
        }
        for (const xcb_keysym_t key : std::vector(c.keys.rbegin(), c.keys.rend())) {
            keys.up(key);
        }
        EXPECT_TRUE(probe.says("press 1"));
        if (c.keys.back() != XK_F12) {
            keys.press({XK_Control_L, XK_F12});
        }
        EXPECT_THAT(probe.end(), Not(HasSubstr("press 2")));
    }
}

TEST(HotKey, WorksOnEveryScreen) {
    const XServer x({"-screen", "1", "640x480x24"});
    XKeys keys(x.name());
    Probe probe(x.name());
    keys.go_to_screen(1);
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(probe.says("press 1"));
    keys.go_to_screen(0);
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(probe.says("press 2"));
}

TEST(HotKey, SaysThatAnotherProgramHasIt) {
    const XServer x;
    XKeys keys(x.name());
    ASSERT_TRUE(keys.grab_with_control(XK_F12));
    Probe probe(x.name());
    EXPECT_TRUE(probe.complains("vantrel-agent: no hot key: another program has taken Control+F12."));
    keys.press({XK_Control_L, XK_F12});
    EXPECT_EQ(keys.grabbed_presses(), 1);
    EXPECT_EQ(probe.presses(), 0U);
    EXPECT_THAT(probe.err(), StartsWith(kWhichKey));
}

TEST(HotKey, IsFreeOnceItIsUnbound) {
    const XServer x;
    XKeys keys(x.name());
    Probe blocked(x.name(), "block");
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(blocked.says("press 1"));
    ASSERT_FALSE(keys.grab_with_control(XK_F12));
    blocked.unbind();  // a press that is never done with holds nothing up
    EXPECT_TRUE(blocked.reaches([&] { return keys.grab_with_control(XK_F12); }));
}

TEST(HotKey, MayBeBoundAgain) {
    const XServer x;
    XKeys keys(x.name());
    Probe probe(x.name(), "twice");
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(probe.says("press 1"));
    probe.unbind();
    EXPECT_TRUE(probe.reaches([&] {
        keys.press({XK_Control_L, XK_F12});
        return probe.presses() == 2;
    }));
    EXPECT_THAT(probe.out(), Not(HasSubstr("a signal was taken")));
}

TEST(HotKey, RunsNothingOnAThreadThatTheVmRefuses) {
    const XServer x;
    XKeys keys(x.name());
    Probe probe(x.name(), "refuse");
    EXPECT_TRUE(probe.complains("vantrel-agent: no hot key: the VM refuses its thread."));
    EXPECT_TRUE(probe.reaches([&] { return keys.grab_with_control(XK_F12); })) << "the key is given back";
    EXPECT_THAT(probe.end(), AllOf(HasSubstr(kAttached), Not(HasSubstr("detached")), EndsWith("unbound\n")));
}

TEST(HotKey, ADisplayThatGoesAwayEndsTheThreadOnly) {
    // A number that no other server takes: the probe asks for its display again at its end.
    std::optional<XServer> x(std::in_place, std::vector<std::string>{":" + std::to_string(getpid())});
    Probe probe(x->name());
    EXPECT_TRUE(probe.says(kAttached.substr(0, kAttached.size() - 1)));
    x.reset();
    EXPECT_TRUE(probe.says("detached"));
    EXPECT_THAT(probe.end(), EndsWith("modifier not held\nunbound\n"));
    EXPECT_EQ(probe.err(), kWhichKey);
}

TEST(HotKey, IsNotThereWithoutADisplay) {
    const ScratchFolder folder;
    // A cookie that no client has: family "wild", and four fields with their lengths before them.
    std::ofstream(folder.path / "cookies")
        << std::string("\xFF\xFF\0\0\0\0\0\x12MIT-MAGIC-COOKIE-1\0\x10", 28) << std::string(16, 'c');
    const XServer refusing({"-auth", folder.path / "cookies"});
    setenv("XAUTHORITY", "/dev/null", 1);
    const std::string cannot = "the X server of display ";
    const struct {
        std::string display;
        std::string reason;
    } cases[] = {
        {"", "DISPLAY is not set"},
        {":7654", cannot + ":7654 cannot be reached, or refuses"},
        {"no display", cannot + "no display cannot be reached, or refuses"},
        {refusing.name(), cannot + refusing.name() + " cannot be reached, or refuses"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.display);
        Probe probe(c.display);
        EXPECT_TRUE(probe.complains(c.reason + "."));
        EXPECT_EQ(probe.end(), kAnnouncement + "bound in time\nmodifier not held\nunbound\n");
        // XCB itself may say a word on a refusal.
        EXPECT_THAT(probe.err(),
                    HasSubstr((c.display.empty() ? "" : kWhichKey) + "vantrel-agent: no hot key: " + c.reason + ".\n"));
    }
}

TEST(HotKey, IsNotThereWithoutXcb) {
    const XServer x;
    const ScratchFolder folder;
    std::ofstream(folder.path / "libxcb.so.1") << "no library";
    setenv("LD_LIBRARY_PATH", folder.path.c_str(), 1);
    Probe probe(x.name());
    unsetenv("LD_LIBRARY_PATH");
    EXPECT_TRUE(probe.complains("vantrel-agent: no hot key: libxcb.so.1 cannot be loaded."));
    EXPECT_EQ(probe.end(), kAnnouncement + "bound in time\nmodifier not held\nunbound\n");
}

// A display whose server takes connections and never answers.
TEST(HotKey, ADisplayThatHangsHoldsNothingUp) {
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name = "/tmp/.X11-unix/X7655";
    std::copy(name.begin(), name.end(), address.sun_path + 1);  // in the abstract name space, tried first
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    ASSERT_EQ(bind(server, reinterpret_cast<const sockaddr*>(&address), size), 0);
    ASSERT_EQ(listen(server, 5), 0);
    {
        Probe probe(":7655");
        EXPECT_EQ(probe.out(), kAnnouncement + "bound in time\n");
        EXPECT_EQ(probe.err(),
                  kWhichKey + "vantrel-agent: no hot key: the X server of display :7655 does not answer.\n");
    }
    close(server);
}

TEST(HotKey, ADisplayThatAnswersLateIsStillServed) {
    const XServer x;
    XKeys keys(x.name());
    for (const bool unbound_meanwhile : {false, true}) {
        SCOPED_TRACE(unbound_meanwhile ? "unbound meanwhile" : "still bound");
        x.signal(SIGSTOP);
        Probe probe(x.name(), "hasty");
        EXPECT_TRUE(
            probe.complains("vantrel-agent: no hot key: the X server of display " + x.name() + " does not answer."));
        if (unbound_meanwhile) {
            probe.unbind();
        }
        x.signal(SIGCONT);
        EXPECT_TRUE(probe.complains("vantrel-agent: Control+F12 is the hot key now."));
        if (unbound_meanwhile) {
            EXPECT_TRUE(probe.reaches([&] { return keys.grab_with_control(XK_F12); }));
        } else {
            keys.press({XK_Control_L, XK_F12});
            EXPECT_TRUE(probe.says("press 1"));
        }
    }
}

// Several programs on one display.

TEST(HotKey, GoesToTheProgramThatHasTheFocus) {
    const XServer x;
    XKeys keys(x.name());
    XWindows windows(x.name());
    std::vector<std::unique_ptr<Probe>> probes(3);
    for (auto& probe : probes) {
        probe = std::make_unique<Probe>(x.name());
    }
    Probe apart(x.name(), "", "Control+F11");
    std::vector<size_t> expected(probes.size(), 0);
    const auto press_goes_to = [&](size_t whose) {
        ++expected[whose];
        keys.press({XK_Control_L, XK_F12});
        EXPECT_TRUE(probes[whose]->reaches([&] { return probes[whose]->presses() == expected[whose]; }));
        for (size_t i = 0; i < probes.size(); ++i) {
            EXPECT_EQ(probes[i]->presses(), expected[i]) << "probe " << i;
        }
    };
    press_goes_to(0);  // nobody has the focus, nobody was asked: the one that has the key
    for (const size_t whose : {1U, 2U, 0U, 2U}) {
        windows.focus(windows.make(probes[whose]->id()));
        press_goes_to(whose);
    }
    windows.focus(windows.make(1));
    press_goes_to(2);  // somebody else's window: the one that was asked last
    windows.focus(windows.make(probes[0]->id(), "another.machine"));
    press_goes_to(2);
    windows.make(probes[0]->id());
    keys.go_to_screen(0);
    windows.focus(XCB_INPUT_FOCUS_POINTER_ROOT);
    press_goes_to(0);
    keys.press({XK_Control_L, XK_F11});
    EXPECT_TRUE(apart.says("press 1"));
    for (const auto& probe : probes) {
        EXPECT_EQ(probe->err(), kWhichKey);
    }
}

// As a program does that a debugger has stopped.
TEST(HotKey, AHolderThatIsHeldUpStillPassesItOn) {
    const XServer x;
    XKeys keys(x.name());
    XWindows windows(x.name());
    Probe held_up(x.name(), "block");
    Probe other(x.name());
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(held_up.says("press 1"));
    windows.focus(windows.make(other.id()));
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(other.says("press 1"));
}

TEST(HotKey, IsTakenOverWhenItsHolderEnds) {
    std::vector<int> order = {0, 1, 2};
    do {
        SCOPED_TRACE(testing::PrintToString(order));
        const XServer x;
        XKeys keys(x.name());
        std::vector<std::unique_ptr<Probe>> probes;
        for (size_t i = 0; i < order.size(); ++i) {
            probes.push_back(std::make_unique<Probe>(x.name()));
        }
        size_t presses = 0;
        const auto all_presses = [&] {
            size_t sum = 0;
            for (const auto& probe : probes) {
                sum += probe->presses();
            }
            return sum;
        };
        for (size_t ended = 0; ended < order.size(); ++ended) {
            Probe& last = *probes[order.back()];
            EXPECT_TRUE(last.reaches(
                [&] {
                    keys.press({XK_Control_L, XK_F12});
                    std::this_thread::sleep_for(std::chrono::milliseconds(20));
                    return all_presses() > presses;
                },
                std::chrono::seconds(1)))
                << ended << " have ended";
            presses = all_presses();
            Probe& next = *probes[order[ended]];
            next.signal(ended == 1 ? SIGTERM : SIGKILL);
        }
        EXPECT_TRUE(probes[order[1]]->reaches([&] { return keys.grab_with_control(XK_F12); })) << "nobody has it";
    } while (std::next_permutation(order.begin(), order.end()));
}

// Two that want it at once get it both or, with somebody else's program in the way, complain both.
TEST(HotKey, ManyMayComeAtOnce) {
    for (const bool taken : {false, true}) {
        SCOPED_TRACE(taken);
        const XServer x;
        XKeys keys(x.name());
        ASSERT_TRUE(!taken || keys.grab_with_control(XK_F12));
        std::vector<std::unique_ptr<Process>> probes(8);
        for (auto& probe : probes) {
            probe = std::make_unique<Process>(
                Arguments{VANTREL_HOT_KEY_PROBE},
                ProcessOptions{.folder = {}, .environment = {"DISPLAY=" + x.name(), "VANTREL_HOT_KEY="}});
        }
        for (const auto& probe : probes) {
            EXPECT_TRUE(probe->reaches([&] { return probe->out().find("attached") != std::string::npos; }));
            if (taken) {
                EXPECT_TRUE(probe->reaches([&] {
                    return probe->err().find("another program has") != std::string::npos;
                })) << probe->err();
            } else {
                EXPECT_EQ(probe->err(), kWhichKey);
            }
        }
        keys.press({XK_Control_L, XK_F12});
        EXPECT_EQ(keys.grabbed_presses(), taken ? 1 : 0);
        const auto pressed = [&] {
            return std::count_if(probes.begin(), probes.end(),
                                 [](const auto& probe) { return probe->out().find("press 1\n") != std::string::npos; });
        };
        EXPECT_EQ(probes[0]->reaches([&] { return pressed() > 0; }, std::chrono::seconds(1)), !taken);
        EXPECT_EQ(pressed(), taken ? 0 : 1);
    }
}

}  // namespace
