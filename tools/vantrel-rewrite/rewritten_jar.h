// A jar, and the same jar with other classes.
#ifndef VANTREL_REWRITE_REWRITTEN_JAR_H
#define VANTREL_REWRITE_REWRITTEN_JAR_H

#include "plan.h"
#include "work.h"

namespace vantrel_rewrite {

// Rewrites the classes of a jar and of the jars in it, and writes the jar with them, a part at a time. All else is
// carried over as it is (zip_writer.h), but signatures are dropped (jar_signature.h). A jar whose classes all stay is
// copied, with its signatures. Reports on all classes, in their order. Throws a Failure, or Interrupted.
//
// For --count and --unused, each of these jars gets a tracker of its own at its end (counting.h).
void write_rewritten_jar(Work& work, const Piece& piece);

}  // namespace vantrel_rewrite

#endif
