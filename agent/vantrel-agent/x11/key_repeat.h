// Tells the presses of a person from those that the server makes up while a key is held.
#ifndef VANTREL_X11_KEY_REPEAT_H
#define VANTREL_X11_KEY_REPEAT_H

#include <xcb/xcb.h>

namespace x11 {

// Fed with the presses of the hot key and with all releases, in the order in which they come. While the hot key is held
// the server sends every key to the client that has grabbed it: presses of those are not to be fed, for a key that is
// pressed meanwhile says nothing about the hot key's own.
//
// Repeated presses follow upon the last press of the same key, or upon a release of it that has the very same time.
struct KeyRepeat {
    bool is_new_press(const xcb_key_press_event_t& event) {
        const bool repeats = event.detail == key && (down || event.time == released_at);
        key = event.detail;
        down = true;
        return !repeats;
    }
    void release(const xcb_key_release_event_t& event) {
        if (event.detail == key) {
            down = false;
            released_at = event.time;
        }
    }

    xcb_keycode_t key = 0;
    bool down = false;
    xcb_timestamp_t released_at = 0;
};

}  // namespace x11

#endif
