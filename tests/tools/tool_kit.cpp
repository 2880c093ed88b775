#include "tool_kit.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <algorithm>
#include <fstream>
#include <memory>

namespace fs = std::filesystem;

namespace {

using Zip = std::unique_ptr<zip_t, decltype(&zip_discard)>;

Zip open_zip(const fs::path& jar, int flags) {
    int error = 0;
    Zip zip(zip_open(jar.c_str(), flags, &error), zip_discard);
    if (!zip) {
        throw std::runtime_error(jar.string() + ": libzip's error " + std::to_string(error));
    }
    return zip;
}

std::string read_entry(zip_t* zip, zip_uint64_t index, size_t size) {
    std::string text(size, '\0');
    zip_file_t* file = zip_fopen_index(zip, index, 0);
    EXPECT_NE(file, nullptr) << zip_strerror(zip);
    EXPECT_EQ(zip_fread(file, text.data(), size), static_cast<zip_int64_t>(size)) << "of entry " << index;
    zip_fclose(file);
    return text;
}

}  // namespace

Finished run_in(const fs::path& folder, const Words& command) {
    return run(command, {.folder = folder, .environment = {}});
}

Words rewrite_command(const Words& arguments) {
    Words command{kRewrite, "--tracker", "com.x.Tracker", "--call", "entered"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return command;
}

Finished rewrite(const Words& arguments, const fs::path& folder) {
    return run_in(folder, rewrite_command(arguments));
}

std::vector<std::string> options_in_help(const std::string& help) {
    std::vector<std::string> options;
    for (const std::string& line : lines_of(help)) {
        if (line.starts_with("  -")) {
            const std::string names = line.substr(2, line.find(' ', 2) - 2);  // -h,--help
            options.push_back(names.substr(names.find(',') + 1));
        }
    }
    return options;
}

void write(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

std::vector<std::string> names_in(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        names.push_back(entry.path().lexically_relative(folder));
    }
    std::sort(names.begin(), names.end());
    return names;
}

void make_jar(const fs::path& jar, const std::vector<Entry>& entries, const std::string& comment) {
    Zip zip = open_zip(jar, ZIP_CREATE | ZIP_TRUNCATE);
    for (const Entry& entry : entries) {
        zip_source_t* source = zip_source_buffer(zip.get(), entry.contents.data(), entry.contents.size(), 0);
        const auto index = static_cast<zip_uint64_t>(zip_file_add(zip.get(), entry.name.c_str(), source, 0));
        zip_file_set_mtime(zip.get(), index, entry.time, 0);
        zip_set_file_compression(zip.get(), index, entry.stored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 0);
        zip_file_set_comment(zip.get(), index, entry.comment.data(), static_cast<zip_uint16_t>(entry.comment.size()),
                             0);
    }
    zip_set_archive_comment(zip.get(), comment.data(), static_cast<zip_uint16_t>(comment.size()));
    ASSERT_EQ(zip_close(zip.get()), 0) << zip_strerror(zip.get());
    static_cast<void>(zip.release());
}

std::vector<Entry> entries_of(const fs::path& jar) {
    const Zip zip = open_zip(jar, ZIP_RDONLY | ZIP_CHECKCONS);
    std::vector<Entry> entries;
    for (zip_uint64_t index = 0; index < static_cast<zip_uint64_t>(zip_get_num_entries(zip.get(), 0)); ++index) {
        zip_stat_t status;
        EXPECT_EQ(zip_stat_index(zip.get(), index, 0, &status), 0);
        zip_uint32_t length = 0;
        const char* comment = zip_file_get_comment(zip.get(), index, &length, 0);
        entries.push_back({status.name, read_entry(zip.get(), index, status.size), status.mtime,
                           status.comp_method == ZIP_CM_STORE, std::string(comment == nullptr ? "" : comment, length)});
    }
    return entries;
}

std::string comment_of(const fs::path& jar) {
    const Zip zip = open_zip(jar, ZIP_RDONLY);
    int length = 0;
    const char* comment = zip_get_archive_comment(zip.get(), &length, 0);
    return comment == nullptr ? "" : std::string(comment, static_cast<size_t>(length));
}

std::vector<std::string> entry_names(const fs::path& jar) {
    std::vector<std::string> names;
    for (Entry& entry : entries_of(jar)) {
        names.push_back(std::move(entry.name));
    }
    return names;
}

std::string program_class(const std::string& name) {
    for (Entry& entry : entries_of(kProgramJar)) {
        if (entry.name == name + ".class") {
            return std::move(entry.contents);
        }
    }
    throw std::runtime_error("the program has no class " + name);
}

std::string of_version(std::string image, int version) {
    image.at(7) = static_cast<char>(version);
    return image;
}

void make_many_classes(const fs::path& folder, int count) {
    const fs::path first = folder / "0.class";
    write(first, program_class());
    for (int number = 1; number < count; ++number) {
        fs::create_hard_link(first, folder / (std::to_string(number) + ".class"));
    }
}
