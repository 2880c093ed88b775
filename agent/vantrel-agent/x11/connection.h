// A connection of our own to an X server, and what every file in this folder needs of it. It is made by XCB and not by
// Xlib, because Xlib has one error handler for the whole process, and that is the AWT's. The rules that these files
// follow are those of the X Window System Protocol, version 11.
#ifndef VANTREL_X11_CONNECTION_H
#define VANTREL_X11_CONNECTION_H

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

#include "xcb.h"

namespace x11 {

// A reply, an error or an event. XCB allocates them with malloc, and whoever gets one from XCB frees it.
struct Free {
    void operator()(void* block) const { free(block); }
};
template <typename T>
using Owned = std::unique_ptr<T, Free>;

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb::disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

// What kind of event this is, without the mark of an event that another client has sent.
inline uint8_t kind_of(const xcb_generic_event_t& event) {
    constexpr uint8_t kSentByAClient = 0x80;
    return event.response_type & static_cast<uint8_t>(~kSentByAClient);
}

// Connects to a display, or to the one that DISPLAY names if `display` is NULL. The result is null if there is no such
// display, if it refuses, or if there is no libxcb.
inline Connection connect(const char* display) {
    if (!xcb::load()) {
        return nullptr;
    }
    Connection connection(xcb::connect(display, NULL));
    if (xcb::connection_has_error(connection.get()) != 0) {
        connection.reset();
    }
    return connection;
}

// The root window of each screen, the first one first.
inline std::vector<xcb_window_t> root_windows(xcb_connection_t* connection) {
    std::vector<xcb_window_t> roots;
    for (auto screen = xcb::setup_roots_iterator(xcb::get_setup(connection)); screen.rem > 0;
         xcb::screen_next(&screen)) {
        roots.push_back(screen.data->root);
    }
    return roots;
}

// The keys that the server's modifier map gives to a modifier (XCB_MAP_INDEX_SHIFT and so on).
inline std::vector<xcb_keycode_t> keys_of_modifier(const xcb_get_modifier_mapping_reply_t& map, unsigned modifier) {
    const size_t width = map.keycodes_per_modifier;
    const xcb_keycode_t* row = xcb::get_modifier_mapping_keycodes(&map) + modifier * width;
    std::vector<xcb_keycode_t> keys(row, row + width);
    std::erase(keys, 0);  // a row with fewer keys than the longest one is filled up with zeros
    return keys;
}

}  // namespace x11

#endif
