#include "java_command.h"

#include <algorithm>
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

}  // namespace

size_t place_for_agent(const std::vector<std::string>& words) {
    size_t place = 1;
    for (size_t at = 1; at < words.size(); ++at) {
        const std::string& word = words[at];
        // A word with an @ names a file with more options.
        if (is_in(kProgram, word) || (!word.starts_with('-') && !word.starts_with('@'))) {
            break;
        }
        if (word.starts_with("-javaagent:")) {
            place = at + 1;
        }
        at += is_in(kWithValue, word) ? 1 : 0;
    }
    return place;
}

}  // namespace launch
