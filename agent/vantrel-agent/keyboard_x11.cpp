// The keyboard under X11, by XCB and on connections of our own: Xlib's error handler is the process's only one and
// belongs to the AWT. The rules of grabs and events are those of the X Window System Protocol, version 11.
#include <X11/keysym.h>
#include <pthread.h>
#include <sys/socket.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <semaphore>
#include <string>
#include <utility>
#include <vector>

#include "keyboard.h"

namespace {

constexpr const char* kThreadName = "vantrel-hotkey";

// How long bindMacHotKey waits for the display. One that answers does so in a few milliseconds.
constexpr auto kPatience = std::chrono::milliseconds(500);

// What XCB hands out belongs to whom it is handed to.
struct Free {
    void operator()(void* block) const { free(block); }
};
template <typename T>
using Owned = std::unique_ptr<T, Free>;

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

// A connection to a display, the one that DISPLAY names for NULL. Null where the display cannot be reached or refuses.
Connection connect(const char* display) {
    Connection connection(xcb_connect(display, NULL));
    if (xcb_connection_has_error(connection.get()) != 0) {
        connection.reset();
    }
    return connection;
}

// The keys that the server's modifier map gives to a modifier.
std::vector<xcb_keycode_t> keys_of_modifier(const xcb_get_modifier_mapping_reply_t& map, unsigned modifier) {
    const size_t width = map.keycodes_per_modifier;
    const xcb_keycode_t* row = xcb_get_modifier_mapping_keycodes(&map) + modifier * width;
    std::vector<xcb_keycode_t> keys(row, row + width);
    std::erase(keys, 0);  // fills rows up
    return keys;
}

// A key together with modifiers, as a grab names it.
struct Combination {
    xcb_keycode_t key;
    uint16_t modifiers;
    bool operator==(const Combination&) const = default;
};

// Control with every key that makes F12, and with every combination of the modifiers that lock keys set: a grab holds
// for exactly the modifiers that it names. Empty where no key makes F12.
std::vector<Combination> hot_key_combinations(xcb_connection_t* connection) {
    const xcb_keycode_t first = xcb_get_setup(connection)->min_keycode;
    const xcb_keycode_t last = xcb_get_setup(connection)->max_keycode;
    const auto keyboard_request = xcb_get_keyboard_mapping(connection, first, static_cast<uint8_t>(last - first + 1));
    const auto modifier_request = xcb_get_modifier_mapping(connection);
    const Owned<xcb_get_keyboard_mapping_reply_t> keyboard(
        xcb_get_keyboard_mapping_reply(connection, keyboard_request, NULL));
    const Owned<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(connection, modifier_request, NULL));
    if (!keyboard || !modifiers || keyboard->keysyms_per_keycode == 0) {
        return {};
    }
    // What a key makes when it is pressed alone.
    const auto keysym_of = [&](size_t key) {
        return xcb_get_keyboard_mapping_keysyms(keyboard.get())[(key - first) * keyboard->keysyms_per_keycode];
    };

    unsigned locks = XCB_MOD_MASK_LOCK;
    for (unsigned modifier = XCB_MAP_INDEX_1; modifier <= XCB_MAP_INDEX_5; ++modifier) {
        for (const xcb_keycode_t key : keys_of_modifier(*modifiers, modifier)) {
            if (keysym_of(key) == XK_Num_Lock || keysym_of(key) == XK_Scroll_Lock) {
                locks |= 1U << modifier;
            }
        }
    }

    std::vector<Combination> combinations;
    for (unsigned key = first; key <= last; ++key) {
        if (keysym_of(key) != XK_F12) {
            continue;
        }
        // Every subset of the locks, from all of them down to none.
        for (unsigned held = locks;; held = (held - 1) & locks) {
            combinations.push_back(
                {static_cast<xcb_keycode_t>(key), static_cast<uint16_t>(XCB_MOD_MASK_CONTROL | held)});
            if (held == 0) {
                break;
            }
        }
    }
    return combinations;
}

std::vector<xcb_window_t> root_windows(xcb_connection_t* connection) {
    std::vector<xcb_window_t> roots;
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection)); screen.rem > 0; xcb_screen_next(&screen)) {
        roots.push_back(screen.data->root);
    }
    return roots;
}

// The hot key's grabs on one display.
struct Grabs {
    xcb_connection_t* connection;
    std::vector<xcb_window_t> roots;
    std::vector<Combination> combinations;
};

void release(const Grabs& grabs) {
    for (const xcb_window_t root : grabs.roots) {
        for (const Combination& combination : grabs.combinations) {
            xcb_ungrab_key(grabs.connection, combination.key, root, combination.modifiers);
        }
    }
    xcb_flush(grabs.connection);
}

// Takes what the server's tables of keys ask for now, instead of what `grabs` holds. Returns false where the server
// refuses a part of it, because another client has it.
bool take(Grabs& grabs) {
    std::vector<Combination> combinations = hot_key_combinations(grabs.connection);
    if (combinations == grabs.combinations) {
        return true;
    }
    release(grabs);
    grabs.combinations = std::move(combinations);

    std::vector<xcb_void_cookie_t> requests;
    for (const xcb_window_t root : grabs.roots) {
        for (const Combination& combination : grabs.combinations) {
            requests.push_back(xcb_grab_key_checked(grabs.connection, 0, root, combination.modifiers, combination.key,
                                                    XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        }
    }
    bool granted = true;
    for (const xcb_void_cookie_t& request : requests) {
        granted &= Owned<xcb_generic_error_t>(xcb_request_check(grabs.connection, request)) == nullptr;
    }
    return granted;
}

constexpr const char* kRefused = "another program has taken Control+F12";

void report_no_hot_key(const std::string& reason) {
    fprintf(stderr, "vantrel-agent: no hot key: %s.\n", reason.c_str());
}

// Tells the presses of a person from those that the server makes up while a key is held. Those follow upon the last
// press of the same key, or upon a release that has the very same time.
struct AutoRepeat {
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

// Runs the callback for each press until the connection ends, or the key is lost to another program when the keyboard
// changes.
void serve(Grabs& grabs, void (*callback)()) {
    AutoRepeat repeat;
    while (const Owned<xcb_generic_event_t> event{xcb_wait_for_event(grabs.connection)}) {
        constexpr uint8_t kSentByAClient = 0x80;
        switch (event->response_type & ~kSentByAClient) {
            case XCB_KEY_PRESS:
                if (repeat.is_new_press(*reinterpret_cast<const xcb_key_press_event_t*>(event.get()))) {
                    callback();
                }
                break;
            case XCB_KEY_RELEASE:
                repeat.release(*reinterpret_cast<const xcb_key_release_event_t*>(event.get()));
                break;
            case XCB_MAPPING_NOTIFY:
                if (!take(grabs)) {
                    report_no_hot_key(kRefused);
                    return;
                }
                break;
            default:
                break;
        }
    }
}

// What the hot key's thread shares with bindMacHotKey and unbindMacHotKey. Nothing here is ever destroyed: at the end
// of the process the thread may still be there.
HotKeyThread hot_key_thread;
std::binary_semaphore settled{0};    // the thread has its grabs, or knows why not
std::binary_semaphore announced{0};  // bindMacHotKey has said what it has to say
std::mutex socket_lock;              // held for moments only, and never in the VM
int hot_key_socket = -1;             // of the connection that holds the grabs; -1 while there is none
bool unbound = false;

// Makes the connection known to unbindMacHotKey. Returns false if that has been called already.
bool may_serve(xcb_connection_t* connection) {
    const std::lock_guard guard(socket_lock);
    if (!unbound) {
        hot_key_socket = xcb_get_file_descriptor(connection);
    }
    return !unbound;
}

void served() {
    const std::lock_guard guard(socket_lock);
    hot_key_socket = -1;
}

struct Binding {
    std::string display;
    void (*callback)();
};

void run_hot_key(const Binding& binding) {
    pthread_setname_np(pthread_self(), kThreadName);
    const Connection connection = connect(binding.display.c_str());
    Grabs grabs{connection.get(), {}, {}};
    bool taken = false;
    std::string failure;
    if (connection) {
        grabs.roots = root_windows(connection.get());
        taken = take(grabs);
        failure = !taken ? kRefused : grabs.combinations.empty() ? "no key of the keyboard makes F12" : "";
    } else {
        failure = "the X server of display " + binding.display + " cannot be reached, or refuses";
    }
    settled.release();
    announced.acquire();
    if (!failure.empty()) {
        report_no_hot_key(failure);
    }
    if (taken && may_serve(connection.get())) {
        if (hot_key_thread.attach(kThreadName)) {
            serve(grabs, binding.callback);
            hot_key_thread.detach();
        }
        served();
    }
}

void* hot_key_thread_main(void* argument) {
    const std::unique_ptr<Binding> binding(static_cast<Binding*>(argument));
    run_hot_key(*binding);
    return NULL;
}

// Starts the thread, which takes no signal that is meant for the process. Returns false where there is none to be had.
bool start_hot_key_thread(Binding binding) {
    auto argument = std::make_unique<Binding>(std::move(binding));
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    pthread_t thread;
    const bool started = pthread_create(&thread, NULL, hot_key_thread_main, argument.get()) == 0;
    pthread_sigmask(SIG_SETMASK, &before, NULL);
    if (started) {
        (void)argument.release();  // the thread's now
        pthread_detach(thread);
    }
    return started;
}

}  // namespace

void setHotKeyThread(HotKeyThread thread) {
    hot_key_thread = thread;
}

void bindMacHotKey(void (*callback)()) {
    const char* display = getenv("DISPLAY");
    const bool has_display = display != NULL && *display != '\0';
    const bool started = has_display && start_hot_key_thread({display, callback});
    if (started) {
        // A display that hangs must not hang the VM: the thread goes on alone.
        (void)settled.try_acquire_for(kPatience);
    }
    announceHotKey();
    fprintf(stderr, "vantrel-agent: on this platform the hot key is Control+F12.\n");
    if (started) {
        announced.release();
    } else {
        report_no_hot_key(has_display ? "no thread can be started" : "DISPLAY is not set");
    }
}

void unbindMacHotKey() {
    const std::lock_guard guard(socket_lock);
    unbound = true;
    if (hot_key_socket != -1) {
        // The server takes the end of the connection for that of its client and drops its grabs; the thread, wherever
        // it is, finds no further event.
        shutdown(hot_key_socket, SHUT_RDWR);
    }
}

bool isHotKeyModifierHeld() {
    // Kept for the life of the process, and never closed, since any thread may be in here when that ends.
    static xcb_connection_t* const connection = connect(NULL).release();
    if (connection == NULL) {
        return false;
    }
    // Both requests leave together and are answered together: one round trip, and no table that may be out of date.
    const auto keys_request = xcb_query_keymap(connection);
    const auto modifiers_request = xcb_get_modifier_mapping(connection);
    const Owned<xcb_query_keymap_reply_t> down(xcb_query_keymap_reply(connection, keys_request, NULL));
    const Owned<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(connection, modifiers_request, NULL));
    // Changed key tables are announced to every client, whether it asked or not.
    while (Owned<xcb_generic_event_t>(xcb_poll_for_queued_event(connection))) {
    }
    if (!down || !modifiers) {
        return false;
    }
    const std::vector<xcb_keycode_t> controls = keys_of_modifier(*modifiers, XCB_MAP_INDEX_CONTROL);
    // A bit for each key code, eight in a byte.
    return std::any_of(controls.begin(), controls.end(),
                       [&](unsigned key) { return (down->keys[key / 8] >> (key % 8) & 1U) != 0; });
}
