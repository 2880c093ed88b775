// Binds the hot key without a VM, says on stdout what becomes of it, and gives it back on SIGTERM. A second SIGTERM
// ends it. SIGUSR1 makes the X server's answers about the keyboard fail, and the next one makes them arrive again.
//
//     hot-key-probe            counts presses
//     hot-key-probe refuse     the thread is not let into the VM
//     hot-key-probe block      a press is never done with
//     hot-key-probe twice      binds once more when it was to end
//     hot-key-probe hasty      unbinds without asking for the modifier before
#include <malloc.h>
#include <pthread.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <string>
#include <utility>

#include "keyboard.h"
#include "x11/xcb.h"

namespace {

std::string mode;
int presses = 0;
std::atomic<bool> deaf = false;
volatile sig_atomic_t signal_taken = 0;

void say(const std::string& line) {
    puts(line.c_str());
    fflush(stdout);
}

void on_press() {
    say("press " + std::to_string(++presses));
    while (mode == "block") {
        pause();
    }
}

bool attach(const char* name) {
    char own_name[16];
    pthread_getname_np(pthread_self(), own_name, sizeof own_name);
    say(std::string("attached as ") + name + ", running as " + own_name);
    return mode != "refuse";
}

void detach() {
    say("detached");
}

// Asks for the modifier, and complains if what the server has told meanwhile is kept.
void ask_for_modifier() {
    constexpr size_t kMuch = 8'000;
    const size_t before = mallinfo2().uordblks;
    say(isHotKeyModifierHeld() ? "modifier held" : "modifier not held");
    if (mallinfo2().uordblks > before + kMuch) {
        say("events pile up");
    }
}

void unbind() {
    // One of these gets the number of a connection that has ended.
    int pairs[4][2];
    for (auto& pair : pairs) {
        socketpair(AF_UNIX, SOCK_STREAM, 0, pair);
    }
    unbindMacHotKey();
    say("unbound");
    for (auto& pair : pairs) {
        if (send(pair[0], "x", 1, MSG_NOSIGNAL) != 1 || send(pair[1], "x", 1, MSG_NOSIGNAL) != 1) {
            say("somebody else's socket was ended");
        }
    }
}

decltype(xcb::get_keyboard_mapping_reply) real_mapping_reply = nullptr;

xcb_get_keyboard_mapping_reply_t* mapping_reply(xcb_connection_t* connection, xcb_get_keyboard_mapping_cookie_t cookie,
                                                xcb_generic_error_t** error) {
    xcb_get_keyboard_mapping_reply_t* reply = real_mapping_reply(connection, cookie, error);
    if (deaf) {
        free(reply);
        return nullptr;
    }
    return reply;
}

}  // namespace

int main(int argument_count, char** arguments) {
    mode = argument_count > 1 ? arguments[1] : "";
    sigset_t awaited;
    sigemptyset(&awaited);
    sigaddset(&awaited, SIGTERM);
    sigaddset(&awaited, SIGUSR1);
    pthread_sigmask(SIG_BLOCK, &awaited, nullptr);
    signal(SIGUSR2, [](int) { signal_taken = 1; });

    if (xcb::load()) {
        real_mapping_reply = std::exchange(xcb::get_keyboard_mapping_reply, mapping_reply);
    }
    setHotKeyVmAttachment({attach, detach});
    const auto start = std::chrono::steady_clock::now();
    bindMacHotKey(on_press);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    say(taken.count() < 2 ? "bound in time" : "bound too long");

    // This thread does not take the signal; those that the keyboard has made must not either.
    sigset_t other;
    sigemptyset(&other);
    sigaddset(&other, SIGUSR2);
    pthread_sigmask(SIG_BLOCK, &other, nullptr);
    kill(getpid(), SIGUSR2);

    int number = 0;
    while (sigwait(&awaited, &number) == 0 && number == SIGUSR1) {
        deaf = !deaf;
        isHotKeyModifierHeld();  // connects, the first time
        say(deaf ? "deaf" : "hears");
    }
    if (signal_taken != 0) {
        say("a signal was taken");
    }
    if (mode != "hasty") {
        ask_for_modifier();
    }
    unbind();
    if (mode == "twice") {
        bindMacHotKey(on_press);
    }
    sigwait(&awaited, &number);
    return 0;
}
