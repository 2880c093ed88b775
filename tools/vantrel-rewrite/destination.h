// Where the results go, as `cp` would have it.
#ifndef VANTREL_REWRITE_DESTINATION_H
#define VANTREL_REWRITE_DESTINATION_H

#include <filesystem>
#include <vector>

#include "arguments.h"
#include "input_kind.h"

namespace vantrel_rewrite {

// An input, or something in one, and what it becomes.
struct Result {
    Kind kind;
    std::filesystem::path source;
    std::filesystem::path target;
};

struct Destinations {
    std::filesystem::path new_folder;  // to be made for the results; empty where they need none
    std::vector<Result> results;       // one for each input
    std::filesystem::path map;         // empty where none is wanted
};

// The name that an input has in the folder that it is in, also if it was given as "." or "classes/". Throws a Failure
// for the root.
std::filesystem::path own_name(const std::filesystem::path& input);

// Looks at what is there under the results' names. Targets are absolute, or kStdout, and links are seen through, so
// that what a link leads to is replaced and not the link. Throws a Failure for what cannot be done; nothing is written.
Destinations find_destinations(const Arguments& arguments);

}  // namespace vantrel_rewrite

#endif
