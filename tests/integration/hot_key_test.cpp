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
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "process.h"
#include "x_keys.h"
#include "x_server.h"

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
    explicit Probe(const std::string& display, const std::string& mode = "")
        : Process({VANTREL_HOT_KEY_PROBE, mode}, {.folder = {}, .environment = {"DISPLAY=" + display}}) {
        EXPECT_TRUE(reaches([this] { return out().find("bound in time\n") != std::string::npos; })) << out() << err();
    }
    bool says(const std::string& line) {
        return reaches([&] { return out().find(line + "\n") != std::string::npos; }, std::chrono::seconds(5));
    }
    bool complains(const std::string& line) {
        return reaches([&] { return err().find(line + "\n") != std::string::npos; }, std::chrono::seconds(5));
    }
    void unbind() {
        signal(SIGTERM);
        EXPECT_TRUE(says("unbound"));
    }
    std::string end() {
        unbind();
        signal(SIGTERM);
        EXPECT_EQ(wait(), 0);
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
}

TEST(HotKey, CountsOnceWhileItIsHeld) {
    const XServer x({"-ardelay", "200", "-arinterval", "50"});
    XKeys keys(x.name());
    Probe probe(x.name());
    ASSERT_TRUE(keys.grab_with_control(XK_F11));
    keys.down(XK_Control_L);
    keys.down(XK_F11);
    std::this_thread::sleep_for(std::chrono::seconds(1));
    keys.up(XK_F11);
    ASSERT_GT(keys.grabbed_presses(), 5) << "this server repeats keys";

    keys.down(XK_F12);
    std::this_thread::sleep_for(std::chrono::seconds(2));
    keys.up(XK_F12);
    keys.press({XK_F12});
    EXPECT_TRUE(probe.says("press 2"));
    keys.up(XK_Control_L);
    EXPECT_THAT(probe.end(), Not(HasSubstr("press 3")));
}

TEST(HotKey, FollowsChangesOfTheKeyboard) {
    const XServer x;
    XKeys keys(x.name());
    Probe probe(x.name());
    keys.press({XK_Control_L, XK_F12});
    EXPECT_TRUE(probe.says("press 1"));

    // F12 moves to another key, and the key that made it makes something else.
    keys.change(XK_F12, XK_F20);
    keys.change(XK_Pause, XK_F12);
    ASSERT_TRUE(probe.reaches([&] {
        keys.press({XK_Control_L, XK_F12});
        return probe.out().find("press 2\n") != std::string::npos;
    }));
    const std::string before = probe.out();
    keys.press({XK_Control_L, XK_F20});

    // Num Lock changes its modifier; held there, it makes no difference either.
    keys.give_modifier(XK_Num_Lock, XCB_MAP_INDEX_3);
    keys.down(XK_Num_Lock);
    EXPECT_TRUE(probe.reaches([&] {
        keys.press({XK_Control_L, XK_F12});
        return probe.out() != before;
    })) << probe.out();
    EXPECT_THAT(probe.out(), StartsWith(before + "press "));
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
    EXPECT_EQ(probe.end(), kAnnouncement + "bound in time\nmodifier not held\nunbound\n");
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

TEST(HotKey, RunsNothingOnAThreadThatTheVmRefuses) {
    const XServer x;
    XKeys keys(x.name());
    Probe probe(x.name(), "refuse");
    EXPECT_TRUE(probe.reaches([&] { return keys.grab_with_control(XK_F12); })) << "the key is given back";
    EXPECT_THAT(probe.end(), AllOf(HasSubstr(kAttached), Not(HasSubstr("detached")), EndsWith("unbound\n")));
}

TEST(HotKey, ADisplayThatGoesAwayEndsTheThreadOnly) {
    std::optional<XServer> x(std::in_place);
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
        EXPECT_THAT(probe.err(), HasSubstr(kWhichKey + "vantrel-agent: no hot key: " + c.reason + ".\n"));
    }
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
        EXPECT_EQ(probe.err(), kWhichKey);
    }
    close(server);
}

}  // namespace
