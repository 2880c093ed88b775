// Files that are there whole or not at all.
#ifndef VANTREL_SOURCE_FILE_H
#define VANTREL_SOURCE_FILE_H

#include <string>

namespace generator {

// Writes a text to a file, beside it first, and then puts it in the place of what is there. False, a line on stderr,
// and everything as it was, if that fails.
bool write_source_file(const std::string& path, const std::string& text);

}  // namespace generator

#endif
