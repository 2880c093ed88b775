// The tracker calls that are injected into a method, as bytecodes.
#ifndef JAVA_CRW_DEMO_INJECTION_H
#define JAVA_CRW_DEMO_INJECTION_H

#include "method_rewrite_state.h"

namespace crw {

// Builds the method's three calls: at its entry, before a return, after the creation of an array. One that is not
// wanted stays empty. Raises the stack for the entry's.
void prepare_injections(MethodRewriteState& mi);

// Raises the stack by as many values as a call pushes. They come on top of the stack that the method declares: what is
// on it at the place of the call is not known.
void need_stack(MethodRewriteState& mi, int32_t values);

}  // namespace crw

#endif
