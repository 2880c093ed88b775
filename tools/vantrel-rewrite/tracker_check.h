// Whether the tracker class is one that rewritten classes can call.
#ifndef VANTREL_REWRITE_TRACKER_CHECK_H
#define VANTREL_REWRITE_TRACKER_CHECK_H

#include <string>

#include "arguments.h"

namespace vantrel_rewrite {

// Looks for the tracker class on a class path, and for the methods that are to be called in it and in the classes that
// it extends. Throws a Failure if one of them is not there, or could not be called from every class.
//   path   folders and jars with colons between them
void check_tracker(const std::string& path, const TrackerCalls& calls);

}  // namespace vantrel_rewrite

#endif
