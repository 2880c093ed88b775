#include "archive_bytes.h"

#include <algorithm>

namespace vantrel_rewrite {

bool ArchiveBytes::holds(std::uint64_t position, std::uint64_t size) const {
    return position <= size_ && size <= size_ - position;
}

bool ArchiveBytes::read(std::uint64_t position, unsigned char* to, size_t size) const {
    if (!holds(position, size)) {
        return false;
    }
    if (file_ != nullptr) {
        return file_->read_at(static_cast<off_t>(begin_ + position), to, size) == size;
    }
    const BytesView bytes = memory_.subspan(begin_ + position, size);
    std::copy(bytes.begin(), bytes.end(), to);
    return true;
}

ArchiveBytes ArchiveBytes::part(std::uint64_t position, std::uint64_t size) const {
    ArchiveBytes result = *this;
    result.begin_ += position;
    result.size_ = size;
    return result;
}

}  // namespace vantrel_rewrite
