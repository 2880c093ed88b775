#include "snapshots.h"

#include <map>
#include <sstream>
#include <vector>

#include "failure.h"
#include "whole_file.h"

namespace fs = std::filesystem;

namespace outside {

namespace {

constexpr const char* kFirstLine = "vantrel snapshot 1";

// Keys in the order in which they were first met, with what belongs to each.
template <typename Value>
struct Ordered {
    std::vector<std::string> keys;
    std::map<std::string, Value> values;

    Value& operator[](const std::string& key) {
        const auto [at, is_new] = values.try_emplace(key);
        if (is_new) {
            keys.push_back(key);
        }
        return at->second;
    }
    [[nodiscard]] const Value* find(const std::string& key) const {
        const auto at = values.find(key);
        return at == values.end() ? nullptr : &at->second;
    }
};

// Values by the names of properties; the class has the empty name.
using Properties = Ordered<std::string>;
using Snapshot = Ordered<Properties>;  // by paths

Snapshot read(const fs::path& file) {
    std::istringstream lines(read_whole(file));
    std::string line;
    const bool has_first = static_cast<bool>(std::getline(lines, line));
    if (!has_first || !line.starts_with("vantrel snapshot ")) {
        throw command::Failure{file.string() + " is no snapshot; vantrel snapshot makes one"};
    }
    if (line != kFirstLine) {
        throw command::Failure{file.string() + " is a snapshot of another version of vantrel"};
    }
    Snapshot snapshot;
    while (std::getline(lines, line)) {
        const size_t first = line.find('\t');
        const size_t second = first == std::string::npos ? first : line.find('\t', first + 1);
        if (second == std::string::npos) {
            throw command::Failure{file.string() + " is a snapshot that has been changed or cut; take it again"};
        }
        snapshot[line.substr(0, first)][line.substr(first + 1, second - first - 1)] = line.substr(second + 1);
    }
    return snapshot;
}

const std::string& or_nothing(const std::string* value) {
    static const std::string nothing = "(not there)";
    return value == nullptr ? nothing : *value;
}

std::string changes(const Properties& before, const Properties& after) {
    std::string text;
    const auto add = [&](const std::string& name) {
        const std::string* from = before.find(name);
        const std::string* to = after.find(name);
        if (from == nullptr || to == nullptr || *from != *to) {
            text += "    " + (name.empty() ? "class" : name) + ": " + or_nothing(from) + " -> " + or_nothing(to) + "\n";
        }
    };
    for (const std::string& name : before.keys) {
        add(name);
    }
    for (const std::string& name : after.keys) {
        if (before.find(name) == nullptr) {
            add(name);
        }
    }
    return text;
}

std::string with_class(char mark, const std::string& path, const Properties& properties) {
    return std::string(1, mark) + " " + path + "  " + or_nothing(properties.find("")) + "\n";
}

}  // namespace

std::string difference(const fs::path& before_file, const fs::path& after_file) {
    const Snapshot before = read(before_file);
    const Snapshot after = read(after_file);
    std::string text;
    for (const std::string& path : before.keys) {
        const Properties& was = before.values.at(path);
        const Properties* is = after.find(path);
        if (is == nullptr) {
            text += with_class('-', path, was);
            continue;
        }
        const std::string changed = changes(was, *is);
        text += changed.empty() ? "" : "  " + path + "\n" + changed;
    }
    for (const std::string& path : after.keys) {
        if (before.find(path) == nullptr) {
            text += with_class('+', path, after.values.at(path));
        }
    }
    return text;
}

}  // namespace outside
