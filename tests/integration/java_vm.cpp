#include "java_vm.h"

#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>

namespace fs = std::filesystem;

namespace {

// A JDK's `release` file has a line JAVA_VERSION="17.0.15".
bool is_jdk(const fs::path& home, int release) {
    std::ifstream lines(home / "release");
    const std::string prefix = "JAVA_VERSION=\"" + std::to_string(release);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(prefix) && isdigit(line[prefix.size()]) == 0) {
            return fs::exists(home / "bin" / "jcmd") && fs::exists(home / "bin" / "java");
        }
    }
    return false;
}

}  // namespace

std::optional<fs::path> find_jdk(int release) {
    std::vector<fs::path> homes;
    if (const char* java_home = getenv("JAVA_HOME")) {
        homes.emplace_back(java_home);
    }
    std::error_code none;
    for (const auto& entry : fs::directory_iterator("/usr/lib/jvm", none)) {
        homes.push_back(entry.path());
    }
    for (const fs::path& home : homes) {
        if (is_jdk(home, release)) {
            return home;
        }
    }
    return std::nullopt;
}

Arguments operator+(Arguments left, const Arguments& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

std::set<std::string> jni_reports(const std::string& output) {
    std::set<std::string> reports;
    std::istringstream text(output);
    for (std::string line; std::getline(text, line);) {
        if (std::regex_search(line, std::regex("^(WARNING|Warning|FATAL)"))) {
            reports.insert(line);
        }
    }
    return reports;
}
