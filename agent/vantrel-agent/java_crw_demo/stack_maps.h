// The frames that tell a verifier the types at branch targets and handlers. Their positions are old pcs; where they are
// stored as differences that no longer fit their short form, the frame takes its extended one.
#ifndef JAVA_CRW_DEMO_STACK_MAPS_H
#define JAVA_CRW_DEMO_STACK_MAPS_H

#include "injection.h"

namespace crw {

// Rewrite the body of a StackMapTable (JVM specification, section 4.7.4), or of the older StackMap, whose frames are
// all full and have positions of their own. The length has been copied, to `length_position` of the output.
void write_stack_map_table(MethodRewriteState& mi, uint32_t attr_len, size_t length_position);
void write_stack_map(MethodRewriteState& mi, uint32_t attr_len, size_t length_position);

}  // namespace crw

#endif
