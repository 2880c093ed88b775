// An archive that is made from another one, entry by entry.
#ifndef VANTREL_REWRITE_ZIP_WRITER_H
#define VANTREL_REWRITE_ZIP_WRITER_H

#include <cstdint>
#include <functional>
#include <string>

#include "archive_bytes.h"
#include "packed_entry.h"
#include "zip_directory.h"

namespace vantrel_rewrite {

// What is not replaced or added stays as it is, bit for bit: what comes before the archive, the order of entries, their
// names, times, attributes, comments, extra fields and packed contents, and the archive's comment.
class ZipWriter {
  public:
    using Sink = std::function<void(BytesView)>;

    // Writes what comes before the first entry. All arguments must outlive this.
    //   path   of the archive that is read, for messages
    //   sink   takes the bytes of the new archive in their order
    ZipWriter(const ArchiveBytes& from, const ZipDirectory& directory, const std::string& path, Sink sink);

    // Each entry that stays goes through one of these. Throws a Failure for an entry that cannot be read, and
    // whatever the sink throws.
    void carry_over(const ZipEntry& entry);
    void replace(const ZipEntry& entry, const PackedEntry& contents);

    // A new entry. It has the oldest time that an archive can tell, so that two runs make the same bytes.
    void add(const std::string& name, const PackedEntry& contents);

    // Writes the directory. To be called once, after all entries.
    void finish();

  private:
    void write(BytesView bytes);
    void read(std::uint64_t position, unsigned char* to, size_t size) const;
    void copy(std::uint64_t position, std::uint64_t size);
    [[nodiscard]] BytesView record_of(const ZipEntry& entry) const;
    void add_record(BytesView old, const ZipEntry& entry, std::uint64_t header, const PackedEntry* contents);
    void flush();

    const ArchiveBytes& from_;
    const ZipDirectory& directory_;
    const std::string& path_;
    Sink sink_;
    Bytes buffer_;
    std::uint64_t written_ = 0;
    Bytes records_;
    std::uint64_t count_ = 0;
};

}  // namespace vantrel_rewrite

#endif
