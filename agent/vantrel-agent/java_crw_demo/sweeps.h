// Which branches grow in a method without switches, found by going through all branches a few times.
#ifndef JAVA_CRW_DEMO_SWEEPS_H
#define JAVA_CRW_DEMO_SWEEPS_H

#include <span>

#include "candidates.h"

namespace crw {

// Lets branches grow that have to. Returns true if no branch is too long afterwards. If it returns false, the branches
// that have grown had to, but it has given up before it was seen that these are all. None of the candidates may be a
// switch, nor have a widening yet. Takes n log n steps for n candidates.
bool settle_by_sweeps(std::span<const Candidate> candidates);

}  // namespace crw

#endif
