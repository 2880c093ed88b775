// Files that are there when they are whole, or not at all.
#ifndef VANTREL_WHOLE_FILE_H
#define VANTREL_WHOLE_FILE_H

#include <filesystem>
#include <string>

namespace outside {

// Writes a file, in the place of one that is there already; throws Failure if that is not possible, and leaves what was
// there then. What a link leads to is replaced, and not the link. A device or pipe is written to as it is.
void write_whole(const std::filesystem::path& file, const std::string& bytes);

// All of a file. Throws Failure if it cannot be read.
std::string read_whole(const std::filesystem::path& file);

}  // namespace outside

#endif
