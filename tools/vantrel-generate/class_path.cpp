#include "class_path.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace fs = std::filesystem;

namespace {

// The jars of the folder in "folder/*", sorted; none for any other element.
std::vector<std::string> jars_of(const std::string& element) {
    std::vector<std::string> jars;
    std::error_code error;
    if ((element != "*" && !element.ends_with("/*")) || fs::exists(element, error)) {
        return jars;
    }
    const std::string folder = element.substr(0, element.size() - 1);
    for (fs::directory_iterator at(folder.empty() ? "." : folder, error), end; !error && at != end;
         at.increment(error)) {
        const fs::path name = at->path().filename();
        if (name.extension() == ".jar" || name.extension() == ".JAR") {
            jars.push_back(folder + name.string());
        }
    }
    std::sort(jars.begin(), jars.end());
    return jars;
}

}  // namespace

std::string generate::expand_class_path(const std::string& class_path) {
    std::string expanded;
    // Empty elements stay, too: they are the working folder.
    for (size_t begin = 0; begin <= class_path.size();) {
        const size_t end = std::min(class_path.find(':', begin), class_path.size());
        const std::string element = class_path.substr(begin, end - begin);
        std::vector<std::string> jars = jars_of(element);
        if (jars.empty()) {
            jars.push_back(element);
        }
        for (const std::string& jar : jars) {
            expanded += jar + ":";
        }
        begin = end + 1;
    }
    expanded.pop_back();
    return expanded;
}
