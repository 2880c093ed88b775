// Packs and unpacks the contents of an archive's entries. Most of the time that a jar costs goes here, so whole entries
// are packed at once, on many threads.
#ifndef VANTREL_REWRITE_PACKED_ENTRY_H
#define VANTREL_REWRITE_PACKED_ENTRY_H

#include <cstdint>
#include <string>

#include "archive_bytes.h"
#include "zip_directory.h"

namespace vantrel_rewrite {

// Reads one entry, and unpacks little more of it than is read.
class EntryReader {
  public:
    //   path   the archive's, for messages. All arguments must outlive this.
    EntryReader(const ArchiveBytes& archive, const ZipEntry& entry, const std::string& path)
        : archive_(archive), entry_(entry), path_(path) {}

    // The next bytes: so many, or fewer at the end of the entry. Throws a Failure, "cannot read PATH: " and why, for an
    // entry that is damaged, or that was packed or encrypted in a way that no VM reads.
    Bytes read(size_t at_most);

  private:
    [[noreturn]] void fail(const std::string& why) const;
    [[nodiscard]] Bytes packed(std::uint64_t at_most) const;
    [[nodiscard]] Bytes begin(size_t size) const;
    [[nodiscard]] Bytes whole() const;

    const ArchiveBytes& archive_;
    const ZipEntry& entry_;
    const std::string& path_;
    Bytes whole_;
    size_t position_ = 0;
};

// The whole of an entry. Throws a Failure, also for one that is larger than 1 GB.
Bytes read_entry(const ArchiveBytes& archive, const ZipEntry& entry, const std::string& path);

// An entry's new contents, as they go into the archive.
struct PackedEntry {
    std::uint16_t method;  // stored or deflated
    Bytes data;
    std::uint64_t size;  // unpacked
    std::uint32_t crc;
};

// Packs contents: not at all if `method` is zip::kStored, or else as zip::kDeflated.
PackedEntry pack_entry(std::uint16_t method, Bytes contents);

// A file as gzip makes it (RFC 1952).
Bytes gzip(BytesView contents);

}  // namespace vantrel_rewrite

#endif
