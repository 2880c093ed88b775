// An archive that is read from one file and, changed, written to another one.
#ifndef VANTREL_REWRITE_ARCHIVE_TRANSFER_H
#define VANTREL_REWRITE_ARCHIVE_TRANSFER_H

#include <exception>
#include <filesystem>

#include "file_io.h"
#include "zip_archive.h"

namespace vantrel_rewrite {

// libzip by itself replaces the file that it has read. This gives it our two files instead: what zip_close writes goes
// to `to`, which the caller closes. Both files must outlive this, and this the archive.
class ArchiveTransfer {
  public:
    ArchiveTransfer(const InputFile& from, OutputFile& to) : from_(from), to_(to) {}

    // The archive, to be changed and closed with zip_close. Throws a Failure that names `path`, which is from's.
    Zip open(const std::filesystem::path& path);

    // Throws what one of the files has thrown while libzip used it, if one has: libzip is C and lets nothing through.
    void rethrow_failure() const;

  private:
    static zip_int64_t callback(void* self, void* data, zip_uint64_t size, zip_source_cmd_t command);
    zip_int64_t perform(void* data, zip_uint64_t size, zip_source_cmd_t command);

    const InputFile& from_;
    OutputFile& to_;
    off_t read_position_ = 0;
    off_t write_position_ = 0;
    off_t written_ = 0;
    zip_error_t error_{};
    std::exception_ptr failure_;
};

}  // namespace vantrel_rewrite

#endif
