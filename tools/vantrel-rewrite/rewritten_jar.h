// A jar, and the same jar with other classes.
#ifndef VANTREL_REWRITE_REWRITTEN_JAR_H
#define VANTREL_REWRITE_REWRITTEN_JAR_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "packed_entry.h"

namespace vantrel_rewrite {

// An entry that is a class.
struct JarClass {
    std::uint64_t index;
    std::string name;
    int method;  // how it is packed, as libzip numbers it
};

// In the order of the entries. Throws a Failure, also for an archive that cannot be carried over as a whole.
std::vector<JarClass> classes_of_jar(const std::filesystem::path& path);

// Writes a jar with other contents of some entries. All else is carried over as it is: order, times (entry_times.h),
// attributes, comments; but signatures are dropped (jar_signature.h), and their number is returned. A jar whose classes
// all stay is copied, with its signatures. Throws a Failure, or Interrupted.
size_t write_rewritten_jar(const std::filesystem::path& source, const NewFile& target,
                           const std::vector<PackedEntry>& changes);

}  // namespace vantrel_rewrite

#endif
