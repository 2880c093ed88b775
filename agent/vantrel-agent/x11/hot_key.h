// Which key is the hot key: Control+F12, or the one that VANTREL_HOT_KEY names in the environment.
#ifndef VANTREL_X11_HOT_KEY_H
#define VANTREL_X11_HOT_KEY_H

#include <xcb/xcb.h>

#include <cstdint>
#include <string>

namespace x11 {

// Modifiers by the names of their keys. Which bits Alt, Meta and Super are in an event's state differs from keyboard to
// keyboard; grabs.cpp finds them out.
enum Modifier : uint8_t { kShift = 1, kControl = 2, kAlt = 4, kMeta = 8, kSuper = 16 };

struct HotKey {
    xcb_keysym_t keysym;  // what the key makes when it is pressed alone
    uint8_t modifiers;    // a set of Modifier
    std::string name;     // for messages: "Control+F12"
    bool operator==(const HotKey&) const = default;
};

// Control+F12.
HotKey default_hot_key();

// The hot key that `text` names: modifiers (Shift, Control, Alt, Meta, Super, in any case; Ctrl is Control) and the
// name of an X keysym, with '+' between them: "Control+Shift+F11". For NULL and for an empty text it is the default.
// For a text that names no key it is the default as well, and a line on stderr says so.
HotKey hot_key_named(const char* text);

}  // namespace x11

#endif
