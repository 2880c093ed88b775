// Stack maps: the frames that tell a verifier which types the locals and the stack have at branch targets and handlers.
//
// A frame of a StackMapTable (JVM specification, section 4.7.4) does not say its pc, but how far it is from the frame
// before it. Where that distance has grown beyond what the frame's short form can hold, the frame takes its extended
// form, and the attribute becomes longer. Frames of the older StackMap say their pc, and are all full ones.
#ifndef JAVA_CRW_DEMO_STACK_MAPS_H
#define JAVA_CRW_DEMO_STACK_MAPS_H

#include "method_rewrite_state.h"

namespace crw {

// Rewrite the body of an attribute whose length has been copied to `length_position` of the new image, and write the
// new length there.
void write_stack_map_table(MethodRewriteState& mi, uint32_t attr_len, size_t length_position);
void write_stack_map(MethodRewriteState& mi, uint32_t attr_len, size_t length_position);

}  // namespace crw

#endif
