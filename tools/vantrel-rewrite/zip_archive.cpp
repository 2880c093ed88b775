#include "zip_archive.h"

#include <algorithm>
#include <array>
#include <utility>

#include "failure.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

void fail_on_zip(const char* what, const fs::path& path, const std::string& reason) {
    throw command::Failure{std::string("cannot ") + what + " " + path.string() + ": " + reason};
}

Zip open_archive(const fs::path& path) {
    const InputFile readable(path);  // libzip would not tell why it is not
    int code = 0;
    Zip zip(zip_open(path.c_str(), ZIP_RDONLY, &code));
    if (!zip) {
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        const std::string reason = zip_error_strerror(&error);
        zip_error_fini(&error);
        const bool is_damaged = code == ZIP_ER_NOZIP || code == ZIP_ER_INCONS;
        fail_on_zip("read", path, reason + (is_damaged ? " (is it a whole jar, with nothing before it?)" : ""));
    }
    return zip;
}

zip_uint64_t entry_count(zip_t* zip) {
    return static_cast<zip_uint64_t>(zip_get_num_entries(zip, 0));
}

std::string entry_name(zip_t* zip, zip_uint64_t index) {
    const char* name = zip_get_name(zip, index, ZIP_FL_ENC_RAW);
    return name == nullptr ? "" : name;
}

EntryReader::EntryReader(zip_t* zip, zip_uint64_t index, fs::path path)
    : path_(std::move(path)), file_(zip_fopen_index(zip, index, 0)) {
    if (!file_) {
        fail_on_zip("read", path_, zip_strerror(zip));
    }
}

Bytes EntryReader::read(size_t at_most) {
    constexpr size_t kBlock = size_t{1} << 16;
    Bytes contents;
    std::array<unsigned char, kBlock> block;
    while (contents.size() < at_most) {
        const zip_int64_t count = zip_fread(file_.get(), block.data(), std::min(kBlock, at_most - contents.size()));
        if (count < 0) {
            fail_on_zip("read", path_, zip_file_strerror(file_.get()));
        }
        if (count == 0) {
            break;
        }
        contents.insert(contents.end(), block.begin(), block.begin() + count);
    }
    return contents;
}

Bytes read_entry(zip_t* zip, zip_uint64_t index, const fs::path& path) {
    constexpr size_t kSmall = size_t{256} << 20U;
    Bytes contents = EntryReader(zip, index, path).read(kSmall);
    if (contents.size() == kSmall) {
        fail_on_zip("read", path, entry_name(zip, index) + " is too large for what it is");
    }
    return contents;
}

}  // namespace vantrel_rewrite
