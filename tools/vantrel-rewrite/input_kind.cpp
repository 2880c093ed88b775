#include "input_kind.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "failure.h"
#include "file_io.h"
#include "zip_directory.h"

namespace fs = std::filesystem;

namespace vantrel_rewrite {

namespace {

bool begins_with(const fs::path& file, BytesView bytes) {
    unsigned char begin[4] = {};
    const size_t count = InputFile(file).read_at(0, begin, bytes.size());
    return std::equal(bytes.begin(), bytes.end(), begin, begin + count);
}

// An archive may have a start script in front of it.
bool ends_as_archive(const fs::path& path) {
    const InputFile file(path);
    try {
        read_zip_directory(ArchiveBytes(file), path);
        return true;
    } catch (const command::Failure&) {
        return false;
    }
}

Kind kind_by_name(const fs::path& file) {
    const fs::path extension = file.extension();
    return extension == ".class" ? Kind::ClassFile : extension == ".jar" ? Kind::Jar : Kind::Other;
}

}  // namespace

fs::file_status status_of(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::none) {
        throw command::Failure{"cannot read " + path.string() + ": " + error.message()};
    }
    return status;
}

Kind kind_of_input(const fs::path& input) {
    const fs::file_status status = status_of(input);
    if (!fs::exists(status)) {
        throw command::Failure{"cannot read " + input.string() + ": there is no such file"};
    }
    if (fs::is_directory(status)) {
        return Kind::Folder;
    }
    if (!fs::is_regular_file(status)) {
        throw command::Failure{input.string() + " is neither a file nor a folder"};
    }
    if (const Kind kind = kind_by_name(input); kind != Kind::Other) {
        return kind;
    }
    if (begins_with(input, bytes_of("\xCA\xFE\xBA\xBE"))) {
        return Kind::ClassFile;
    }
    if (begins_with(input, bytes_of("PK")) || ends_as_archive(input)) {
        return Kind::Jar;
    }
    throw command::Failure{input.string() + " is neither a class file nor a jar"};
}

Kind kind_in_folder(const fs::directory_entry& entry) {
    if (entry.is_symlink()) {
        return Kind::Link;
    }
    if (entry.is_directory()) {
        return Kind::Folder;
    }
    if (!entry.is_regular_file()) {
        throw command::Failure{entry.path().string() + " is neither a file nor a folder; take it out of the input"};
    }
    return kind_by_name(entry.path());
}

}  // namespace vantrel_rewrite
