#include "x_keys.h"

#include <gtest/gtest.h>
#include <xcb/xtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

namespace {

template <typename T>
std::unique_ptr<T, void (*)(void*)> owned(T* block) {
    return {block, free};
}

}  // namespace

XKeys::XKeys(const std::string& display)
    : connection_(xcb_connect(display.c_str(), nullptr), xcb_disconnect),
      root_(xcb_connection_has_error(connection_.get()) == 0
                ? xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root
                : 0) {
    EXPECT_EQ(xcb_connection_has_error(connection_.get()), 0) << "no connection to " << display;
}

void XKeys::settle() {
    owned(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
}

xcb_keycode_t XKeys::key_of(xcb_keysym_t keysym) const {
    xcb_connection_t* x = connection_.get();
    const xcb_setup_t* setup = xcb_get_setup(x);
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto map =
        owned(xcb_get_keyboard_mapping_reply(x, xcb_get_keyboard_mapping(x, setup->min_keycode, count), nullptr));
    const xcb_keysym_t* keysyms = xcb_get_keyboard_mapping_keysyms(map.get());
    for (size_t key = 0; key < count; ++key) {
        if (keysyms[key * map->keysyms_per_keycode] == keysym) {
            return static_cast<xcb_keycode_t>(setup->min_keycode + key);
        }
    }
    ADD_FAILURE() << "no key makes keysym " << keysym;
    return 0;
}

void XKeys::send(unsigned char type, xcb_keysym_t keysym) {
    // A server's clock counts milliseconds, and nobody presses two keys in one.
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    xcb_test_fake_input(connection_.get(), type, key_of(keysym), XCB_CURRENT_TIME, root_, 0, 0, 0);
    settle();
}

void XKeys::down(xcb_keysym_t keysym) {
    send(XCB_KEY_PRESS, keysym);
}

void XKeys::up(xcb_keysym_t keysym) {
    send(XCB_KEY_RELEASE, keysym);
}

void XKeys::press(std::initializer_list<xcb_keysym_t> keysyms) {
    for (const xcb_keysym_t keysym : keysyms) {
        down(keysym);
    }
    for (auto keysym = std::rbegin(keysyms); keysym != std::rend(keysyms); ++keysym) {
        up(*keysym);
    }
}

void XKeys::change(xcb_keysym_t from, xcb_keysym_t to) {
    const xcb_keysym_t levels[] = {to, to};
    xcb_change_keyboard_mapping(connection_.get(), 1, key_of(from), 2, levels);
    settle();
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
    settle();
}

bool XKeys::grab_with_control(xcb_keysym_t keysym) {
    xcb_connection_t* x = connection_.get();
    return owned(xcb_request_check(x, xcb_grab_key_checked(x, 0, root_, XCB_MOD_MASK_CONTROL, key_of(keysym),
                                                           XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC))) == nullptr;
}

int XKeys::grabbed_presses() {
    settle();
    int presses = 0;
    while (const auto event = owned(xcb_poll_for_event(connection_.get()))) {
        presses += event->response_type == XCB_KEY_PRESS ? 1 : 0;
    }
    return presses;
}
