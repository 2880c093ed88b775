#include "java_home.h"

#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace fs = std::filesystem;

namespace command {

namespace {

bool is_executable(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0;
}

}  // namespace

std::optional<fs::path> find_on_path(const std::string& name) {
    if (name.find('/') != std::string::npos) {
        return is_executable(name) ? std::optional<fs::path>(name) : std::nullopt;
    }
    const char* path = getenv("PATH");
    std::istringstream folders(path != nullptr ? path : "");
    for (std::string folder; !name.empty() && std::getline(folders, folder, ':');) {
        // An empty entry is the working folder.
        fs::path file = fs::path(folder.empty() ? "." : folder) / name;
        if (is_executable(file)) {
            return file;
        }
    }
    return std::nullopt;
}

std::optional<fs::path> find_java_home() {
    const char* java_home = getenv("JAVA_HOME");
    if (java_home != nullptr && java_home[0] != '\0') {
        return fs::path(java_home);
    }
    if (const auto java = find_on_path("java")) {
        return fs::canonical(*java).parent_path().parent_path();
    }
    return std::nullopt;
}

std::optional<fs::path> find_vm_library(const fs::path& home) {
    // The last two are Java 8's.
    for (const char* place : {"lib/server", "lib/client", "jre/lib/amd64/server", "lib/amd64/server"}) {
        for (const char* name : {"libjvm.so", "libjvm.dylib"}) {
            if (fs::exists(home / place / name)) {
                return home / place / name;
            }
        }
    }
    return std::nullopt;
}

}  // namespace command
