#include "file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "failure.h"
#include "interrupt.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

constexpr size_t kBlock = size_t{1} << 16;

[[noreturn]] void fail(const char* what, const fs::path& path) {
    const int error = errno;
    throw command::Failure{std::string("cannot ") + what + " " + path.string() + ": " +
                           std::generic_category().message(error)};
}

struct stat state_of(int descriptor, const fs::path& path) {
    struct stat state {};
    if (fstat(descriptor, &state) != 0) {
        fail("read", path);
    }
    return state;
}

}  // namespace

BytesView bytes_of(std::string_view text) {
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

InputFile::InputFile(const fs::path& path) : path_(path), descriptor_(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0) {
        fail("read", path_);
    }
}

InputFile::~InputFile() {
    ::close(descriptor_);
}

size_t InputFile::read_at(off_t position, unsigned char* to, size_t size) const {
    size_t count = 0;
    while (count < size) {
        const ssize_t now = pread(descriptor_, to + count, size - count, position + static_cast<off_t>(count));
        if (now < 0 && errno != EINTR) {
            fail("read", path_);
        }
        if (now == 0) {
            break;
        }
        count += now > 0 ? static_cast<size_t>(now) : 0;
    }
    return count;
}

Bytes InputFile::read(off_t position, size_t at_most) const {
    const off_t rest = std::max<off_t>(size() - position, 0);
    Bytes bytes(std::min(at_most, static_cast<size_t>(rest)));
    bytes.resize(read_at(position, bytes.data(), bytes.size()));
    return bytes;
}

off_t InputFile::size() const {
    return state_of(descriptor_, path_).st_size;
}

mode_t InputFile::permissions() const {
    return state_of(descriptor_, path_).st_mode & 0777;
}

OutputFile::OutputFile(const NewFile& file, mode_t permissions)
    : final_(file.final), descriptor_(open(file.path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions)) {
    if (descriptor_ < 0) {
        fail("write", final_);
    }
}

OutputFile::~OutputFile() {
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

void OutputFile::write(BytesView bytes) {
    write_at(end_, bytes);
}

void OutputFile::write_at(off_t position, BytesView bytes) {
    while (!bytes.empty()) {
        const ssize_t now = pwrite(descriptor_, bytes.data(), bytes.size(), position);
        if (now < 0 && errno != EINTR) {
            fail("write", final_);
        }
        if (now > 0) {
            bytes = bytes.subspan(static_cast<size_t>(now));
            position += now;
        }
    }
    end_ = std::max(end_, position);
}

void OutputFile::close() {
    const int descriptor = descriptor_;
    descriptor_ = -1;
    if (::close(descriptor) != 0) {
        fail("write", final_);
    }
}

Bytes read_file(const fs::path& path) {
    const InputFile file(path);
    return file.read(0, static_cast<size_t>(file.size()));
}

void copy_whole_file(const fs::path& from, const NewFile& to) {
    const InputFile input(from);
    OutputFile output(to, input.permissions());
    Bytes block(kBlock);
    off_t position = 0;
    while (const size_t count = input.read_at(position, block.data(), block.size())) {
        command::interrupt::check();
        output.write({block.data(), count});
        position += static_cast<off_t>(count);
    }
    output.close();
}

}  // namespace vantrel_rewrite
