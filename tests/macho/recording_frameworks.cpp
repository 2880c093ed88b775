// Carbon and Quartz for the unit tests: write into the fake VM's record what is asked of the keyboard, in the words of
// tests/unit/recording_keyboard.cpp. Command is always held.
#include <Carbon/Carbon.h>

#include "fake_vm.h"
#include "vantrel-agent.h"

namespace {

void* user_data;

}  // namespace

EventTargetRef GetApplicationEventTarget() {
    return nullptr;
}
OSStatus InstallEventHandler(EventTargetRef /*target*/, EventHandlerUPP /*handler*/, ItemCount /*typeCount*/,
                             const EventTypeSpec* /*types*/, void* userData, EventHandlerRef* /*handlerRef*/) {
    user_data = userData;
    return noErr;
}
OSStatus RegisterEventHotKey(UInt32 /*keyCode*/, UInt32 /*modifiers*/, EventHotKeyID /*id*/, EventTargetRef /*target*/,
                             OptionBits /*options*/, EventHotKeyRef* hotKeyRef) {
    record_call(user_data == reinterpret_cast<void*>(keyCallback) ? "bindMacHotKey keyCallback" : "bindMacHotKey");
    *hotKeyRef = reinterpret_cast<EventHotKeyRef>(1);
    return noErr;
}
OSStatus UnregisterEventHotKey(EventHotKeyRef /*hotKeyRef*/) {
    record_call("unbindMacHotKey");
    return noErr;
}
CGEventFlags CGEventSourceFlagsState(CGEventSourceStateID /*state*/) {
    record_call("isHotKeyModifierHeld");
    return 0x08;
}
