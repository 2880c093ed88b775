// What the tests of the commands share: running them, and making and reading files and jars.
#ifndef VANTREL_TOOL_KIT_H
#define VANTREL_TOOL_KIT_H

#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "process.h"

const std::filesystem::path kRewrite = VANTREL_REWRITE;
const std::filesystem::path kJdk = VANTREL_JDK;
const std::filesystem::path kProgramJar = VANTREL_PROGRAM_JAR;

using Words = std::vector<std::string>;

// Runs a command in a folder.
Finished run_in(const std::filesystem::path& folder, const Words& command);

// The command with a tracker whose method is called at each entry.
Words rewrite_command(const Words& arguments);
Finished rewrite(const Words& arguments, const std::filesystem::path& folder);

// The long names of the options that a command's help lists, like --verbose.
std::vector<std::string> options_in_help(const std::string& help);

void write(const std::filesystem::path& file, const std::string& text);

// The names of all that is in a folder, hidden or not, and in what is below it; sorted.
std::vector<std::string> names_in(const std::filesystem::path& folder);

// A jar's entry.
struct Entry {
    std::string name;
    std::string contents;
    std::time_t time = 946782246;  // an even second in the year 2000
    bool stored = false;
    std::string comment = {};
    bool operator==(const Entry&) const = default;
};
void make_jar(const std::filesystem::path& jar, const std::vector<Entry>& entries, const std::string& comment = "");
std::vector<Entry> entries_of(const std::filesystem::path& jar);
std::string comment_of(const std::filesystem::path& jar);
std::vector<std::string> entry_names(const std::filesystem::path& jar);

// A class file of the program, and one that says that it is of another version.
std::string program_class(const std::string& name = "Program");
std::string of_version(std::string image, int version);

// A folder of many class files.
void make_many_classes(const std::filesystem::path& folder, int count);

#endif
