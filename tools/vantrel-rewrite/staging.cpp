#include "staging.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <string>
#include <string_view>
#include <system_error>

#include "arguments.h"
#include "failure.h"
#include "standard_output.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

constexpr std::string_view kPrefix = ".vantrel-rewrite-";

[[noreturn]] void fail(const fs::path& target, const std::error_code& error) {
    throw command::Failure{"cannot write " + target.string() + ": " + error.message()};
}

// The process that a hidden folder's name tells of; 0 for other names.
pid_t process_of(std::string_view name) {
    pid_t process = 0;
    if (name.starts_with(kPrefix)) {
        name.remove_prefix(kPrefix.size());
        const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), process);
        if (error != std::errc() || end == name.data() + name.size() || *end != '-') {
            return 0;
        }
    }
    return process;
}

// A lock on a folder that ends with the process, however that ends; -1 if another process has it.
int lock(const fs::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        close(descriptor);
        return -1;
    }
    return descriptor;
}

// Removes the hidden folders that killed processes have left behind. A process in another container or on another
// machine may look dead, but it still has its lock. Where a file system has no locks, nothing is removed.
void remove_abandoned(const fs::path& parent) {
    std::error_code ignored;
    for (fs::directory_iterator entry(parent, ignored), end; !ignored && entry != end; entry.increment(ignored)) {
        const pid_t process = process_of(entry->path().filename().string());
        struct stat state {};
        if (process <= 0 || kill(process, 0) == 0 || errno != ESRCH || lstat(entry->path().c_str(), &state) != 0 ||
            !S_ISDIR(state.st_mode) || state.st_uid != geteuid()) {
            continue;
        }
        if (const int held = lock(entry->path()); held >= 0) {
            std::error_code left;
            fs::remove_all(entry->path(), left);
            close(held);
        }
    }
}

// Gives a new file the permissions of the old one and, if this process may give files away, its owner. A program that
// runs as its owner must not become one that runs as another one.
void take_over(const fs::path& from, const fs::path& to) {
    struct stat old {};
    if (stat(from.c_str(), &old) == 0 && S_ISREG(old.st_mode)) {
        constexpr mode_t kPermissions = 0777;
        constexpr mode_t kAll = 07777;
        const bool is_owners = chown(to.c_str(), old.st_uid, old.st_gid) == 0;
        if (!is_owners) {
            static_cast<void>(chown(to.c_str(), geteuid(), old.st_gid) == 0);  // the group at least, where it may
        }
        chmod(to.c_str(), old.st_mode & (is_owners ? kAll : kPermissions));
    }
}

}  // namespace

Staging::~Staging() {
    for (const HiddenFolder& folder : folders_) {
        std::error_code left_behind;  // nothing more can be done about it
        fs::remove_all(folder.path, left_behind);
        close(folder.lock);
    }
}

const Staging::HiddenFolder& Staging::hidden_folder_in(const fs::path& parent, const fs::path& target) {
    const auto known = std::find_if(folders_.begin(), folders_.end(),
                                    [&](const HiddenFolder& folder) { return folder.path.parent_path() == parent; });
    if (known != folders_.end()) {
        return *known;
    }
    remove_abandoned(parent);
    const std::string stem = std::string(kPrefix) + std::to_string(getpid()) + "-";
    constexpr mode_t kOnlyOurs = 0700;
    for (int number = 0;; ++number) {
        const fs::path path = parent / (stem + std::to_string(number));
        if (mkdir(path.c_str(), kOnlyOurs) == 0) {
            folders_.push_back({path, lock(path)});
            return folders_.back();
        }
        if (errno != EEXIST) {
            fail(target, std::error_code(errno, std::generic_category()));
        }
    }
}

NewFile Staging::stage(const fs::path& target) {
    const HiddenFolder& folder = hidden_folder_in(target.parent_path(), target);
    results_.push_back({folder.path / std::to_string(results_.size()), target});
    return results_.back();
}

NewFile Staging::stage_for_stdout() {
    std::error_code error;
    const fs::path parent = fs::temp_directory_path(error);
    if (error) {
        throw command::Failure{"TMPDIR names no folder for what goes to stdout: " + error.message()};
    }
    const HiddenFolder& folder = hidden_folder_in(parent, parent);
    results_.push_back({folder.path / std::to_string(results_.size()), kStdout});
    return results_.back();
}

void Staging::put_in_place() {
    for (const NewFile& result : results_) {
        if (result.final == kStdout) {
            standard_output::copy_file(result.path);
        }
    }
    for (const NewFile& result : results_) {
        if (result.final != kStdout) {
            take_over(result.final, result.path);
            std::error_code error;
            fs::rename(result.path, result.final, error);
            if (error) {
                fail(result.final, error);
            }
        }
    }
}

}  // namespace vantrel_rewrite
