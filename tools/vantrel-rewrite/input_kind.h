// What the inputs are, and what is in a folder among them.
#ifndef VANTREL_REWRITE_INPUT_KIND_H
#define VANTREL_REWRITE_INPUT_KIND_H

#include <filesystem>

namespace vantrel_rewrite {

enum class Kind {
    ClassFile,
    Jar,
    Folder,
    Link,  // in a folder; carried over as a link
    Other  // in a folder; carried over
};

// The status of a file, or of what a link leads to; not_found is a status, too. Throws a Failure for a file that cannot
// be looked at.
std::filesystem::file_status status_of(const std::filesystem::path& path);

// What an input of the command line is: by its name or, where that does not tell, by how it begins, or because it ends
// like an archive. Throws a Failure for what is neither a class file, nor a jar, nor a folder.
Kind kind_of_input(const std::filesystem::path& input);

// What an entry of a folder is, by its kind of file and its name. Throws a Failure for a device and the like.
Kind kind_in_folder(const std::filesystem::directory_entry& entry);

}  // namespace vantrel_rewrite

#endif
