// Binds the hot key without a VM, says on stdout what becomes of it, and gives it back on SIGTERM. A second
// SIGTERM ends it.
//
//     hot-key-probe            counts presses
//     hot-key-probe refuse     the thread is not let into the VM
//     hot-key-probe block      a press is never done with
#include <pthread.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <string>

#include "keyboard.h"

namespace {

std::string mode;
int presses = 0;

void on_press() {
    printf("press %d\n", ++presses);
    fflush(stdout);
    while (mode == "block") {
        pause();
    }
}

}  // namespace

int main(int argument_count, char** arguments) {
    mode = argument_count > 1 ? arguments[1] : "";
    sigset_t term;
    sigemptyset(&term);
    sigaddset(&term, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &term, nullptr);

    setHotKeyThread({.attach =
                         [](const char* name) {
                             char own_name[16];
                             pthread_getname_np(pthread_self(), own_name, sizeof own_name);
                             printf("attached as %s, running as %s\n", name, own_name);
                             fflush(stdout);
                             return mode != "refuse";
                         },
                     .detach =
                         [] {
                             puts("detached");
                             fflush(stdout);
                         }});
    const auto start = std::chrono::steady_clock::now();
    bindMacHotKey(on_press);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    printf("bound in %s\n", taken.count() < 2 ? "time" : "too long");
    fflush(stdout);

    int signal = 0;
    sigwait(&term, &signal);
    printf("modifier %s\n", isHotKeyModifierHeld() ? "held" : "not held");
    unbindMacHotKey();
    puts("unbound");
    fflush(stdout);
    sigwait(&term, &signal);
    return 0;
}
