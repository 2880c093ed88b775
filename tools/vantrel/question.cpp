#include "question.h"

#include <fcntl.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

#include "attach.h"
#include "descriptor.h"
#include "failure_with_status.h"
#include "statuses.h"

namespace fs = std::filesystem;
using launch::FailureWithStatus;

namespace outside {

namespace {

constexpr std::chrono::milliseconds kToTakeIt(2900);

// A folder that only the user can read. Removed with what is in it.
class PrivateFolder {
  public:
    explicit PrivateFolder(const fs::path& parent) : parent_(open(parent.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
        // The way to a program's folders ends with the program, but for whoever has one of them open.
        std::string name = "/proc/self/fd/" + std::to_string(parent_.number()) + "/vantrel-ask-XXXXXX";
        if (parent_.number() < 0 || mkdtemp(name.data()) == nullptr) {
            throw FailureWithStatus{"cannot make a folder in " + parent.string() + ": " + strerror(errno), kNoAnswer};
        }
        path_ = name;
    }
    ~PrivateFolder() {
        // The program may be about to put its answer there.
        std::error_code error;
        for (int tries = 0; tries < 3 && fs::exists(path_, error); ++tries) {
            fs::remove_all(path_, error);
        }
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    [[nodiscard]] const fs::path& path() const { return path_; }

  private:
    Descriptor parent_;
    fs::path path_;
};

void write_question(const fs::path& file, const std::vector<std::string>& words) {
    std::ofstream stream(file, std::ios::binary);
    for (const std::string& word : words) {
        stream << word << '\0';
    }
    stream.close();
    if (!stream) {
        throw FailureWithStatus{"cannot write " + file.string() + ": " + strerror(errno), kNoAnswer};
    }
}

fs::path companion_of(const Program& program) {
    fs::path jar = program.library.parent_path() / ("vantrel-" VANTREL_VERSION ".jar");
    if (!fs::exists(seen_by(program, jar))) {
        throw FailureWithStatus{label(program) + " has an agent of another version, " + program.library.string() +
                                    ", or that has been removed; ask with the vantrel that belongs to it",
                                kNoAnswer};
    }
    return jar;
}

void wait_for_answer(const Program& program, const fs::path& folder, Deadline deadline) {
    while (!fs::exists(folder / "answer")) {
        if (has_ended(program.id) && !fs::exists(folder / "answer")) {
            throw FailureWithStatus{label(program) + " has ended", kNoAnswer};
        }
        if (fs::exists(folder / "question") && std::chrono::steady_clock::now() > deadline) {
            throw FailureWithStatus{label(program) + " has not taken the question; its VM is busy", kNoAnswer};
        }
        pause_between_looks();
    }
}

}  // namespace

std::string ask(const Program& program, const std::vector<std::string>& words) {
    const Deadline deadline = std::chrono::steady_clock::now() + kToTakeIt;
    const fs::path jar = companion_of(program);
    const PrivateFolder folder(seen_by(program, "/tmp"));
    write_question(folder.path() / "question", words);
    load_jar(program, jar, "/tmp/" + folder.path().filename().string(), deadline);
    wait_for_answer(program, folder.path(), deadline);

    std::ifstream file(folder.path() / "answer", std::ios::binary);
    int status = kNoAnswer;
    file >> status;
    file.get();  // the line's end
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (status != kAnswered) {
        throw FailureWithStatus{label(program) + ": " + bytes, status};
    }
    return bytes;
}

}  // namespace outside
