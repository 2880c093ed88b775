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

}  // namespace

void watch() {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        if (std::signal(number, remember) == SIG_IGN) {
            std::signal(number, SIG_IGN);  // a job in the background, or below nohup
        }
    }
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
