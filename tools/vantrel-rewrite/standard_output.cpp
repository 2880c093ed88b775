#include "standard_output.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "failure.h"
#include "file_io.h"
#include "interrupt.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite::standard_output {

namespace {

int reserved = -1;

[[noreturn]] void fail() {
    throw command::Failure{"cannot write to stdout: " + std::generic_category().message(errno)};
}

void write_all(int descriptor, BytesView bytes) {
    while (!bytes.empty()) {
        const ssize_t now = ::write(descriptor, bytes.data(), bytes.size());
        if (now < 0 && errno != EINTR) {
            fail();
        }
        command::interrupt::check();  // a pipe that nobody reads can take for ever
        bytes = bytes.subspan(now > 0 ? static_cast<size_t>(now) : 0);
    }
}

}  // namespace

void reserve() {
    reserved = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (reserved < 0 || dup2(STDERR_FILENO, STDOUT_FILENO) < 0) {
        fail();
    }
}

void copy_file(const fs::path& from) {
    constexpr size_t kBlock = size_t{1} << 16;
    const InputFile file(from);
    Bytes block(kBlock);
    off_t position = 0;
    while (const size_t count = file.read_at(position, block.data(), block.size())) {
        write_all(reserved, {block.data(), count});
        position += static_cast<off_t>(count);
    }
    if (::close(reserved) != 0) {
        fail();
    }
}

void print(std::string_view text) {
    write_all(STDOUT_FILENO, bytes_of(text));
}

}  // namespace vantrel_rewrite::standard_output
