#include "java_command.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace launch {

namespace {

// The launcher's options whose value is the next word. Some may have it after a '=' instead.
constexpr std::string_view kWithValue[] = {
    "-cp",           "-classpath",     "-p",           "--add-exports",          "--add-modules",
    "--add-opens",   "--add-reads",    "--class-path", "--enable-native-access", "--limit-modules",
    "--module-path", "--patch-module", "--source",     "--upgrade-module-path",
};

// What ends the options: what comes after it is the program's.
constexpr std::string_view kProgram[] = {"-jar", "-m", "--module"};

bool is_in(const auto& list, std::string_view word) {
    return std::find(std::begin(list), std::end(list), word) != std::end(list);
}

// The place after an option, and after its value where that is a word of its own.
size_t skip_option(const std::vector<std::string>& words, size_t at) {
    return at + (is_in(kWithValue, words[at]) ? 2 : 1);
}

// Whether a word is the program, or an option that is followed by it. A word with an @ names a file with more options.
bool begins_program(std::string_view word) {
    return is_in(kProgram, word) || (!word.starts_with('-') && !word.starts_with('@'));
}

}  // namespace

size_t place_for_agent(const std::vector<std::string>& words) {
    size_t place = 1;
    for (size_t at = 1; at < words.size() && !begins_program(words[at]); at = skip_option(words, at)) {
        if (words[at].starts_with("-javaagent:")) {
            place = at + 1;
        }
    }
    return place;
}

std::string main_program(const std::vector<std::string>& words) {
    if (words.empty() || std::filesystem::path(words.front()).filename() != "java") {
        return "";
    }
    size_t at = 1;
    while (at < words.size() && !begins_program(words[at])) {
        at = skip_option(words, at);
    }
    const bool is_jar = at < words.size() && words[at] == "-jar";
    at += at < words.size() && is_in(kProgram, words[at]) ? 1 : 0;
    if (at >= words.size()) {
        return "";
    }
    return is_jar ? std::filesystem::path(words[at]).filename().string() : words[at];
}

}  // namespace launch
