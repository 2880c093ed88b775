// A progress bar on a terminal.
#ifndef VANTREL_REWRITE_PROGRESS_H
#define VANTREL_REWRITE_PROGRESS_H

#include <chrono>
#include <cstddef>
#include <mutex>

namespace vantrel_rewrite {

// A line on stderr, if that is a terminal, that tells how many of the classes are done.
class Progress {
  public:
    explicit Progress(size_t total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // One more is done. Any thread may say so.
    void step();

    // Takes the line away, so that others can be written.
    void clear() const;

  private:
    void draw();

    std::mutex mutex_;
    const size_t total_;
    const bool shown_;
    size_t done_ = 0;
    std::chrono::steady_clock::time_point drawn_;
};

}  // namespace vantrel_rewrite

#endif
