// The command line.
#ifndef VANTREL_REWRITE_ARGUMENTS_H
#define VANTREL_REWRITE_ARGUMENTS_H

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vantrel_rewrite {

// Which calls are injected: of which class, and of which of its methods. A call whose method has no name is not
// wanted.
struct TrackerCalls {
    std::string class_name;  // in internal form
    std::string signature;   // the same as a descriptor
    std::optional<std::string> call;
    std::optional<std::string> return_;
    std::optional<std::string> object_init;
    std::optional<std::string> new_array;
    bool system_class = false;
};

struct Arguments {
    TrackerCalls tracker;
    std::vector<std::filesystem::path> inputs;
    std::filesystem::path output;
    std::filesystem::path map;  // empty where none is wanted
    unsigned workers = 2;
    bool verbose = false;
};

// What the command line asks for, or a text for stdout where it asks for that (--help, --version). Throws a Failure.
std::variant<Arguments, std::string> parse_arguments(int argc, char** argv);

}  // namespace vantrel_rewrite

#endif
