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
// and an empty text where nothing did. Files that cannot be written leave everything as it was; only a rename that
// fails after another one, in a folder that has just taken all the texts, leaves the first file new.
std::string write_source_files(const std::vector<SourceFile>& files);

}  // namespace generator

#endif
