#include "whole_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>

#include "descriptor.h"
#include "failure.h"

namespace fs = std::filesystem;

namespace outside {

namespace {

[[noreturn]] void fail(const char* what, const fs::path& file) {
    throw command::Failure{std::string(what) + " " + file.string() + ": " + strerror(errno)};
}

void write_all(int descriptor, const std::string& bytes, const fs::path& file) {
    for (size_t done = 0; done < bytes.size();) {
        const ssize_t more = write(descriptor, bytes.data() + done, bytes.size() - done);
        if (more < 0 && errno != EINTR) {
            fail("cannot write", file);
        }
        done += more > 0 ? static_cast<size_t>(more) : 0;
    }
}

// Removes a file that has not become another one.
class Removed {
  public:
    explicit Removed(fs::path file) : file_(std::move(file)) {}
    ~Removed() {
        if (!file_.empty()) {
            unlink(file_.c_str());
        }
    }
    Removed(const Removed&) = delete;
    Removed& operator=(const Removed&) = delete;
    void keep() { file_.clear(); }

  private:
    fs::path file_;
};

}  // namespace

void write_whole(const fs::path& file, const std::string& bytes) {
    std::error_code error;
    const fs::path target = fs::weakly_canonical(file, error);
    if (fs::exists(target, error) && !fs::is_regular_file(target, error)) {
        std::ofstream stream(target, std::ios::binary);
        stream << bytes;
        stream.close();
        if (!stream) {
            fail("cannot write", file);
        }
        return;
    }
    std::string name = target.string() + ".XXXXXX";
    const Descriptor made(mkstemp(name.data()));
    if (made.number() < 0) {
        fail("cannot write", file);
    }
    Removed removed(name);
    // As a new file would have it: only the user can read what mkstemp makes.
    const mode_t mask = umask(0);
    umask(mask);
    fchmod(made.number(), 0666 & ~mask);
    write_all(made.number(), bytes, file);
    if (rename(name.c_str(), target.c_str()) != 0) {
        fail("cannot write", file);
    }
    removed.keep();
}

std::string read_whole(const fs::path& file) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream bytes;
    if (stream.peek() != std::ifstream::traits_type::eof()) {
        bytes << stream.rdbuf();
    }
    if (!stream.is_open() || stream.bad() || errno == EISDIR) {
        fail("cannot read", file);
    }
    return std::move(bytes).str();
}

}  // namespace outside
