#include "source_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

// errno of the first call that failed, 0 where none did.
int write_all(const std::string& path, const std::string& text) {
    FILE* file = fopen(path.c_str(), "w");
    if (file == nullptr) {
        return errno;
    }
    const int write_error = fwrite(text.data(), 1, text.size(), file) == text.size() ? 0 : errno;
    const int close_error = fclose(file) == 0 ? 0 : errno;
    return write_error != 0 ? write_error : close_error;
}

}  // namespace

bool generator::write_source_file(const std::string& path, const std::string& text) {
    const std::string part = path + ".part";
    int error = write_all(part, text);
    if (error == 0 && rename(part.c_str(), path.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        remove(part.c_str());
        fprintf(stderr, "CodeGenerater: cannot write %s: %s\n", path.c_str(), strerror(error));
    }
    return error == 0;
}
