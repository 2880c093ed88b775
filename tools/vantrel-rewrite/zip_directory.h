// Where in an archive's file the times of its entries are. libzip does not tell.
#ifndef VANTREL_REWRITE_ZIP_DIRECTORY_H
#define VANTREL_REWRITE_ZIP_DIRECTORY_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "file_io.h"

namespace vantrel_rewrite {

// The time of day and the date of an entry, as an archive holds them: twice, in the directory and in the header before
// the entry's contents.
constexpr size_t kZipTimeSize = 4;

struct ZipDirectoryEntry {
    std::string name;           // as libzip tells it, with a space for each zero byte
    size_t time;                // where in the directory's bytes
    std::uint64_t header_time;  // where in the file
};

// An archive's directory, which is at the end of its file.
struct ZipDirectory {
    std::uint64_t position;  // where in the file
    Bytes bytes;
    std::vector<ZipDirectoryEntry> entries;
};

// Throws a Failure that names `path`, the file's, if there is none.
ZipDirectory read_zip_directory(const InputFile& file, const std::filesystem::path& path);

}  // namespace vantrel_rewrite

#endif
