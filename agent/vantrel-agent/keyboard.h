// The keyboard of the window system that the program runs on: a hot key that works whatever window has the focus, and
// whether the key that asks for highlights is held. One header, one file per window system: keyboard_carbon.cpp for
// macOS, keyboard_x11.cpp for X11. They know nothing of the agent: setHotKeyVmAttachment gives them the two functions
// of the VM that they need.
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

// How a thread that the keyboard has started becomes one of the VM's threads, and how it stops being one. Both are
// called on that thread itself.
struct VmAttachment {
    bool (*attach)(const char* name);  // called once, before the callback runs; if it returns false, no callback runs
    void (*detach)();                  // called before the thread ends, if attach has returned true
};

// Sets the attachment that the next bindMacHotKey uses. Without effect under Carbon, where no thread is started.
void setHotKeyVmAttachment(VmAttachment attachment);

// Registers the hot key. From then on `callback` runs each time it is pressed; a key that is held down counts once.
//
// Writes the line of announceHotKey to stdout, whether or not the key could be registered. Under X11 one line on stderr
// says which key it is and, where there is no hot key, another one says why; when that changes later, because the
// keyboard does, a line says so.
//
// May be called on any thread, but a second time only after unbindMacHotKey. Under X11 it waits for a display that does
// not answer, for half a second at most.
void bindMacHotKey(void (*callback)());

// Gives the hot key back if there is one. Returns at once, even while a callback is running; that one runs to its end.
void unbindMacHotKey();

// Whether the modifier is held at this moment. May be called on any thread. Under X11 it costs one round trip to the
// server.
bool isHotKeyModifierHeld();

// The line that bindMacHotKey writes to stdout, the same for every window system.
inline void announceHotKey() {
    static constexpr char kMessage[] = "Pressing \u2318+F12 to toggle the Vantrel window visible.\n";
    fwrite(kMessage, 1, sizeof kMessage - 1, stdout);
    fflush(stdout);
}

#endif
