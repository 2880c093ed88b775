// The keyboard of the window system that the program runs on: a hot key that works whatever window has the focus, and
// whether the key that asks for highlights is held. One header, one file per window system: keyboard_carbon.cpp for
// macOS, keyboard_x11.cpp for X11. They know nothing of the agent; what they need of the VM is handed to them here.
//
//                   hot key         the modifier         the hot key's callback runs on
//     Carbon        Command+F12     Command, either      the application's main event thread
//     X11           Control+F12     Control, either      a thread of its own, "vantrel-hotkey"
//
// Under X11 the variable VANTREL_HOT_KEY of the environment may name another hot key (x11/hot_key.h), and several
// programs under the agent share it (x11/agents.h).
//
// Without a window system, or where it refuses, there is no hot key, no modifier is held, and nothing fails.
#ifndef VANTREL_KEYBOARD_H
#define VANTREL_KEYBOARD_H

#include <stdio.h>

// How a thread of a window system's own comes to the VM and leaves it.
struct HotKeyThread {
    bool (*attach)(const char* name);  // called on the thread before any callback; no callback runs where it says no
    void (*detach)();                  // called on the thread before it ends, if it was attached
};

// Sets what the hot key's thread calls, for bindMacHotKey. Means nothing on Carbon, where no thread is made.
void setHotKeyThread(HotKeyThread thread);

// Registers the hot key, which from then on runs `callback` each time it is pressed; a key that is held down counts
// once. Says on stdout that it did, whether or not that worked, and on X11 says on stderr which key it is and, in
// another line, why there is none; when the keyboard changes later, X11 says so again, or that there is one now. Called
// on any thread, and again only after unbindMacHotKey. On X11 an unresponsive display delays it by half a second at
// most.
void bindMacHotKey(void (*callback)());

// Gives the hot key back if there is one. Waits for nothing: a callback that runs already runs on.
void unbindMacHotKey();

// Whether the modifier is held at this moment. May be called from any thread, and costs one round trip to the window
// system on X11.
bool isHotKeyModifierHeld();

// The line that bindMacHotKey writes to stdout, the same for every window system.
inline void announceHotKey() {
    static constexpr char kMessage[] = "Pressing \u2318+F12 to toggle the Vantrel window visible.\n";
    fwrite(kMessage, 1, sizeof kMessage - 1, stdout);
    fflush(stdout);
}

#endif
