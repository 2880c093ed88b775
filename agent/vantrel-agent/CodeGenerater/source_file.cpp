#include "source_file.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

using generator::SourceFile;

namespace {

// The steps return errno of the first call that failed, 0 where none did.

int write_all(const std::string& path, const std::string& text) {
    FILE* file = fopen(path.c_str(), "w");
    if (file == nullptr) {
        return errno;
    }
    const int write_error = fwrite(text.data(), 1, text.size(), file) == text.size() ? 0 : errno;
    const int close_error = fclose(file) == 0 ? 0 : errno;
    return write_error != 0 ? write_error : close_error;
}

std::string part_of(const SourceFile& file) {
    return file.path + ".part";
}

int write_part(const SourceFile& file) {
    // A folder in the place of the file would make rename() fail, but only after other files have been replaced. So it
    // is looked for before that.
    struct stat there {};
    const bool is_folder = stat(file.path.c_str(), &there) == 0 && S_ISDIR(there.st_mode);
    return is_folder ? EISDIR : write_all(part_of(file), file.text);
}

int put_in_place(const SourceFile& file) {
    return rename(part_of(file).c_str(), file.path.c_str()) == 0 ? 0 : errno;
}

void remove_part(const SourceFile& file) {
    remove(part_of(file).c_str());
}

}  // namespace

std::string generator::write_source_files(const std::vector<SourceFile>& files) {
    for (const auto step : {write_part, put_in_place}) {
        for (const SourceFile& file : files) {
            const int error = step(file);
            if (error != 0) {
                std::for_each(files.begin(), files.end(), remove_part);
                return "cannot write " + file.path + ": " + strerror(error);
            }
        }
    }
    return "";
}
