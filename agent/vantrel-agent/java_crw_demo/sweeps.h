// Which branches grow where there are no switches, as long as a few looks at each of them tell.
#ifndef JAVA_CRW_DEMO_SWEEPS_H
#define JAVA_CRW_DEMO_SWEEPS_H

#include <span>

#include "candidates.h"

namespace crw {

// Lets branches grow that have to, and returns whether these are all. If not, there are others that have to, and those
// that have grown were to grow in any case. None of the candidates may be a switch, nor have a widening yet. Takes
// n log n steps for n candidates.
bool settle_by_sweeps(std::span<const Candidate> candidates);

}  // namespace crw

#endif
