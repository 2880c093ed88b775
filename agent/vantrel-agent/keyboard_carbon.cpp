// The keyboard under macOS: Carbon Event Manager and Quartz event services.
#include <Carbon/Carbon.h>

#include "keyboard.h"

namespace {

constexpr UInt32 kKeyF12 = 111;          // the virtual key code
constexpr OSType kOurKeys = 0x6D686B31;  // 'mhk1', the signature that tells our hot key from those of others

// The bits of the left and the right Command key among the device-dependent modifier flags (IOKit's IOLLEvent.h,
// NX_DEVICELCMDKEYMASK and NX_DEVICERCMDKEYMASK).
constexpr CGEventFlags kLeftCommand = 0x08;
constexpr CGEventFlags kRightCommand = 0x10;

EventHotKeyRef hotKeyRef = NULL;

bool holds(CGEventFlags key) {
    return (CGEventSourceFlagsState(kCGEventSourceStateCombinedSessionState) & key) != 0;
}

}  // namespace

OSStatus myHotKeyHandler(EventHandlerCallRef /*next*/, EventRef /*event*/, void* userData) {
    fflush(stdout);
    reinterpret_cast<void (*)()>(userData)();
    return noErr;
}

void setHotKeyVmAttachment(VmAttachment /*attachment*/) {}

void bindMacHotKey(void (*callback)()) {
    const EventTypeSpec pressed = {kEventClassKeyboard, kEventHotKeyPressed};
    InstallEventHandler(GetApplicationEventTarget(), myHotKeyHandler, 1, &pressed, reinterpret_cast<void*>(callback),
                        NULL);
    const EventHotKeyID id = {kOurKeys, 1};
    RegisterEventHotKey(kKeyF12, cmdKey, id, GetApplicationEventTarget(), 0, &hotKeyRef);
    announceHotKey();
}

void unbindMacHotKey() {
    if (hotKeyRef != NULL) {
        UnregisterEventHotKey(hotKeyRef);
    }
}

bool isHotKeyModifierHeld() {
    return holds(kLeftCommand) || holds(kRightCommand);
}
