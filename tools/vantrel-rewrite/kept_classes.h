// Classes that are left as they are although they could be rewritten.
#ifndef VANTREL_REWRITE_KEPT_CLASSES_H
#define VANTREL_REWRITE_KEPT_CLASSES_H

#include <optional>
#include <string>

#include "arguments.h"

namespace vantrel_rewrite {

// Why a class is left as it is: it is the tracker class or nested in it, which would call itself without end; it is
// java.lang.Object, and nobody asks for the call that only goes there; or it was named with --keep. Nothing if it is to
// be rewritten.
//
// The rewriter adds a method to java.lang.Object. HotSpot knows without reading that class how many methods of it can
// be overridden, lays out all others by that number, and ends while it starts if there is one more.
//
//   name   the class's, in internal form
std::optional<std::string> reason_to_keep(const Arguments& arguments, const std::string& name);

}  // namespace vantrel_rewrite

#endif
