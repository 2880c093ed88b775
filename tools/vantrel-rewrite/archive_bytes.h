// What an archive is read from: a file, a part of one, or memory.
#ifndef VANTREL_REWRITE_ARCHIVE_BYTES_H
#define VANTREL_REWRITE_ARCHIVE_BYTES_H

#include <cstdint>

#include "file_io.h"

namespace vantrel_rewrite {

// Any number of threads may read at the same time. The file or the memory must outlive this.
class ArchiveBytes {
  public:
    explicit ArchiveBytes(const InputFile& file) : file_(&file), size_(static_cast<std::uint64_t>(file.size())) {}
    explicit ArchiveBytes(BytesView memory) : memory_(memory), size_(memory.size()) {}

    [[nodiscard]] std::uint64_t size() const { return size_; }

    // Whether there are `size` bytes from a position on. Both may be any number.
    [[nodiscard]] bool holds(std::uint64_t position, std::uint64_t size) const;

    // Reads exactly `size` bytes. Returns false if they are not there; throws a Failure if the system refuses.
    bool read(std::uint64_t position, unsigned char* to, size_t size) const;

    // A part of the bytes, as an archive of its own. The part must be inside (holds).
    [[nodiscard]] ArchiveBytes part(std::uint64_t position, std::uint64_t size) const;

  private:
    const InputFile* file_ = nullptr;  // null for memory
    BytesView memory_;
    std::uint64_t begin_ = 0;
    std::uint64_t size_;
};

}  // namespace vantrel_rewrite

#endif
