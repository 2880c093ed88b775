#include "zip_archive.h"

#include <array>

#include "failure.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

void fail_on_zip(const char* what, const fs::path& path, const std::string& reason) {
    throw command::Failure{std::string("cannot ") + what + " " + path.string() + ": " + reason};
}

Zip open_archive(const fs::path& path) {
    int code = 0;
    Zip zip(zip_open(path.c_str(), ZIP_RDONLY, &code));
    if (!zip) {
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        const std::string reason = zip_error_strerror(&error);
        zip_error_fini(&error);
        fail_on_zip("read", path, reason + " (is it a whole jar, with nothing before it?)");
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

Bytes read_entry(zip_t* zip, zip_uint64_t index, const fs::path& path) {
    struct CloseEntry {
        void operator()(zip_file_t* file) const { zip_fclose(file); }
    };
    constexpr size_t kBlock = size_t{1} << 16;
    const std::unique_ptr<zip_file_t, CloseEntry> file(zip_fopen_index(zip, index, 0));
    if (!file) {
        fail_on_zip("read", path, zip_strerror(zip));
    }
    // What the archive says about the size need not be true.
    Bytes contents;
    std::array<unsigned char, kBlock> block;
    for (;;) {
        const zip_int64_t count = zip_fread(file.get(), block.data(), block.size());
        if (count < 0) {
            fail_on_zip("read", path, zip_file_strerror(file.get()));
        }
        if (count == 0) {
            return contents;
        }
        contents.insert(contents.end(), block.begin(), block.begin() + count);
    }
}

}  // namespace vantrel_rewrite
