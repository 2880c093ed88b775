// A jar, and the same jar with other classes.
#ifndef VANTREL_REWRITE_REWRITTEN_JAR_H
#define VANTREL_REWRITE_REWRITTEN_JAR_H

#include <cstddef>
#include <filesystem>

#include "jar_contents.h"
#include "work.h"

namespace vantrel_rewrite {

// Rewrites the classes of a jar and of the jars in it, and writes the jar with them, a part at a time. All else is
// carried over as it is (zip_writer.h), but signatures are dropped (jar_signature.h). A jar whose classes all stay is
// copied, with its signatures. Reports on all classes, in their order. Throws a Failure, or Interrupted.
//   first_class   the number of the jar's first class
void write_rewritten_jar(Work& work, const std::filesystem::path& source, const NewFile& target,
                         const JarContents& contents, size_t first_class);

}  // namespace vantrel_rewrite

#endif
