// New contents for an entry of a jar. Packing takes most of the time that a jar costs, so it is done on many threads,
// apart from the archive, which is for one.
#ifndef VANTREL_REWRITE_PACKED_ENTRY_H
#define VANTREL_REWRITE_PACKED_ENTRY_H

#include <zip.h>

#include <filesystem>

#include "file_io.h"

namespace vantrel_rewrite {

// An entry's new contents, as they go into the file.
struct PackedEntry {
    zip_uint64_t index;
    zip_int32_t method;  // ZIP_CM_STORE or ZIP_CM_DEFLATE
    Bytes data;
    zip_uint64_t size;  // unpacked
    zip_uint32_t crc;
};

// Packs the contents of the entry with a number: not at all if `method` is ZIP_CM_STORE, or else as ZIP_CM_DEFLATE.
PackedEntry pack_entry(zip_uint64_t index, zip_int32_t method, BytesView contents);

// Gives an entry its new contents; its place and attributes stay. Its time does not: entry_times.h sees to that.
// `entry` must live until the archive is closed. Throws a Failure that names `path`, the archive's file.
void replace_entry(zip_t* zip, const PackedEntry& entry, const std::filesystem::path& path);

}  // namespace vantrel_rewrite

#endif
