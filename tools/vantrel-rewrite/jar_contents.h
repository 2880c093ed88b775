// What is in a jar, before anything is rewritten.
#ifndef VANTREL_REWRITE_JAR_CONTENTS_H
#define VANTREL_REWRITE_JAR_CONTENTS_H

#include <cstddef>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "archive_bytes.h"
#include "zip_directory.h"

namespace vantrel_rewrite {

// A jar's entries, and those of the jars in it, but not of jars in these.
struct JarContents {
    ZipDirectory directory;
    std::set<size_t> jars;           // the numbers of entries that are jars which can be read
    std::vector<std::string> notes;  // lines for the user, on those that cannot
    size_t class_count = 0;          // with those of jars in it
};

bool is_class(const ZipEntry& entry);

// Throws a Failure.
JarContents read_jar(const std::filesystem::path& path);

// A jar in a jar. It is read where it is if it is not packed, and unpacked into memory otherwise.
class InnerJar {
  public:
    // Throws a Failure. `outer` must outlive this.
    //   path   the outer jar's, for messages
    InnerJar(const ArchiveBytes& outer, const ZipEntry& entry, const std::string& path);

    [[nodiscard]] const ArchiveBytes& bytes() const { return bytes_; }
    [[nodiscard]] const JarContents& contents() const { return contents_; }

  private:
    Bytes unpacked_;
    ArchiveBytes bytes_;
    JarContents contents_;
};

}  // namespace vantrel_rewrite

#endif
