// Jars as archives that are read, by way of libzip.
#ifndef VANTREL_REWRITE_ZIP_ARCHIVE_H
#define VANTREL_REWRITE_ZIP_ARCHIVE_H

#include <zip.h>

#include <filesystem>
#include <memory>
#include <string>

#include "file_io.h"

namespace vantrel_rewrite {

// Discards what was not written with zip_close.
struct DiscardZip {
    void operator()(zip_t* zip) const { zip_discard(zip); }
};

// An open archive. libzip's are for one thread each.
using Zip = std::unique_ptr<zip_t, DiscardZip>;

// Throws a Failure: "cannot WHAT PATH: REASON".
[[noreturn]] void fail_on_zip(const char* what, const std::filesystem::path& path, const std::string& reason);

// An archive to read from. Throws a Failure.
Zip open_archive(const std::filesystem::path& path);

zip_uint64_t entry_count(zip_t* zip);

// An entry's name as it stands in the archive, whatever its encoding; empty where it has none.
std::string entry_name(zip_t* zip, zip_uint64_t index);

// An entry's contents, unpacked. Throws a Failure that names `path`, the archive's file.
Bytes read_entry(zip_t* zip, zip_uint64_t index, const std::filesystem::path& path);

}  // namespace vantrel_rewrite

#endif
