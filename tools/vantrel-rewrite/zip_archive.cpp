#include "zip_archive.h"

#include <algorithm>
#include <array>
#include <utility>

#include "failure.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

std::string reason_of(zip_error_t* error) {
    switch (zip_error_code_zip(error)) {
        case ZIP_ER_NOZIP:
            return "Not a zip archive (is it a whole jar, with nothing before it?)";
        case ZIP_ER_INCONS:
            return "Zip archive inconsistent (is it a whole jar, with nothing before it?)";
        // Positions and sizes that lead nowhere. libzip adds whatever error the system had last.
        case ZIP_ER_SEEK:
        case ZIP_ER_READ:
        case ZIP_ER_INVAL:
        case ZIP_ER_EOF:
            return "what it says of its entries is wrong";
        default:
            return zip_error_strerror(error);
    }
}

}  // namespace

void fail_on_zip(const char* what, const fs::path& path, zip_error_t* error) {
    throw command::Failure{std::string("cannot ") + what + " " + path.string() + ": " + reason_of(error)};
}

Zip open_archive(const fs::path& path) {
    const InputFile readable(path);  // libzip would not tell why it is not
    int code = 0;
    Zip zip(zip_open(path.c_str(), ZIP_RDONLY, &code));
    if (!zip) {
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        fail_on_zip("read", path, &error);
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
        fail_on_zip("read", path_, zip_get_error(zip));
    }
}

Bytes EntryReader::read(size_t at_most) {
    constexpr size_t kBlock = size_t{1} << 16;
    Bytes contents;
    std::array<unsigned char, kBlock> block;
    while (contents.size() < at_most) {
        const zip_int64_t count = zip_fread(file_.get(), block.data(), std::min(kBlock, at_most - contents.size()));
        if (count < 0) {
            fail_on_zip("read", path_, zip_file_get_error(file_.get()));
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
        throw command::Failure{"cannot read " + path.string() + ": " + entry_name(zip, index) + " is too large"};
    }
    return contents;
}

}  // namespace vantrel_rewrite
