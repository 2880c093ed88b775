#include "x_windows.h"

#include <unistd.h>

#include <climits>

XWindows::XWindows(const std::string& display) : connection_(display) {}

std::string XWindows::own_machine() {
    char name[HOST_NAME_MAX + 1] = "";
    gethostname(name, sizeof name);
    return name;
}

xcb_atom_t XWindows::atom(const std::string& name) const {
    xcb_connection_t* x = connection_.get();
    return owned(xcb_intern_atom_reply(x, xcb_intern_atom(x, 0, static_cast<uint16_t>(name.size()), name.c_str()),
                                       nullptr))
        ->atom;
}

xcb_window_t XWindows::make(pid_t process, const std::string& machine) {
    xcb_connection_t* x = connection_.get();
    const xcb_window_t outer = xcb_generate_id(x);
    xcb_create_window(x, XCB_COPY_FROM_PARENT, outer, connection_.root(), 80, 80, 50, 50, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, outer, atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1, &process);
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, outer, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, 8,
                        static_cast<uint32_t>(machine.size()), machine.data());
    // The focus of a window lies with one inside it, as toolkits do it.
    const xcb_window_t inner = xcb_generate_id(x);
    xcb_create_window(x, XCB_COPY_FROM_PARENT, inner, outer, 0, 0, 50, 50, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(x, inner);
    xcb_map_window(x, outer);
    return inner;
}

xcb_window_t XWindows::shown_by(pid_t process) const {
    xcb_connection_t* x = connection_.get();
    const xcb_atom_t pid = atom("_NET_WM_PID");
    const auto tree = owned(xcb_query_tree_reply(x, xcb_query_tree(x, connection_.root()), nullptr));
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
        const auto name =
            owned(xcb_get_property_reply(x, xcb_get_property(x, 0, window, pid, XCB_ATOM_CARDINAL, 0, 1), nullptr));
        const auto attributes =
            owned(xcb_get_window_attributes_reply(x, xcb_get_window_attributes(x, window), nullptr));
        if (name && xcb_get_property_value_length(name.get()) == sizeof process && attributes &&
            attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
            *static_cast<const pid_t*>(xcb_get_property_value(name.get())) == process) {
            return window;
        }
    }
    return XCB_NONE;
}

void XWindows::focus(xcb_window_t window) {
    xcb_set_input_focus(connection_.get(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    connection_.settle();
}

xcb_window_t XWindows::focused() const {
    xcb_connection_t* x = connection_.get();
    return owned(xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr))->focus;
}
