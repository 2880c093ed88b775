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

// Writes each text to a file of its own beside the place that it is for, and then renames all of these. Returns what
// went wrong; an empty text if nothing did. If a text cannot be written, all is left as it was. Only if a rename fails
// after another one has succeeded are the files before it new.
std::string write_source_files(const std::vector<SourceFile>& files);

}  // namespace generator

#endif
