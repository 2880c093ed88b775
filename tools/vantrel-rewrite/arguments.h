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
    std::string class_name;  // in internal form, as class files have it
    std::string signature;   // the same as a descriptor
    std::string file_name;   // the same as the system's file names have it, without ".class"
    std::optional<std::string> call;
    std::optional<std::string> return_;
    std::optional<std::string> object_init;
    std::optional<std::string> new_array;
    std::optional<std::string> numbered_new_array;
    bool system_class = false;
};

// What our own tracker counts. Both are false if the user has named a tracker.
struct CountedThings {
    bool calls = false;   // calls, returns and arrays
    bool unused = false;  // what never ran
    [[nodiscard]] bool any() const { return calls || unused; }
};

// What the methods take: the numbers of a class and a method, or an object.
constexpr const char* kNumbersDescriptor = "(II)V";
constexpr const char* kObjectDescriptor = "(Ljava/lang/Object;)V";

// In the place of a file's name, OUT or FILE: the result, or the map, goes to stdout.
constexpr const char* kStdout = "-";

struct Arguments {
    TrackerCalls tracker;  // without its class where things are counted: each jar has one of its own (counting.h)
    CountedThings counted;
    std::string tracker_path;       // empty where the tracker is not to be checked
    std::vector<std::string> keep;  // patterns of class names in internal form, as class files have them
    std::vector<std::filesystem::path> inputs;
    std::filesystem::path output;
    std::filesystem::path map;  // empty where none is wanted
    unsigned workers;
    bool verbose = false;
};

// What the command line asks for, or a text for stdout where it asks for that (--help, --version). Throws a Failure.
std::variant<Arguments, std::string> parse_arguments(int argc, char** argv);

}  // namespace vantrel_rewrite

#endif
