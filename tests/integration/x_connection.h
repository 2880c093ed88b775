// A test's connection to a real X server.
#ifndef VANTREL_X_CONNECTION_H
#define VANTREL_X_CONNECTION_H

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>

// An answer of the server, which its receiver frees.
template <typename T>
std::unique_ptr<T, void (*)(void*)> owned(T* block) {
    return {block, free};
}

class XConnection {
  public:
    // display   as DISPLAY names it; where there is no server, the test fails
    explicit XConnection(const std::string& display)
        : connection_(xcb_connect(display.c_str(), nullptr), xcb_disconnect) {
        EXPECT_EQ(xcb_connection_has_error(get()), 0) << "no connection to " << display;
    }

    [[nodiscard]] xcb_connection_t* get() const { return connection_.get(); }

    // The first screen's root window.
    [[nodiscard]] xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(get())).data->root; }

    // Returns when the server has done all that it was asked.
    void settle() const { owned(xcb_get_input_focus_reply(get(), xcb_get_input_focus(get()), nullptr)); }

  private:
    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> connection_;
};

#endif
