// How long it takes from the press of the hot key until the inspector's window is on the screen, and what it costs to
// ask for the modifier, in round trips to the X server.
//
//     hot-key-bench JAVA AGENT SAMPLE_JAR
#include <X11/keysym.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "keyboard.h"
#include "process.h"
#include "x_connection.h"
#include "x_keys.h"
#include "x_server.h"

namespace {

using std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

[[noreturn]] void give_up(const std::string& why) {
    fprintf(stderr, "hot-key-bench: %s\n", why.c_str());
    exit(1);
}

std::string name_of(xcb_connection_t* x, xcb_window_t window) {
    const auto name = owned(
        xcb_get_property_reply(x, xcb_get_property(x, 0, window, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, 64), nullptr));
    return name ? std::string(static_cast<const char*>(xcb_get_property_value(name.get())),
                              static_cast<size_t>(xcb_get_property_value_length(name.get())))
                : "";
}

// Waits until the inspector's window is put on the screen (XCB_MAP_NOTIFY) or taken off (XCB_UNMAP_NOTIFY).
void wait_for_inspector(xcb_connection_t* x, unsigned char notification, xcb_window_t& inspector) {
    while (const auto event = owned(xcb_wait_for_event(x))) {
        if (event->response_type != notification) {
            continue;
        }
        // Both events hold the window in the same place.
        const xcb_window_t window = reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window;
        if (window == inspector || (notification == XCB_MAP_NOTIFY && name_of(x, window) == "Vantrel")) {
            inspector = window;
            return;
        }
    }
    give_up("the X server is gone");
}

void show_times_to_the_window(const XServer& server, xcb_connection_t* x) {
    constexpr size_t kPresses = 20;
    XKeys keys(server.name());
    std::vector<double> times;
    xcb_window_t inspector = XCB_NONE;
    for (size_t press = 0; press <= kPresses; ++press) {
        keys.down(XK_Control_L);
        const auto start = steady_clock::now();
        keys.down(XK_F12);
        wait_for_inspector(x, XCB_MAP_NOTIFY, inspector);
        times.push_back(Milliseconds(steady_clock::now() - start).count());
        keys.up(XK_F12);
        keys.press({XK_F12});
        wait_for_inspector(x, XCB_UNMAP_NOTIFY, inspector);
        keys.up(XK_Control_L);
    }
    const double first = times.front();
    times.erase(times.begin());
    std::sort(times.begin(), times.end());
    printf("from press to window: first %.0f ms; then %zu presses: median %.1f ms, least %.1f ms, most %.1f ms\n",
           first, times.size(), (times[kPresses / 2 - 1] + times[kPresses / 2]) / 2, times.front(), times.back());
}

template <typename Call>
double time_of(const Call& call) {
    constexpr int kCalls = 20000;
    const auto start = steady_clock::now();
    for (int i = 0; i < kCalls; ++i) {
        call();
    }
    return Milliseconds(steady_clock::now() - start).count();
}

void show_cost_of_the_modifier(const XServer& server, xcb_connection_t* x) {
    setenv("DISPLAY", server.name().c_str(), 1);
    bool held = isHotKeyModifierHeld();  // connects
    const double asking = time_of([&] { held |= isHotKeyModifierHeld(); });
    const double round_trip = time_of([&] { owned(xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr)); });
    printf("asking for the modifier: %.2f times a round trip of the smallest request%s\n", asking / round_trip,
           held ? " (held?)" : "");
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count != 4) {
        give_up("say JAVA AGENT SAMPLE_JAR");
    }
    const XServer server;
    const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> x(xcb_connect(server.name().c_str(), nullptr),
                                                                           xcb_disconnect);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(x.get())).data->root;
    const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x.get(), root, XCB_CW_EVENT_MASK, &events);

    show_cost_of_the_modifier(server, x.get());

    Process program({arguments[1], std::string("-agentpath:") + arguments[2], "-jar", arguments[3]},
                    {.folder = {}, .environment = {server.display()}});
    if (!program.reaches([&] { return server.shows("Vantrel sample"); })) {
        give_up("the sample does not come up: " + program.err());
    }
    show_times_to_the_window(server, x.get());
    return 0;
}
