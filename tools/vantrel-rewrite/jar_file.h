// Jars as libzip sees them.
#ifndef VANTREL_REWRITE_JAR_FILE_H
#define VANTREL_REWRITE_JAR_FILE_H

#include <zip.h>

#include <exception>
#include <filesystem>
#include <memory>
#include <string>

#include "file.h"

// Entries' times have no time zone: libzip reads them as local times and writes them so again. In a zone without
// summer time each of them survives that, except for dates that do not exist. To be called before any thread starts.
void use_exact_zip_times();

// Discards what was not written with zip_close.
struct DiscardZip {
    void operator()(zip_t* zip) const { zip_discard(zip); }
};
using Zip = std::unique_ptr<zip_t, DiscardZip>;

[[noreturn]] void fail_on_zip(const char* what, const std::filesystem::path& path, const std::string& reason);

// A jar to read from, by one thread.
Zip open_jar(const std::filesystem::path& path);

// A jar to change: it is read from `from`, and zip_close writes it to `to`. Both must outlive it. What fails there is
// kept and thrown by rethrow_failure, for libzip is C.
class JarTransfer {
  public:
    JarTransfer(const InputFile& from, OutputFile& to) : from_(from), to_(to) {}
    Zip open(const std::filesystem::path& path);
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

// An entry's new contents, as they go into the file.
struct PackedEntry {
    zip_uint64_t index;
    zip_int32_t method;  // ZIP_CM_STORE or ZIP_CM_DEFLATE
    Bytes data;
    zip_uint64_t size;  // unpacked
    zip_uint32_t crc;
};
PackedEntry pack_entry(zip_uint64_t index, zip_int32_t method, BytesView contents);

// Gives an entry its new contents; its place, time and attributes stay. `entry` must live until the jar is closed.
void replace_entry(zip_t* zip, const PackedEntry& entry, const std::filesystem::path& path);

// An entry's contents. Throws a Failure.
Bytes read_entry(zip_t* zip, zip_uint64_t index, const std::filesystem::path& path);

#endif
