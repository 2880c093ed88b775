// The hot key's grabs: the server sends its presses to us, whatever window has the focus, and to nobody else.
#ifndef VANTREL_X11_GRABS_H
#define VANTREL_X11_GRABS_H

#include <xcb/xcb.h>

#include <cstdint>
#include <string>
#include <vector>

#include "hot_key.h"

namespace x11 {

// A key together with modifiers, as a grab names it.
struct Combination {
    xcb_keycode_t key;
    uint16_t modifiers;
    bool operator==(const Combination&) const = default;
};

// The grabs on one display. Not safe for use from several threads.
struct Grabs {
    xcb_connection_t* connection;
    HotKey hot_key;
    std::vector<xcb_window_t> roots;
    std::vector<Combination> combinations;  // what is grabbed on each root; empty while nothing is
};

enum class Taking {
    taken,
    refused,    // another client has it
    no_key,     // no key of the keyboard makes it, or a modifier of it
    no_answer,  // the server does not say what keys there are
};

// Reads the server's tables of keys, and grabs the keys that are the hot key by them, on every screen, in place of
// those that `grabs` holds so far. Afterwards it holds all of them or, if one is refused, none.
Taking take(Grabs& grabs);

// Whether a press is one of the hot key. While the hot key is held down, the server sends us the presses of all other
// keys, too.
bool is_hot_key(const Grabs& grabs, const xcb_key_press_event_t& event);

// Why there is no hot key, for a line on stderr. Empty for `taken`.
std::string reason(Taking outcome, const HotKey& hot_key);

}  // namespace x11

#endif
