#include "x_keys.h"

#include <gtest/gtest.h>
#include <xcb/xtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

XKeys::XKeys(const std::string& display) : connection_(display) {}

// Level 1 is that of the keysyms that a key makes with Shift. 0 where no key does.
xcb_keycode_t XKeys::find_key(xcb_keysym_t keysym, size_t level) const {
    xcb_connection_t* x = connection_.get();
    const xcb_setup_t* setup = xcb_get_setup(x);
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto map =
        owned(xcb_get_keyboard_mapping_reply(x, xcb_get_keyboard_mapping(x, setup->min_keycode, count), nullptr));
    const xcb_keysym_t* keysyms = xcb_get_keyboard_mapping_keysyms(map.get());
    for (size_t key = 0; key < count; ++key) {
        if (level < map->keysyms_per_keycode && keysyms[key * map->keysyms_per_keycode + level] == keysym) {
            return static_cast<xcb_keycode_t>(setup->min_keycode + key);
        }
    }
    return 0;
}

xcb_keycode_t XKeys::key_of(xcb_keysym_t keysym) const {
    const xcb_keycode_t key = find_key(keysym, 0);
    EXPECT_NE(key, 0) << "no key makes keysym " << keysym;
    return key;
}

void XKeys::send(unsigned char type, unsigned char detail, int x, int y) {
    // A server's clock counts milliseconds, and nobody presses two keys in one.
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    xcb_test_fake_input(connection_.get(), type, detail, XCB_CURRENT_TIME, connection_.root(), static_cast<int16_t>(x),
                        static_cast<int16_t>(y), 0);
    connection_.settle();
}

void XKeys::down(xcb_keysym_t keysym) {
    send(XCB_KEY_PRESS, key_of(keysym));
}

void XKeys::up(xcb_keysym_t keysym) {
    send(XCB_KEY_RELEASE, key_of(keysym));
}

void XKeys::press(std::initializer_list<xcb_keysym_t> keysyms) {
    for (const xcb_keysym_t keysym : keysyms) {
        down(keysym);
    }
    for (auto keysym = std::rbegin(keysyms); keysym != std::rend(keysyms); ++keysym) {
        up(*keysym);
    }
}

void XKeys::type(const std::string& text) {
    for (const unsigned char character : text) {
        const auto keysym = static_cast<xcb_keysym_t>(character);  // of printable ASCII, the code is the keysym
        if (find_key(keysym, 0) != 0) {
            press({keysym});
            continue;
        }
        const xcb_keycode_t key = find_key(keysym, 1);
        EXPECT_NE(key, 0) << "no key makes '" << character << "'";
        down(XK_Shift_L);
        send(XCB_KEY_PRESS, key);
        send(XCB_KEY_RELEASE, key);
        up(XK_Shift_L);
    }
}

void XKeys::point_at(int x, int y) {
    send(XCB_MOTION_NOTIFY, 0, x > 0 ? x - 1 : x + 1, y);
    send(XCB_MOTION_NOTIFY, 0, x, y);
}

void XKeys::button_down(int button) {
    send(XCB_BUTTON_PRESS, static_cast<unsigned char>(button));
}

void XKeys::button_up(int button) {
    send(XCB_BUTTON_RELEASE, static_cast<unsigned char>(button));
}

void XKeys::click(int button) {
    button_down(button);
    button_up(button);
}

void XKeys::wheel(int notches) {
    constexpr int kAway = 4;
    constexpr int kTowards = 5;
    for (int notch = 0; notch < std::abs(notches); ++notch) {
        click(notches > 0 ? kTowards : kAway);
    }
}

void XKeys::change(xcb_keysym_t from, xcb_keysym_t to) {
    const xcb_keysym_t levels[] = {to, to};
    xcb_change_keyboard_mapping(connection_.get(), 1, key_of(from), 2, levels);
    connection_.settle();
}

void XKeys::give_modifier(xcb_keysym_t keysym, unsigned modifier) {
    constexpr size_t kModifiers = 8;
    xcb_connection_t* x = connection_.get();
    const auto map = owned(xcb_get_modifier_mapping_reply(x, xcb_get_modifier_mapping(x), nullptr));
    const size_t width = map->keycodes_per_modifier;
    const xcb_keycode_t* rows = xcb_get_modifier_mapping_keycodes(map.get());
    std::vector<xcb_keycode_t> keys(rows, rows + kModifiers * width);
    const xcb_keycode_t key = key_of(keysym);
    for (size_t at = 0; at < keys.size(); ++at) {
        if (keys[at] == key || at / width == modifier) {
            keys[at] = 0;
        }
    }
    keys[modifier * width] = key;
    const auto reply = owned(xcb_set_modifier_mapping_reply(
        x, xcb_set_modifier_mapping(x, static_cast<uint8_t>(width), keys.data()), nullptr));
    EXPECT_EQ(reply->status, XCB_MAPPING_STATUS_SUCCESS);
}

void XKeys::go_to_screen(int screen) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    for (int at = 0; at < screen; ++at) {
        xcb_screen_next(&screens);
    }
    xcb_warp_pointer(connection_.get(), XCB_NONE, screens.data->root, 0, 0, 0, 0, 100, 100);
    connection_.settle();
}

bool XKeys::grab_with_control(xcb_keysym_t keysym) {
    xcb_connection_t* x = connection_.get();
    return owned(
               xcb_request_check(x, xcb_grab_key_checked(x, 0, connection_.root(), XCB_MOD_MASK_CONTROL, key_of(keysym),
                                                         XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC))) == nullptr;
}

int XKeys::grabbed_presses() {
    connection_.settle();
    int presses = 0;
    while (const auto event = owned(xcb_poll_for_event(connection_.get()))) {
        presses += event->response_type == XCB_KEY_PRESS ? 1 : 0;
    }
    return presses;
}
