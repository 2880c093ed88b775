// The part of macOS's Carbon and Quartz interfaces that keyboard_carbon.cpp uses, as Apple documents it, in
// declarations only: what compiles against this compiles on a Mac. recording_carbon.cpp has the functions.
#ifndef VANTREL_TEST_CARBON_H
#define VANTREL_TEST_CARBON_H

#include <cstdint>

using UInt32 = uint32_t;
using OSStatus = int32_t;
using OSType = uint32_t;
using OptionBits = uint32_t;
using ItemCount = unsigned long;

constexpr OSStatus noErr = 0;
constexpr OSType kEventClassKeyboard = 0x6B657962;  // 'keyb'
constexpr UInt32 kEventHotKeyPressed = 5;
constexpr UInt32 cmdKey = 1 << 8;

using EventRef = struct OpaqueEventRef*;
using EventHandlerRef = struct OpaqueEventHandlerRef*;
using EventHandlerCallRef = struct OpaqueEventHandlerCallRef*;
using EventTargetRef = struct OpaqueEventTargetRef*;
using EventHotKeyRef = struct OpaqueEventHotKeyRef*;
using EventHandlerUPP = OSStatus (*)(EventHandlerCallRef, EventRef, void*);

struct EventTypeSpec {
    OSType eventClass;
    UInt32 eventKind;
};
struct EventHotKeyID {
    OSType signature;
    UInt32 id;
};

using CGEventFlags = uint64_t;
using CGEventSourceStateID = int32_t;
constexpr CGEventSourceStateID kCGEventSourceStateCombinedSessionState = 0;

extern "C" {
EventTargetRef GetApplicationEventTarget();
OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount typeCount,
                             const EventTypeSpec* types, void* userData, EventHandlerRef* handlerRef);
OSStatus RegisterEventHotKey(UInt32 keyCode, UInt32 modifiers, EventHotKeyID id, EventTargetRef target,
                             OptionBits options, EventHotKeyRef* hotKeyRef);
OSStatus UnregisterEventHotKey(EventHotKeyRef hotKeyRef);
CGEventFlags CGEventSourceFlagsState(CGEventSourceStateID state);
}

#endif
