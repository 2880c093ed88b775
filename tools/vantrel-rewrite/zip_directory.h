// An archive's entries, as its directory lists them.
#ifndef VANTREL_REWRITE_ZIP_DIRECTORY_H
#define VANTREL_REWRITE_ZIP_DIRECTORY_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "archive_bytes.h"

namespace vantrel_rewrite {

struct ZipEntry {
    std::string name;  // as it stands in the archive, whatever its encoding
    std::uint16_t flags;
    std::uint16_t method;
    std::uint32_t crc;
    std::uint64_t packed_size;
    std::uint64_t size;
    std::uint64_t header;  // where its header is in the archive's bytes
    std::uint64_t data;    // where its contents are there
    size_t record;         // where its record is in ZipDirectory::bytes
    size_t record_size;
};

struct ZipDirectory {
    // What has to be added to the positions that the archive tells. It is not 0 if something, such as a start script,
    // was put in front of the archive without a correction of these.
    std::uint64_t shift = 0;
    std::uint64_t begin = 0;  // of the first entry; what comes before it is no part of the archive
    Bytes bytes;
    std::vector<ZipEntry> entries;  // they do not overlap
    Bytes end;                      // the end record, and what comes after it: the archive's comment
};

// Throws a Failure, "cannot read PATH: " and why, for what is no archive, and for one that contradicts itself.
ZipDirectory read_zip_directory(const ArchiveBytes& archive, const std::string& path);

}  // namespace vantrel_rewrite

#endif
