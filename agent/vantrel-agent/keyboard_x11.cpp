// The keyboard under X11. The hot key has two threads of its own:
//
//     vantrel-x11      has the connection to the server, holds the grabs and waits for presses. It never enters the VM,
//                      so it can pass presses on to other programs even while a debugger has stopped this one.
//     vantrel-hotkey   is attached to the VM as a daemon, and runs the callback once for each press.
//
// Both threads, bindMacHotKey and unbindMacHotKey share a Binding. It lives until the last of them needs it no more.
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
#include "x11/xcb.h"

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
    VmAttachment vm;

    std::binary_semaphore settled{0};    // released when vantrel-x11 has its grabs, or knows that it gets none
    std::binary_semaphore announced{0};  // released when bindMacHotKey has written its lines
    std::binary_semaphore attached{0};   // released when vantrel-hotkey has asked the VM to attach it
    bool is_attached = false;            // the VM's answer
    std::string said;                    // why there is no hot key, if bindMacHotKey has reported that; or else empty

    std::counting_semaphore<> presses{0};  // one for each press that the callback has not run for yet
    std::atomic<bool> ended = false;       // set before the last release of `presses`, which stands for no press

    std::mutex socket_lock;  // of the two below; held for moments only, and never while a thread is in the VM
    int socket = -1;         // the connection's, for unbindMacHotKey to shut down; -1 while it must not
    bool unbound = false;    // unbindMacHotKey has been called
};
using BindingPtr = std::shared_ptr<Binding>;

std::string server_of(const Binding& binding) {
    return "the X server of display " + binding.display;
}

// Starts a thread that takes no signals: those that come for the process are the program's. Returns false if there can
// be no further thread.
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
        (void)start.release();  // the thread owns it now
        pthread_detach(thread);
    }
    return started;
}

// The thread that runs the callback.
void run_presses(const BindingPtr& binding) {
    const bool is_attached = binding->vm.attach(kCallbackThread);
    binding->is_attached = is_attached;
    binding->attached.release();
    if (!is_attached) {
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

// The hot key on one connection: whether we have it, and what we have said about that.
struct HotKeyOnDisplay {
    x11::Grabs grabs;
    x11::Agents agents;
    x11::Taking outcome;
    std::string said;  // the reason that stderr was last given for there being no hot key; empty if there is one
};

// Tries to take the hot key, and tells the other agents whether that worked.
void take_hot_key(HotKeyOnDisplay& key) {
    x11::set_standing(key.agents, x11::Standing::trying);
    key.outcome = x11::take(key.grabs);
    if (key.outcome == x11::Taking::refused) {
        // Another agent has it. We want to hear when that one ends; and as it may have ended before we began to listen,
        // we try once more.
        (void)x11::look_at_others(key.agents);
        key.outcome = x11::take(key.grabs);
    }
    const bool taken = key.outcome == x11::Taking::taken;
    x11::set_standing(key.agents, taken ? x11::Standing::has_it : x11::Standing::has_not);
}

// Says on stderr what has changed since it was last said. If another agent has the key, that counts as having it: that
// agent passes our presses on to us, and when it ends we take the key over.
void report(HotKeyOnDisplay& key) {
    std::string reason = x11::reason(key.outcome, key.grabs.hot_key);
    if (key.outcome == x11::Taking::refused) {
        const x11::Standing others = x11::look_at_others(key.agents);
        if (others == x11::Standing::trying) {
            return;  // its standing will change in a moment, which calls this again
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
    while (const Owned<xcb_generic_event_t> event{xcb::wait_for_event(key.grabs.connection)}) {
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

// Lets unbindMacHotKey shut the connection's socket down. Returns false if unbindMacHotKey has already been called.
bool register_socket(Binding& binding, xcb_connection_t* connection) {
    const std::lock_guard guard(binding.socket_lock);
    if (!binding.unbound) {
        binding.socket = xcb::get_file_descriptor(connection);
    }
    return !binding.unbound;
}

// Undoes that. To be called before the connection is closed, because the socket's number may then become that of
// another file.
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
    if (!register_socket(*binding, connection)) {
        return;
    }
    if (!start_thread(run_presses, kCallbackThread, binding)) {
        report_no_hot_key(kNoThread);
    } else {
        binding->attached.acquire();
        if (binding->is_attached) {
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
    report_no_hot_key(xcb::load() ? server_of(*binding) + " cannot be reached, or refuses"
                                  : "libxcb.so.1 cannot be loaded");
}

// The binding that bindMacHotKey has made last, for unbindMacHotKey. Never destroyed, because threads may still use it
// while the process ends.
struct Current {
    std::mutex lock;
    BindingPtr binding;
};
Current& current() {
    static auto* const current = new Current;
    return *current;
}

VmAttachment vm_attachment;

}  // namespace

void setHotKeyVmAttachment(VmAttachment attachment) {
    vm_attachment = attachment;
}

void bindMacHotKey(void (*callback)()) {
    const char* display = getenv("DISPLAY");
    const bool has_display = display != NULL && *display != '\0';
    const auto binding = std::make_shared<Binding>();
    binding->display = has_display ? display : "";
    binding->hot_key = x11::hot_key_named(getenv("VANTREL_HOT_KEY"));
    binding->callback = callback;
    binding->vm = vm_attachment;
    const bool started = has_display && start_thread(run_connection, kConnectionThread, binding);
    // A display that hangs must not hang the VM: the thread goes on alone.
    const bool settled = started && binding->settled.try_acquire_for(kPatience);

    announceHotKey();
    if (has_display) {
        fprintf(stderr, "vantrel-agent: on this platform the hot key is %s.\n", binding->hot_key.name.c_str());
    }
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
    const auto keys_request = xcb::query_keymap(connection);
    const auto modifiers_request = xcb::get_modifier_mapping(connection);
    const Owned<xcb_query_keymap_reply_t> down(xcb::query_keymap_reply(connection, keys_request, NULL));
    const Owned<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb::get_modifier_mapping_reply(connection, modifiers_request, NULL));
    // Changed key tables are announced to every client, whether it asked or not.
    while (Owned<xcb_generic_event_t>(xcb::poll_for_queued_event(connection))) {
    }
    if (!down || !modifiers) {
        return false;
    }
    const auto controls = x11::keys_of_modifier(*modifiers, XCB_MAP_INDEX_CONTROL);
    // A bit for each key code, eight in a byte.
    return std::any_of(controls.begin(), controls.end(),
                       [&](unsigned key) { return (down->keys[key / 8] >> (key % 8) & 1U) != 0; });
}
