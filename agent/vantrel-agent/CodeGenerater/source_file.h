// Files that are there whole or not at all.
#ifndef VANTREL_SOURCE_FILE_H
#define VANTREL_SOURCE_FILE_H

#include <string>
#include <vector>

namespace generator {

struct SourceFile {
    std::string path;
    std::string text;
};

// Writes all texts beside their files first, and then puts them in the place of what is there. Returns what went wrong,
// with everything as it was, and an empty text where nothing did.
std::string write_source_files(const std::vector<SourceFile>& files);

}  // namespace generator

#endif
