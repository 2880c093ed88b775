// Which branches grow where the paddings of switches stay as they are, as long as a few looks at each branch tell.
#ifndef JAVA_CRW_DEMO_SWEEPS_H
#define JAVA_CRW_DEMO_SWEEPS_H

#include <span>

#include "candidates.h"

namespace crw {

// Lets branches grow that have to, given those that have grown already, and returns whether these are all. If not,
// there may be others that have to, and those that have grown were to grow in any case. The widening of a switch
// counts, and stays as it is. Takes n log n steps for n candidates.
bool settle_by_sweeps(std::span<const Candidate> candidates);

}  // namespace crw

#endif
