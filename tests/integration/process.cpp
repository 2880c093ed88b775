#include "process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <sstream>
#include <thread>

namespace fs = std::filesystem;
using std::chrono::steady_clock;

namespace {

// To try a condition may be costly; to ask whether a process has ended is not.
constexpr auto kTryInterval = std::chrono::milliseconds(20);
constexpr auto kEndInterval = std::chrono::milliseconds(2);

fs::path new_folder() {
    std::string name = testing::TempDir() + "vantrel-XXXXXX";
    EXPECT_NE(mkdtemp(name.data()), nullptr);
    return name;
}

[[noreturn]] void become(const std::vector<std::string>& command, const ProcessOptions& options,
                         const fs::path& output) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const rlimit no_core{0, 0};  // assertions are meant to fail here
    setrlimit(RLIMIT_CORE, &no_core);
    for (const std::string& variable : options.environment) {
        const size_t equals = variable.find('=');
        setenv(variable.substr(0, equals).c_str(), variable.substr(equals + 1).c_str(), 1);
    }
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(creat((output / "out").c_str(), 0600), STDOUT_FILENO);
    dup2(creat((output / "err").c_str(), 0600), STDERR_FILENO);
    if (!options.folder.empty()) {
        fs::current_path(options.folder);
    }
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    execvp(arguments[0], arguments.data());
    perror(arguments[0]);
    _exit(127);
}

}  // namespace

ScratchFolder::ScratchFolder() : path(new_folder()) {}

ScratchFolder::~ScratchFolder() {
    fs::remove_all(path);
}

Process::Process(const std::vector<std::string>& command, const ProcessOptions& options) : pid_(fork()) {
    if (pid_ == 0) {
        become(command, options, folder_.path);
    }
}

Process::~Process() {
    if (!ended()) {
        signal(SIGKILL);
        waitpid(pid_, &status_, 0);
    }
}

std::string Process::out() const {
    return contents(folder_.path / "out");
}

std::string Process::err() const {
    return contents(folder_.path / "err");
}

void Process::signal(int number) const {
    kill(pid_, number);
}

bool Process::ended() {
    if (!ended_) {
        ended_ = waitpid(pid_, &status_, WNOHANG) == pid_;
    }
    return ended_;
}

int Process::wait(std::chrono::seconds limit) {
    const auto deadline = steady_clock::now() + limit;
    while (!ended()) {
        if (steady_clock::now() > deadline) {
            ADD_FAILURE() << "not ended after " << limit.count() << " s; it wrote:\n" << out() << err();
            signal(SIGKILL);
            waitpid(pid_, &status_, 0);
            ended_ = true;
            return -1;
        }
        std::this_thread::sleep_for(kEndInterval);
    }
    return WIFEXITED(status_) ? WEXITSTATUS(status_) : 128 + WTERMSIG(status_);
}

bool Process::reaches(const std::function<bool()>& condition, std::chrono::seconds limit) {
    const auto deadline = steady_clock::now() + limit;
    while (!condition()) {
        if (ended() || steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(kTryInterval);
    }
    return true;
}

Finished run(const std::vector<std::string>& command, const ProcessOptions& options) {
    Process process(command, options);
    const int status = process.wait();
    return {status, process.out(), process.err()};
}

std::string contents(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}
