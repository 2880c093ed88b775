// What a run reads, in which order, and where the results go.
#ifndef VANTREL_REWRITE_PLAN_H
#define VANTREL_REWRITE_PLAN_H

#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

#include "arguments.h"
#include "input_kind.h"
#include "jar_contents.h"
#include "staging.h"

namespace vantrel_rewrite {

// One file or folder that is made.
struct Piece {
    Kind kind;
    std::filesystem::path source;  // nothing, for a folder that only holds the results
    NewFile target;
    size_t first_class = 0;  // the number of its first class
    JarContents jar;         // nothing, for what is none
};

struct Plan {
    std::vector<Piece> pieces;  // a folder comes before what is in it
    size_t class_count = 0;
    std::optional<NewFile> map;  // nothing where none is wanted
};

// Looks at the inputs and at what is there under the results' names, stages the results, and numbers the classes. A
// Failure is thrown for what cannot be done; nothing has been written then.
Plan make_plan(const Arguments& arguments, Staging& staging);

}  // namespace vantrel_rewrite

#endif
