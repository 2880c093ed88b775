// Which key is the hot key: Control+F12, or the one that VANTREL_HOT_KEY names in the environment.
#ifndef VANTREL_X11_HOT_KEY_H
#define VANTREL_X11_HOT_KEY_H

#include <xcb/xcb.h>

#include <cstdint>
#include <string>

namespace x11 {

// Modifiers as people know them. Which bit of an event's state Alt, Meta and Super are is the keyboard's business.
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
// name of an X keysym, with '+' between them: "Control+Shift+F11". The default for NULL and for an empty text; the
// default, too, with a line on stderr, for a text that names none.
HotKey hot_key_named(const char* text);

}  // namespace x11

#endif
