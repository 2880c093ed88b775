// Tells the presses of a person from those that the server makes up while a key is held.
#ifndef VANTREL_X11_KEY_REPEAT_H
#define VANTREL_X11_KEY_REPEAT_H

#include <xcb/xcb.h>

namespace x11 {

// While a key is held, the server sends presses of it again and again; some servers send a release before each of them,
// which then has the same time as the press. So a press repeats if the same key has not been released since its last
// press, or if it was released at the very time of this press.
//
// Give it the presses of the hot key and the releases of all keys, in the order in which they come. Presses of other
// keys, which the server sends us while the hot key is held, are not for it.
struct KeyRepeat {
    // Whether a person has made this press.
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
