// What a run reads, in which order, and where the results go.
#ifndef VANTREL_REWRITE_PLAN_H
#define VANTREL_REWRITE_PLAN_H

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "arguments.h"
#include "input_kind.h"
#include "jar_contents.h"
#include "staging.h"

namespace vantrel_rewrite {

// One file or folder that is made.
struct Piece {
    Kind kind;
    std::filesystem::path source;  // empty for the new folder that all results go into
    NewFile target;
    size_t first_class = 0;  // the number of its first class
    JarContents jar;         // empty for what is no jar
    std::string label;       // the input's own name, with the path inside the input after it
    size_t folder = 0;       // for what is in a FolderInput: its index in Plan::folders
};

// An input that is a folder.
struct FolderInput {
    NewFile target;
    std::string label;
    size_t first_class;
    std::vector<std::string> class_files;  // their paths inside the folder; not those in jars

    // The path inside the folder of a piece with this label.
    [[nodiscard]] std::string_view name_in(const std::string& piece_label) const {
        return std::string_view(piece_label).substr(label.size() + 1);
    }
};

struct Plan {
    std::vector<Piece> pieces;  // a folder comes before what is in it
    std::vector<FolderInput> folders;
    size_t class_count = 0;
    std::optional<NewFile> map;  // nothing where none is wanted
};

// Looks at the inputs and at what is there under the results' names, stages the results, and numbers the classes. A
// Failure is thrown for what cannot be done; nothing has been written then.
Plan make_plan(const Arguments& arguments, Staging& staging);

}  // namespace vantrel_rewrite

#endif
