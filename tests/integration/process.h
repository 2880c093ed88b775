// Running real programs in integration tests.
#ifndef VANTREL_PROCESS_H
#define VANTREL_PROCESS_H

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

// A folder of a test's own, removed with all that is in it at the end.
class ScratchFolder {
  public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    const std::filesystem::path path;
};

struct ProcessOptions {
    std::filesystem::path folder;          // the working folder; the test's own where empty
    std::vector<std::string> environment;  // NAME=VALUE, beside what the test itself has
};

// A child process with no standard input whose output is collected. Killed silently if it still runs when this is
// destroyed, and also when the test dies.
class Process {
  public:
    explicit Process(const std::vector<std::string>& command, const ProcessOptions& options = {});
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    // What was written so far.
    [[nodiscard]] std::string out() const;
    [[nodiscard]] std::string err() const;
    [[nodiscard]] pid_t id() const { return pid_; }

    void signal(int number) const;

    // The exit status, or 128 + the signal that ended it, as a shell tells it. A process that does not end in time
    // fails the test, is killed, and counts as -1.
    int wait(std::chrono::seconds limit = std::chrono::seconds(60));

    // Whether a condition came true while the process ran, tried often.
    bool reaches(const std::function<bool()>& condition, std::chrono::seconds limit = std::chrono::seconds(30));

  private:
    bool ended();

    ScratchFolder folder_;
    pid_t pid_ = -1;
    int status_ = 0;
    bool ended_ = false;
};

// A program that ran to its end.
struct Finished {
    int status;
    std::string out;
    std::string err;
};
Finished run(const std::vector<std::string>& command, const ProcessOptions& options = {});

// What a file holds; nothing where there is no file.
std::string contents(const std::filesystem::path& file);

// The lines of what a program wrote, without their ends.
std::vector<std::string> lines_of(const std::string& text);

#endif
