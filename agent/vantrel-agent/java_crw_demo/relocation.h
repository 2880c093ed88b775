// Branches and switches in code that moves: which of them grow, and what is written for them.
//
// A branch whose new offset does not fit in 16 bits becomes a wide one. goto and jsr have wide forms; a conditional
// branch becomes the opposite condition, which skips a goto_w. That moves all that follows, and may make other branches
// too long. The padding of a switch depends on where the switch stands, and changes with it.
//
// What grows is defined by a scan: it goes through the code from pc 0 until it finds a branch that is too long or a
// padding that is wrong, changes that, and starts again at pc 0, until it finds nothing. So the order of the changes
// matters: while the scan looks at a branch, a switch further on may still have the padding of its old place.
//
// A widened conditional branch lands after its goto_w, where there was no branch target before. A stack map needs a
// frame there (landing_frames.h).
#ifndef JAVA_CRW_DEMO_RELOCATION_H
#define JAVA_CRW_DEMO_RELOCATION_H

#include "method_rewrite_state.h"

namespace crw {

// Decides how much each site grows, and moves the map by it. Fails for a branch out of the code.
void adjust_instructions(MethodRewriteState& mi);

// Writes a branch or switch as it is at its new place. `code` is the method's old code.
void write_instruction(MethodRewriteState& mi, const Site& site, const uint8_t* code);

}  // namespace crw

#endif
