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

// Throws a Failure: "cannot WHAT PATH: " and what the error is.
[[noreturn]] void fail_on_zip(const char* what, const std::filesystem::path& path, zip_error_t* error);

// An archive to read from. Throws a Failure.
Zip open_archive(const std::filesystem::path& path);

zip_uint64_t entry_count(zip_t* zip);

// An entry's name as it stands in the archive, whatever its encoding; empty where it has none.
std::string entry_name(zip_t* zip, zip_uint64_t index);

// An entry that is unpacked as it is read. What the archive says about its size need not be true.
class EntryReader {
  public:
    // Throws a Failure, which names `path`, the archive's file. The archive must outlive this.
    EntryReader(zip_t* zip, zip_uint64_t index, std::filesystem::path path);

    // The next bytes: so many, or fewer at the end of the entry. Throws a Failure.
    Bytes read(size_t at_most);

  private:
    struct CloseEntry {
        void operator()(zip_file_t* file) const { zip_fclose(file); }
    };
    std::filesystem::path path_;
    std::unique_ptr<zip_file_t, CloseEntry> file_;
};

// The whole of an entry, for those that are small. Throws a Failure, also for one that is not.
Bytes read_entry(zip_t* zip, zip_uint64_t index, const std::filesystem::path& path);

}  // namespace vantrel_rewrite

#endif
