// Branches and switches of a method whose code moves: which of them grow, and what is written for them.
//
// A branch whose new offset does not fit in 16 bits becomes a wide one, which moves everything behind it and may make
// other branches too long; a switch's padding follows its new position. The result is defined by a scan that starts
// again at the first instruction after each single change, and so depends on the order of the changes: the padding of
// a switch that has not been looked at again still counts as it was.
//
// The landing place behind a widened conditional branch gets no stack map frame of its own.
#ifndef JAVA_CRW_DEMO_RELOCATION_H
#define JAVA_CRW_DEMO_RELOCATION_H

#include "injection.h"

namespace crw {

// Settles the widenings of all sites, and moves the map accordingly. Fails for a branch to a place outside the code.
void adjust_instructions(MethodRewriteState& mi);

// Writes a branch or switch for its new place. `code` is the method's old code.
void write_instruction(MethodRewriteState& mi, const Site& site, const uint8_t* code);

}  // namespace crw

#endif
