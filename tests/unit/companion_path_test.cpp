#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "own_folder.h"
#include "vantrel-agent.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kJar = "vantrel-1.2.3.jar";

struct CompanionPath : testing::Test {
    void TearDown() override { gb_data.libraryPath = library; }

    // What GetVantrelCassPath makes of a library path: the path written, and whether the jar exists. Nothing may be
    // written past `size` bytes, and all bytes after the path must be zero.
    bool find(const char* library_path, unsigned long size = 1024) {
        gb_data.libraryPath = library_path;
        std::string buffer(size + 64, '#');
        const bool found = GetVantrelCassPath(buffer.data(), size);
        EXPECT_EQ(buffer.substr(size), std::string(64, '#'));
        const size_t length = std::min(buffer.find('\0'), size);
        path = buffer.substr(0, length);
        EXPECT_GE(buffer.find_first_not_of('\0', length), size) << "all zero after the path";
        return found;
    }

    const OwnFolder own;  // the working folder
    const fs::path folder = own.path;
    const char* library = gb_data.libraryPath;
    std::string path;
};

TEST_F(CompanionPath, IsTheJarInTheLibrarysFolder) {
    struct {
        const char* library;
        const char* expected;
    } const cases[] = {
        {"/opt/x/libvantrel-agent.1.dylib", "/opt/x/vantrel-1.2.3.jar"},
        {"C:\\x\\agent.dll", "C:\\x\\vantrel-1.2.3.jar"},
        {"/opt/x\\agent", "/opt/x\\vantrel-1.2.3.jar"},
        {"lib/agent", "lib/vantrel-1.2.3.jar"},
        {"/agent", "/vantrel-1.2.3.jar"},
        {"/opt/x/", "/opt/x/vantrel-1.2.3.jar"},
        {"agent", "vantrel-1.2.3.jar"},
        {"", "vantrel-1.2.3.jar"},
        {nullptr, "vantrel-1.2.3.jar"},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(find(c.library));
        EXPECT_EQ(path, c.expected);
    }
}

TEST_F(CompanionPath, IsFoundWhereTheFileIs) {
    const std::string beside = (folder / "libagent.so").string();
    EXPECT_FALSE(find(beside.c_str()));
    std::ofstream create(folder / kJar);
    EXPECT_TRUE(find(beside.c_str()));
    EXPECT_EQ(path, (folder / kJar).string());

    fs::create_directory("elsewhere");
    fs::current_path("elsewhere");
    EXPECT_FALSE(find("libagent.so"));
    fs::current_path(folder);
    EXPECT_TRUE(find("libagent.so")) << "a bare name is looked up in the working folder";
}

// The jar exists at each of these paths; what decides is whether they fit.
TEST_F(CompanionPath, IsRefusedWhereItDoesNotFit) {
    std::ofstream create(folder / kJar);
    const auto folder_of_length = [&](size_t length) {
        std::string text = folder.string();
        while (text.size() + 1 < length) {
            text += "/";  // empty steps: the same folder
        }
        return text + "/";
    };
    const std::string fits = folder_of_length(1023 - kJar.size());
    EXPECT_TRUE(find((fits + "a").c_str()));
    EXPECT_EQ(path, fits + std::string(kJar));

    const std::string jar_too_long = folder_of_length(1024 - kJar.size());
    EXPECT_FALSE(find((jar_too_long + "a").c_str()));
    EXPECT_EQ(path, (jar_too_long + std::string(kJar)).substr(0, 1023));

    EXPECT_TRUE(find((fits + std::string(1023 - fits.size(), 'a')).c_str()));
    EXPECT_FALSE(find((fits + std::string(1024 - fits.size(), 'a')).c_str())) << "the library's own path is too long";

    EXPECT_FALSE(find((fits + std::string(9000, 'a')).c_str()));

    const std::string here = (folder / "a").string();
    const std::string expected = (folder / kJar).string();
    EXPECT_TRUE(find(here.c_str(), expected.size() + 1));
    EXPECT_FALSE(find(here.c_str(), expected.size()));
    EXPECT_EQ(path, expected.substr(0, expected.size() - 1));
    EXPECT_FALSE(find(here.c_str(), 1));
    EXPECT_FALSE(find(here.c_str(), 0));
}

TEST_F(CompanionPath, LibraryPathIsRecordedBeforeMain) {
    ASSERT_NE(library, nullptr);
    EXPECT_TRUE(fs::equivalent(own.before / library, "/proc/self/exe"));
}

}  // namespace
