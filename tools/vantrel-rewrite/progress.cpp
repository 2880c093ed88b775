#include "progress.h"

#include <unistd.h>

#include <cstdio>
#include <string>

namespace vantrel_rewrite {

namespace {

constexpr auto kInterval = std::chrono::milliseconds(100);
constexpr size_t kWidth = 30;

}  // namespace

Progress::Progress(size_t total) : total_(total), shown_(total > 0 && isatty(STDERR_FILENO) != 0) {
    if (shown_) {
        draw();
    }
}

Progress::~Progress() {
    clear();
}

void Progress::step() {
    if (!shown_) {
        return;
    }
    const std::lock_guard lock(mutex_);
    ++done_;
    if (done_ == total_ || std::chrono::steady_clock::now() - drawn_ >= kInterval) {
        draw();
    }
}

void Progress::clear() const {
    if (shown_) {
        std::fputs("\r\033[K", stderr);
    }
}

void Progress::draw() {
    const std::string bar(done_ * kWidth / total_, '#');
    std::fprintf(stderr, "\r[%-*s] %3zu%%  %zu of %zu classes", static_cast<int>(kWidth), bar.c_str(),
                 done_ * 100 / total_, done_, total_);
    std::fflush(stderr);
    drawn_ = std::chrono::steady_clock::now();
}

}  // namespace vantrel_rewrite
