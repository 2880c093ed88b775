// What the macOS keyboard asks of Carbon and Quartz, by recording stand-ins for them.
#include <Carbon/Carbon.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "keyboard.h"

using testing::ElementsAre;
using testing::IsEmpty;

OSStatus myHotKeyHandler(EventHandlerCallRef next, EventRef event, void* userData);

namespace {

std::vector<std::string> calls;
OSStatus status = noErr;  // of every call
CGEventFlags flags = 0;
void* user_data = nullptr;
int presses = 0;

void on_press() {
    ++presses;
}

template <typename... Parts>
void record(const Parts&... parts) {
    std::ostringstream call;
    ((call << parts << ' '), ...);
    calls.push_back(call.str());
}

// Handles that can be told from each other.
const auto kTarget = reinterpret_cast<EventTargetRef>(0x7A);
const auto kHotKey = reinterpret_cast<EventHotKeyRef>(0x40);

}  // namespace

EventTargetRef GetApplicationEventTarget() {
    return kTarget;
}
OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount typeCount,
                             const EventTypeSpec* types, void* userData, EventHandlerRef* handlerRef) {
    record("install", target == kTarget, handler == &myHotKeyHandler, typeCount, types[0].eventClass,
           types[0].eventKind, handlerRef == nullptr);
    user_data = userData;
    return status;
}
OSStatus RegisterEventHotKey(UInt32 keyCode, UInt32 modifiers, EventHotKeyID id, EventTargetRef target,
                             OptionBits options, EventHotKeyRef* hotKeyRef) {
    record("register", keyCode, modifiers, id.signature, id.id, target == kTarget, options);
    if (status == noErr) {
        *hotKeyRef = kHotKey;
    }
    return status;
}
OSStatus UnregisterEventHotKey(EventHotKeyRef hotKeyRef) {
    record("unregister", hotKeyRef == kHotKey);
    return status;
}
CGEventFlags CGEventSourceFlagsState(CGEventSourceStateID state) {
    record("flags", state);
    return flags;
}

namespace {

std::string bind() {
    calls.clear();
    testing::internal::CaptureStdout();
    bindMacHotKey(on_press);
    return testing::internal::GetCapturedStdout();
}

// One test, for the file keeps what it has registered.
TEST(Carbon, RegistersAndUnregistersTheHotKey) {
    unbindMacHotKey();
    EXPECT_THAT(calls, IsEmpty()) << "nothing is registered yet";

    const std::string announcement = "Pressing \u2318+F12 to toggle the Vantrel window visible.\n";
    // 'keyb' 5; F12 with Command, 'mhk1' 1.
    const std::string install = "install 1 1 1 1801812322 5 1 ";
    const std::string registration = "register 111 256 1835559729 1 1 0 ";
    status = -9878;  // the key is taken
    EXPECT_EQ(bind(), announcement);
    EXPECT_THAT(calls, ElementsAre(install, registration));
    unbindMacHotKey();
    EXPECT_EQ(calls.size(), 2u) << "the registration failed";

    status = noErr;
    EXPECT_EQ(bind(), announcement);
    EXPECT_THAT(calls, ElementsAre(install, registration));
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(myHotKeyHandler(nullptr, nullptr, user_data), noErr);
    EXPECT_EQ(myHotKeyHandler(nullptr, nullptr, user_data), noErr);
    EXPECT_EQ(presses, 2);

    calls.clear();
    unbindMacHotKey();
    EXPECT_THAT(calls, ElementsAre("unregister 1 "));
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
        calls.clear();
        flags = c.flags;
        EXPECT_EQ(isHotKeyModifierHeld(), c.held);
        EXPECT_EQ(calls, std::vector<std::string>(c.queries, "flags 0 "));
    }
}

}  // namespace
