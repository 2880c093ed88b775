// One class file through the rewriter.
#ifndef VANTREL_REWRITE_CLASS_REWRITER_H
#define VANTREL_REWRITE_CLASS_REWRITER_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "arguments.h"
#include "counting.h"
#include "file_io.h"

namespace vantrel_rewrite {

// The newest major version of class files that can be rewritten.
unsigned newest_version();

enum class Outcome {
    Rewritten,
    Kept,    // it is not to be rewritten (kept_classes.h)
    NoCode,  // a module-info
    TooNew,
    Failed
};
constexpr size_t kOutcomes = 5;

struct RewrittenClass {
    Outcome outcome = Outcome::Failed;
    std::string reason;     // why it was not rewritten, for the user; or what the user has to know if it was
    std::string map_lines;  // of its methods; empty where it was not rewritten
    std::string place;      // of a class that was rewritten, where things are counted (counting.h); else empty
    Bytes image;            // empty where it is to stay as it is
};

// Names in a map, and in what is made of one: a tab, line end or backslash in them is written as \t, \n, \r, \\.
std::string escaped(std::string_view name);

// Reads the next bytes of a class file: as many as are asked for, and fewer only at its end.
using ReadClass = std::function<Bytes(size_t at_most)>;

// Reads no more of the file than it takes to decide. What `read` throws is thrown on. Any number of threads may rewrite
// at the same time.
//   size   the file's
RewrittenClass rewrite_class(const Arguments& arguments, const ClassSource& source, unsigned number, std::uint64_t size,
                             const ReadClass& read);

}  // namespace vantrel_rewrite

#endif
