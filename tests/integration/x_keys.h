// Keys and mouse buttons pressed on a real X server as if by somebody's hand (the XTEST extension), and changes to its
// keyboard.
#ifndef VANTREL_X_KEYS_H
#define VANTREL_X_KEYS_H

#include <X11/keysym.h>
#include <xcb/xcb.h>

#include <initializer_list>
#include <string>

#include "x_connection.h"

class XKeys {
  public:
    // display   as DISPLAY names it
    explicit XKeys(const std::string& display);

    // Press or release the key that makes a keysym. The server has done it when they return.
    void down(xcb_keysym_t keysym);
    void up(xcb_keysym_t keysym);

    // Presses keys in turn, and releases them in the opposite order.
    void press(std::initializer_list<xcb_keysym_t> keysyms);

    // Types a text of printable ASCII characters.
    void type(const std::string& text);

    // Moves the pointer to a place on the first screen, in pixels, by way of one beside it: a program sees it come.
    void point_at(int x, int y);

    // Presses or releases a mouse button (1 is the left one), or both, where the pointer is.
    void button_down(int button);
    void button_up(int button);
    void click(int button = 1);

    // Turns the wheel by notches: towards the user if positive.
    void wheel(int notches);

    // Makes a key make another keysym, shifted or not.
    void change(xcb_keysym_t from, xcb_keysym_t to);

    // Gives a modifier (XCB_MAP_INDEX_1 and so on) to the key that makes a keysym, and to no other.
    void give_modifier(xcb_keysym_t keysym, unsigned modifier);

    // Moves the pointer to a screen: where no window has the focus, keys go where the pointer is.
    void go_to_screen(int screen);

    // Takes Control and a key for this connection, as any program may. Returns whether the server granted it.
    bool grab_with_control(xcb_keysym_t keysym);

    // How many presses of grabbed keys came in since this was last asked.
    int grabbed_presses();

  private:
    [[nodiscard]] xcb_keycode_t find_key(xcb_keysym_t keysym, size_t level) const;
    [[nodiscard]] xcb_keycode_t key_of(xcb_keysym_t keysym) const;
    void send(unsigned char type, unsigned char detail, int x = 0, int y = 0);

    XConnection connection_;
};

#endif
