// Windows on a real X server: whose process they belong to, and which one has the focus.
#ifndef VANTREL_X_WINDOWS_H
#define VANTREL_X_WINDOWS_H

#include <sys/types.h>
#include <xcb/xcb.h>

#include <string>

#include "x_connection.h"

class XWindows {
  public:
    // display   as DISPLAY names it
    explicit XWindows(const std::string& display);

    // Makes a window, 50 wide and high at (80,80), that says that it is a process's. It goes with this object.
    xcb_window_t make(pid_t process, const std::string& machine = own_machine());

    // The window on the screen that a process says is its own; XCB_NONE while there is none.
    [[nodiscard]] xcb_window_t shown_by(pid_t process) const;

    // Gives a window the focus; XCB_INPUT_FOCUS_POINTER_ROOT for whichever the pointer is over, XCB_INPUT_FOCUS_NONE
    // for none.
    void focus(xcb_window_t window);
    [[nodiscard]] xcb_window_t focused() const;

    static std::string own_machine();

  private:
    [[nodiscard]] xcb_atom_t atom(const std::string& name) const;

    XConnection connection_;
};

#endif
