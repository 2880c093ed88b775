#include "recording_carbon.h"

#include <mutex>
#include <sstream>

RecordingCarbon carbon;

namespace {

template <typename... Parts>
void record(const Parts&... parts) {
    std::ostringstream call;
    ((call << parts << ' '), ...);
    static std::mutex lock;
    const std::lock_guard hold(lock);
    carbon.calls.push_back(call.str());
    if (carbon.on_call) {
        carbon.on_call(call.str());
    }
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
    record("install", target == kTarget, typeCount, types[0].eventClass, types[0].eventKind, handlerRef == nullptr);
    carbon.handler = handler;
    carbon.user_data = userData;
    return carbon.status;
}
OSStatus RegisterEventHotKey(UInt32 keyCode, UInt32 modifiers, EventHotKeyID id, EventTargetRef target,
                             OptionBits options, EventHotKeyRef* hotKeyRef) {
    record("register", keyCode, modifiers, id.signature, id.id, target == kTarget, options);
    if (carbon.status == noErr) {
        *hotKeyRef = kHotKey;
    }
    return carbon.status;
}
OSStatus UnregisterEventHotKey(EventHotKeyRef hotKeyRef) {
    record("unregister", hotKeyRef == kHotKey);
    return carbon.status;
}
CGEventFlags CGEventSourceFlagsState(CGEventSourceStateID state) {
    record("flags", state);
    return carbon.flags;
}
