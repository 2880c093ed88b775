// Which branches grow, in a method where some may have to.
#ifndef JAVA_CRW_DEMO_WIDENING_H
#define JAVA_CRW_DEMO_WIDENING_H

#include "method_rewrite_state.h"

namespace crw {

// Sets the widening of every branch to what the scan in relocation.h leaves it at; those of the switches still have to
// be set. `code` is the method's old code; the map is as the plan has it, and all branches lead into the code. Takes
// n log n steps for n branches and switches, and n times a few dozen at most for the sums of what has grown.
void settle_widenings(MethodRewriteState& mi, const uint8_t* code);

}  // namespace crw

#endif
