#include "grabs.h"

#include <X11/keysym.h>

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "connection.h"

namespace x11 {

namespace {

// What the server says about its keyboard.
struct Keyboard {
    xcb_keycode_t first;
    xcb_keycode_t last;
    Owned<xcb_get_keyboard_mapping_reply_t> keysyms;
    Owned<xcb_get_modifier_mapping_reply_t> modifiers;
};

std::optional<Keyboard> ask_for_keyboard(xcb_connection_t* connection) {
    const xcb_keycode_t first = xcb::get_setup(connection)->min_keycode;
    const xcb_keycode_t last = xcb::get_setup(connection)->max_keycode;
    const auto keysyms = xcb::get_keyboard_mapping(connection, first, static_cast<uint8_t>(last - first + 1));
    const auto modifiers = xcb::get_modifier_mapping(connection);
    Keyboard keyboard{
        first, last,
        Owned<xcb_get_keyboard_mapping_reply_t>(xcb::get_keyboard_mapping_reply(connection, keysyms, NULL)),
        Owned<xcb_get_modifier_mapping_reply_t>(xcb::get_modifier_mapping_reply(connection, modifiers, NULL))};
    if (!keyboard.keysyms || !keyboard.modifiers || keyboard.keysyms->keysyms_per_keycode == 0) {
        return std::nullopt;
    }
    return keyboard;
}

// The keysyms that a key makes: the first one when it is pressed alone, the others with modifiers.
std::span<const xcb_keysym_t> keysyms_of(const Keyboard& keyboard, xcb_keycode_t key) {
    const size_t width = keyboard.keysyms->keysyms_per_keycode;
    return {xcb::get_keyboard_mapping_keysyms(keyboard.keysyms.get()) + (key - keyboard.first) * width, width};
}

// The bits of those of the modifiers Mod1 to Mod5 that have a key which makes one of two keysyms.
uint16_t modifiers_that_make(const Keyboard& keyboard, xcb_keysym_t one, xcb_keysym_t other) {
    unsigned mask = 0;
    for (unsigned modifier = XCB_MAP_INDEX_1; modifier <= XCB_MAP_INDEX_5; ++modifier) {
        for (const xcb_keycode_t key : keys_of_modifier(*keyboard.modifiers, modifier)) {
            for (const xcb_keysym_t keysym : keysyms_of(keyboard, key)) {
                mask |= keysym == one || keysym == other ? 1U << modifier : 0;
            }
        }
    }
    return static_cast<uint16_t>(mask);
}

// The bits of a hot key's modifiers; nothing if the keyboard lacks one of them.
std::optional<uint16_t> modifiers_of(const Keyboard& keyboard, const HotKey& hot_key) {
    const struct {
        Modifier modifier;
        uint16_t mask;
    } all[] = {
        {kShift, XCB_MOD_MASK_SHIFT},
        {kControl, XCB_MOD_MASK_CONTROL},
        {kAlt, modifiers_that_make(keyboard, XK_Alt_L, XK_Alt_R)},
        {kMeta, modifiers_that_make(keyboard, XK_Meta_L, XK_Meta_R)},
        {kSuper, modifiers_that_make(keyboard, XK_Super_L, XK_Super_R)},
    };
    unsigned mask = 0;
    for (const auto& [modifier, bits] : all) {
        if ((hot_key.modifiers & modifier) != 0) {
            if (bits == 0) {
                return std::nullopt;
            }
            // If several modifiers have such a key, one of them is enough, and the lowest one is the usual one.
            mask |= bits & -static_cast<unsigned>(bits);
        }
    }
    return static_cast<uint16_t>(mask);
}

// All combinations that are the hot key: every key that makes it, with its modifiers and any of Caps Lock, Num Lock and
// Scroll Lock. They are needed one by one, because a grab is for exactly the modifiers that it names. Empty if no key
// makes the hot key.
std::vector<Combination> combinations_of(const Keyboard& keyboard, const HotKey& hot_key) {
    const std::optional<uint16_t> modifiers = modifiers_of(keyboard, hot_key);
    if (!modifiers) {
        return {};
    }
    const unsigned locks = (XCB_MOD_MASK_LOCK | modifiers_that_make(keyboard, XK_Num_Lock, XK_Scroll_Lock)) &
                           ~static_cast<unsigned>(*modifiers);
    std::vector<Combination> combinations;
    for (unsigned key = keyboard.first; key <= keyboard.last; ++key) {
        if (keysyms_of(keyboard, static_cast<xcb_keycode_t>(key)).front() != hot_key.keysym) {
            continue;
        }
        // Every subset of the locks, from all of them down to none.
        for (unsigned held = locks;; held = (held - 1) & locks) {
            combinations.push_back({static_cast<xcb_keycode_t>(key), static_cast<uint16_t>(*modifiers | held)});
            if (held == 0) {
                break;
            }
        }
    }
    return combinations;
}

// Several agents may ask for the same combinations at the same time. So that one of them gets all, each asks for the
// combinations in the same order, and goes on only when it has got the first one; and each gives them back in the
// opposite order, so that whoever gets the first one finds the others free.

// Releases the first `count` of the combinations on a root.
void release_first(const Grabs& grabs, xcb_window_t root, size_t count) {
    while (count-- > 0) {
        const Combination& combination = grabs.combinations[count];
        xcb::ungrab_key(grabs.connection, combination.key, root, combination.modifiers);
    }
}

void release(Grabs& grabs) {
    for (auto root = grabs.roots.rbegin(); root != grabs.roots.rend(); ++root) {
        release_first(grabs, *root, grabs.combinations.size());
    }
    grabs.combinations.clear();
    xcb::flush(grabs.connection);
}

xcb_void_cookie_t request(const Grabs& grabs, xcb_window_t root, const Combination& combination) {
    return xcb::grab_key_checked(grabs.connection, 0, root, combination.modifiers, combination.key, XCB_GRAB_MODE_ASYNC,
                                 XCB_GRAB_MODE_ASYNC);
}

bool is_granted(const Grabs& grabs, xcb_void_cookie_t request) {
    return Owned<xcb_generic_error_t>(xcb::request_check(grabs.connection, request)) == nullptr;
}

// Returns true if all are granted. If one of them is refused, gives the others back and returns false.
bool grab_all(Grabs& grabs) {
    if (!is_granted(grabs, request(grabs, grabs.roots.front(), grabs.combinations.front()))) {
        grabs.combinations.clear();
        return false;
    }
    std::vector<xcb_void_cookie_t> requests;
    for (const xcb_window_t root : grabs.roots) {
        for (const Combination& combination : grabs.combinations) {
            requests.push_back(request(grabs, root, combination));  // asking twice for the first one does no harm
        }
    }
    bool granted = true;
    for (const xcb_void_cookie_t& request : requests) {
        granted &= is_granted(grabs, request);
    }
    if (!granted) {
        release(grabs);
    }
    return granted;
}

}  // namespace

Taking take(Grabs& grabs) {
    const std::optional<Keyboard> keyboard = ask_for_keyboard(grabs.connection);
    std::vector<Combination> wanted;
    if (keyboard) {
        wanted = combinations_of(*keyboard, grabs.hot_key);
        if (!wanted.empty() && wanted == grabs.combinations) {
            return Taking::taken;
        }
    }
    release(grabs);
    if (wanted.empty()) {
        return keyboard ? Taking::no_key : Taking::no_answer;
    }
    grabs.combinations = std::move(wanted);
    return grab_all(grabs) ? Taking::taken : Taking::refused;
}

bool is_hot_key(const Grabs& grabs, const xcb_key_press_event_t& event) {
    // The higher bits of `state` are the pointer's buttons and the keyboard's group.
    constexpr uint16_t kModifiers = 0xFF;
    const Combination pressed{event.detail, static_cast<uint16_t>(event.state & kModifiers)};
    return std::find(grabs.combinations.begin(), grabs.combinations.end(), pressed) != grabs.combinations.end();
}

std::string reason(Taking outcome, const HotKey& hot_key) {
    switch (outcome) {
        case Taking::refused:
            return "another program has taken " + hot_key.name;
        case Taking::no_key:
            return "no keys of the keyboard make " + hot_key.name;
        case Taking::no_answer:
            return "the X server does not say what keys there are";
        case Taking::taken:
            break;
    }
    return "";
}

}  // namespace x11
