// What the macOS keyboard asks of Carbon and Quartz.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "keyboard.h"
#include "recording_carbon.h"

using testing::ElementsAre;
using testing::IsEmpty;

OSStatus myHotKeyHandler(EventHandlerCallRef next, EventRef event, void* userData);

namespace {

int presses = 0;

void on_press() {
    ++presses;
}

std::string bind() {
    carbon.calls.clear();
    testing::internal::CaptureStdout();
    bindMacHotKey(on_press);
    return testing::internal::GetCapturedStdout();
}

// One test, because the keyboard's file keeps what it has registered from test to test.
TEST(Carbon, RegistersAndUnregistersTheHotKey) {
    unbindMacHotKey();
    EXPECT_THAT(carbon.calls, IsEmpty()) << "nothing is registered yet";

    const std::string announcement = "Pressing \u2318+F12 to toggle the Vantrel window visible.\n";
    // 'keyb' 5; F12 with Command, 'mhk1' 1.
    const std::string install = "install 1 1 1801812322 5 1 ";
    const std::string registration = "register 111 256 1835559729 1 1 0 ";
    carbon.status = -9878;  // the key is taken
    EXPECT_EQ(bind(), announcement);
    EXPECT_THAT(carbon.calls, ElementsAre(install, registration));
    unbindMacHotKey();
    EXPECT_EQ(carbon.calls.size(), 2u) << "the registration failed";

    carbon.status = noErr;
    EXPECT_EQ(bind(), announcement);
    EXPECT_THAT(carbon.calls, ElementsAre(install, registration));
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(carbon.handler, &myHotKeyHandler);
    EXPECT_EQ(carbon.press(), noErr);
    EXPECT_EQ(carbon.press(), noErr);
    EXPECT_EQ(presses, 2);

    carbon.calls.clear();
    unbindMacHotKey();
    EXPECT_THAT(carbon.calls, ElementsAre("unregister 1 "));
}

TEST(Carbon, EitherCommandKeyCounts) {
    const struct {
        CGEventFlags flags;
        bool held;
        size_t queries;
    } cases[] = {
        {0x100000 | 0x08, true, 1},  // the device-independent bit, which both keys set, does not count
        {0x100000 | 0x10, true, 2},
        {0x18, true, 1},
        {0x100000, false, 2},
        {0x20000 | 0x02, false, 2},  // Shift
        {0x80000 | 0x20, false, 2},  // Option
        {0x40000 | 0x01, false, 2},  // Control
        {0, false, 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.flags);
        carbon.calls.clear();
        carbon.flags = c.flags;
        EXPECT_EQ(isHotKeyModifierHeld(), c.held);
        EXPECT_EQ(carbon.calls, std::vector<std::string>(c.queries, "flags 0 "));
    }
}

}  // namespace
