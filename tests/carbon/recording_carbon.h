// Stand-ins for Carbon and Quartz that record what is asked of them, and answer as a test wants. What links this has
// the functions of Carbon/Carbon.h.
#ifndef VANTREL_RECORDING_CARBON_H
#define VANTREL_RECORDING_CARBON_H

#include <Carbon/Carbon.h>

#include <atomic>
#include <functional>
#include <string>
#include <vector>

struct RecordingCarbon {
    // By any thread, one at a time.
    // The function and its arguments, with a blank after each; 1 for a handle that is the right one.
    std::vector<std::string> calls;
    std::function<void(const std::string&)> on_call;  // is told of each; may be empty

    OSStatus status = noErr;              // of every call
    std::atomic<CGEventFlags> flags = 0;  // what is held on the keyboard

    // What InstallEventHandler was given last.
    EventHandlerUPP handler = nullptr;
    void* user_data = nullptr;

    // The hot key is pressed: what the system does on the application's main thread. Returns what the handler does.
    [[nodiscard]] OSStatus press() const { return handler(nullptr, nullptr, user_data); }
};
extern RecordingCarbon carbon;

#endif
