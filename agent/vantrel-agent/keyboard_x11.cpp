// The keyboard under X11. The hot key has two threads of its own:
//
//     vantrel-x11      holds the connection with the grabs and waits for presses. It never enters the VM, so that it
//                      can pass presses on to other programs even while a debugger holds this one.
//     vantrel-hotkey   is attached to the VM as a daemon and runs the callback, once for each press.
//
// What both share with bindMacHotKey and unbindMacHotKey is a Binding; each of them keeps it for as long as it needs
// it.
#include <pthread.h>
#include <sys/socket.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <semaphore>
#include <string>
#include <utility>

#include "keyboard.h"
#include "x11/agents.h"
#include "x11/connection.h"
#include "x11/grabs.h"
#include "x11/hot_key.h"
#include "x11/key_repeat.h"

namespace {

using x11::Owned;

constexpr const char* kConnectionThread = "vantrel-x11";
constexpr const char* kCallbackThread = "vantrel-hotkey";

// How long bindMacHotKey waits for the display. One that answers does so in a few milliseconds.
constexpr auto kPatience = std::chrono::milliseconds(500);

constexpr const char* kNoThread = "no thread can be started";

void report_no_hot_key(const std::string& reason) {
    fprintf(stderr, "vantrel-agent: no hot key: %s.\n", reason.c_str());
}

struct Binding {
    std::string display;
    x11::HotKey hot_key;
    void (*callback)();
    HotKeyThread vm;

    std::binary_semaphore settled{0};    // the connection's thread has its grabs, or knows why not
    std::binary_semaphore announced{0};  // bindMacHotKey has said what it has to say
    std::binary_semaphore attached{0};   // the callback's thread has asked the VM
    bool let_in = false;                 // what the VM said to that
    std::string said;                    // why there is no hot key, as bindMacHotKey has told it

    std::counting_semaphore<> presses{0};  // that the callback has not run for yet
    std::atomic<bool> ended = false;       // there will be no more of them

    std::mutex socket_lock;  // held for moments only, and never in the VM
    int socket = -1;         // the connection's; -1 while there is none that unbindMacHotKey may end
    bool unbound = false;
};
using BindingPtr = std::shared_ptr<Binding>;

std::string server_of(const Binding& binding) {
    return "the X server of display " + binding.display;
}

// Starts a thread of ours, which takes no signal that is meant for the process. Returns false where there is none to be
// had.
bool start_thread(void (*run)(const BindingPtr&), const char* name, const BindingPtr& binding) {
    struct Start {
        void (*run)(const BindingPtr&);
        const char* name;
        BindingPtr binding;
    };
    auto start = std::make_unique<Start>(Start{run, name, binding});
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    pthread_t thread;
    const auto main = [](void* argument) -> void* {
        const std::unique_ptr<Start> own(static_cast<Start*>(argument));
        pthread_setname_np(pthread_self(), own->name);
        own->run(own->binding);
        return NULL;
    };
    const bool started = pthread_create(&thread, NULL, main, start.get()) == 0;
    pthread_sigmask(SIG_SETMASK, &before, NULL);
    if (started) {
        (void)start.release();  // the thread's now
        pthread_detach(thread);
    }
    return started;
}

// The thread that runs the callback.
void run_presses(const BindingPtr& binding) {
    binding->let_in = binding->vm.attach(kCallbackThread);
    const bool let_in = binding->let_in;
    binding->attached.release();
    if (!let_in) {
        return;
    }
    for (binding->presses.acquire(); !binding->ended; binding->presses.acquire()) {
        binding->callback();
    }
    binding->vm.detach();
}

void end_presses(Binding& binding) {
    binding.ended = true;
    binding.presses.release();
}

// The hot key on one connection: whether we have it, and what was said about that.
struct HotKeyOnDisplay {
    x11::Grabs grabs;
    x11::Agents agents;
    x11::Taking outcome;
    std::string said;  // the reason for which there is no hot key, as stderr has it; empty while there is none
};

// Takes the hot key if it is to be had.
void take_hot_key(HotKeyOnDisplay& key) {
    x11::set_standing(key.agents, x11::Standing::trying);
    key.outcome = x11::take(key.grabs);
    if (key.outcome == x11::Taking::refused) {
        // Whoever had it a moment ago may have ended before the server began to tell us.
        (void)x11::look_at_others(key.agents);
        key.outcome = x11::take(key.grabs);
    }
    const bool taken = key.outcome == x11::Taking::taken;
    x11::set_standing(key.agents, taken ? x11::Standing::has_it : x11::Standing::has_not);
}

// Says on stderr what has changed since the last time. Where another agent has the key there is one: that agent passes
// our presses on, and we take the key over when it ends.
void report(HotKeyOnDisplay& key) {
    std::string reason = x11::reason(key.outcome, key.grabs.hot_key);
    if (key.outcome == x11::Taking::refused) {
        const x11::Standing others = x11::look_at_others(key.agents);
        if (others == x11::Standing::trying) {
            return;  // it will tell us what comes of it
        }
        if (others == x11::Standing::has_it) {
            reason.clear();
        }
    }
    if (reason == key.said) {
        return;
    }
    if (!reason.empty()) {
        report_no_hot_key(reason);
    } else {
        fprintf(stderr, "vantrel-agent: %s is the hot key now.\n", key.grabs.hot_key.name.c_str());
    }
    key.said = reason;
}

// Counts presses until the connection ends.
void serve(HotKeyOnDisplay& key, Binding& binding) {
    x11::KeyRepeat repeat;
    while (const Owned<xcb_generic_event_t> event{xcb_wait_for_event(key.grabs.connection)}) {
        if (x11::is_passed_on(key.agents, *event)) {
            binding.presses.release();
            continue;
        }
        if (x11::ends_another(*event)) {
            take_hot_key(key);
            report(key);
            continue;
        }
        if (x11::changes_another(key.agents, *event)) {
            report(key);
            continue;
        }
        switch (x11::kind_of(*event)) {
            case XCB_KEY_PRESS: {
                const auto& press = reinterpret_cast<const xcb_key_press_event_t&>(*event);
                if (x11::is_hot_key(key.grabs, press) && repeat.is_new_press(press) &&
                    x11::take_or_pass_on(key.agents)) {
                    binding.presses.release();
                }
                break;
            }
            case XCB_KEY_RELEASE:
                repeat.release(reinterpret_cast<const xcb_key_release_event_t&>(*event));
                break;
            case XCB_MAPPING_NOTIFY:
                take_hot_key(key);
                report(key);
                break;
            default:
                break;
        }
    }
}

// Makes the connection known to unbindMacHotKey. Returns false if that has been called already.
bool let_unbind_end(Binding& binding, xcb_connection_t* connection) {
    const std::lock_guard guard(binding.socket_lock);
    if (!binding.unbound) {
        binding.socket = xcb_get_file_descriptor(connection);
    }
    return !binding.unbound;
}

// From here on the socket's number may be another file's.
void forget_socket(Binding& binding) {
    const std::lock_guard guard(binding.socket_lock);
    binding.socket = -1;
}

// Serves the hot key on a connection until that ends.
void serve_on(xcb_connection_t* connection, const BindingPtr& binding) {
    HotKeyOnDisplay key{{connection, binding->hot_key, x11::root_windows(connection), {}},
                        x11::join_agents(connection, binding->hot_key),
                        x11::Taking::no_answer,
                        ""};
    take_hot_key(key);
    binding->settled.release();
    binding->announced.acquire();
    key.said = binding->said;
    report(key);
    if (!let_unbind_end(*binding, connection)) {
        return;
    }
    if (!start_thread(run_presses, kCallbackThread, binding)) {
        report_no_hot_key(kNoThread);
    } else {
        binding->attached.acquire();
        if (binding->let_in) {
            serve(key, *binding);
            end_presses(*binding);
        } else {
            report_no_hot_key("the VM refuses its thread");
        }
    }
    forget_socket(*binding);
}

// The thread that has the connection.
void run_connection(const BindingPtr& binding) {
    const x11::Connection connection = x11::connect(binding->display.c_str());
    if (connection) {
        serve_on(connection.get(), binding);
        return;
    }
    binding->settled.release();
    binding->announced.acquire();
    report_no_hot_key(server_of(*binding) + " cannot be reached, or refuses");
}

// What bindMacHotKey has made last, for unbindMacHotKey. Never destroyed: at the end of the process threads may still
// be in here.
struct Current {
    std::mutex lock;
    BindingPtr binding;
};
Current& current() {
    static auto* const current = new Current;
    return *current;
}

HotKeyThread hot_key_thread;

}  // namespace

void setHotKeyThread(HotKeyThread thread) {
    hot_key_thread = thread;
}

void bindMacHotKey(void (*callback)()) {
    const char* display = getenv("DISPLAY");
    const bool has_display = display != NULL && *display != '\0';
    const auto binding = std::make_shared<Binding>();
    binding->display = has_display ? display : "";
    binding->hot_key = x11::hot_key_named(getenv("VANTREL_HOT_KEY"));
    binding->callback = callback;
    binding->vm = hot_key_thread;
    const bool started = has_display && start_thread(run_connection, kConnectionThread, binding);
    // A display that hangs must not hang the VM: the thread goes on alone.
    const bool settled = started && binding->settled.try_acquire_for(kPatience);

    announceHotKey();
    fprintf(stderr, "vantrel-agent: on this platform the hot key is %s.\n", binding->hot_key.name.c_str());
    if (!settled) {
        binding->said = !has_display ? "DISPLAY is not set"
                        : !started   ? kNoThread
                                     : server_of(*binding) + " does not answer";
        report_no_hot_key(binding->said);
    }
    binding->announced.release();
    const std::lock_guard guard(current().lock);
    current().binding = binding;
}

void unbindMacHotKey() {
    BindingPtr binding;
    {
        const std::lock_guard guard(current().lock);
        binding.swap(current().binding);
    }
    if (!binding) {
        return;
    }
    const std::lock_guard guard(binding->socket_lock);
    binding->unbound = true;
    if (binding->socket != -1) {
        // The server takes the end of the connection for that of its client and drops its grabs; the threads, wherever
        // they are, find no further event.
        shutdown(binding->socket, SHUT_RDWR);
    }
}

bool isHotKeyModifierHeld() {
    // Kept for the life of the process, and never closed, since any thread may be in here when that ends.
    static xcb_connection_t* const connection = x11::connect(NULL).release();
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
    const auto controls = x11::keys_of_modifier(*modifiers, XCB_MAP_INDEX_CONTROL);
    // A bit for each key code, eight in a byte.
    return std::any_of(controls.begin(), controls.end(),
                       [&](unsigned key) { return (down->keys[key / 8] >> (key % 8) & 1U) != 0; });
}
