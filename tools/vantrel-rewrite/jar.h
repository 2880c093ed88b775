// Jars: which classes are in one, and the same jar with other classes.
#ifndef VANTREL_REWRITE_JAR_H
#define VANTREL_REWRITE_JAR_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "jar_file.h"

// An entry that is a class.
struct JarClass {
    std::uint64_t index;
    std::string name;
    int method;  // how it is packed
};

// In the order of the entries. Throws a Failure, also for an archive that cannot be carried over as a whole.
std::vector<JarClass> classes_of_jar(const std::filesystem::path& path);

// Writes a jar with other contents of some entries. All else is carried over as it is, but for signatures, which are
// dropped; their number is returned. A jar whose classes all stay is copied, with its signatures.
size_t write_jar(const std::filesystem::path& source, const std::filesystem::path& target,
                 const std::vector<PackedEntry>& changes);

#endif
