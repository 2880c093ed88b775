// A window system for the unit tests, in the place of the real ones: writes into the fake VM's record what is asked of
// it. Its modifier is always held.
#include "fake_vm.h"
#include "keyboard.h"
#include "vantrel-agent.h"

void setHotKeyVmAttachment(VmAttachment /*attachment*/) {
    record_call("setHotKeyVmAttachment");
}

void bindMacHotKey(void (*callback)()) {
    record_call(callback == keyCallback ? "bindMacHotKey keyCallback" : "bindMacHotKey");
}

void unbindMacHotKey() {
    record_call("unbindMacHotKey");
}

bool isHotKeyModifierHeld() {
    record_call("isHotKeyModifierHeld");
    return true;
}
