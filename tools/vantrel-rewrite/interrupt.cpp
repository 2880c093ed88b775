#include "interrupt.h"

#include <atomic>
#include <csignal>
#include <cstdlib>

namespace vantrel_rewrite::interrupt {

namespace {

std::atomic<int> received{0};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler writes it");

void remember(int number) {
    received = number;
}

void watch_for(int number) {
    struct sigaction action {};
    struct sigaction before {};
    action.sa_handler = remember;  // without SA_RESTART, so that a call that waits for a pipe returns
    sigemptyset(&action.sa_mask);
    // A signal that is ignored, as in a background job or under nohup, stays ignored.
    if (sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN) {
        sigaction(number, &action, nullptr);
    }
}

// All signals that end a process, except KILL and those that report a fault of the process. The real-time signals,
// which have no constants, are in watch().
constexpr int kEnding[] = {
    SIGHUP, SIGINT, SIGQUIT,   SIGUSR1, SIGUSR2, SIGALRM, SIGTERM, SIGXCPU, SIGVTALRM, SIGPROF,
#ifdef __linux__
    SIGIO,  SIGPWR, SIGSTKFLT,
#endif
};

}  // namespace

void watch() {
    for (const int number : kEnding) {
        watch_for(number);
    }
#ifdef __linux__
    for (int number = SIGRTMIN; number <= SIGRTMAX; ++number) {
        watch_for(number);
    }
#endif
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

bool requested() {
    return received != 0;
}

void check() {
    if (requested()) {
        throw Interrupted{};
    }
}

void end_by_signal() {
    std::signal(received, SIG_DFL);
    std::raise(received);
    std::abort();  // not reached
}

}  // namespace vantrel_rewrite::interrupt
