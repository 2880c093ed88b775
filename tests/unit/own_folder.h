// A folder of a test's own, for what writes files.
#ifndef VANTREL_OWN_FOLDER_H
#define VANTREL_OWN_FOLDER_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// What a file holds; a file that is not there fails the test.
inline std::string text_of(const std::filesystem::path& path) {
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

// An empty folder that is the working directory, for the paths with a backslash in them. Gone with its files.
struct OwnFolder {
    OwnFolder() : before(std::filesystem::current_path()) {
        std::string name = std::filesystem::temp_directory_path() / "vantrel-generator-XXXXXX";
        EXPECT_NE(mkdtemp(name.data()), nullptr);
        path = name;
        std::filesystem::current_path(path);
    }
    ~OwnFolder() {
        std::filesystem::current_path(before);
        std::filesystem::remove_all(path);
    }
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;

    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    std::filesystem::path before;
    std::filesystem::path path;
};

#endif
