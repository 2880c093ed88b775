// The plan of a method's new code: what happens where.
#ifndef JAVA_CRW_DEMO_PLAN_H
#define JAVA_CRW_DEMO_PLAN_H

#include "method_rewrite_state.h"

namespace crw {

// Reads the old code once. Lists its sites, and fills the map as far as injections move the code; what branches and
// switches grow is not in it yet. Raises the stack for the injections it plans.
//
// Fails where the code ends inside an instruction, where the class file ends inside the code, and for an opcode that
// does not exist. The injections must have been prepared.
void plan_new_code(MethodRewriteState& mi);

}  // namespace crw

#endif
