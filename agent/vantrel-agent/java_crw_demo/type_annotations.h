// The type annotations of a method's code (JVM specification, section 4.7.20): RuntimeVisibleTypeAnnotations and
// RuntimeInvisibleTypeAnnotations inside a Code attribute. Some say at which instruction they are, some over which part
// of the code a local variable has them.
#ifndef JAVA_CRW_DEMO_TYPE_ANNOTATIONS_H
#define JAVA_CRW_DEMO_TYPE_ANNOTATIONS_H

#include <cstdint>

#include "method_rewrite_state.h"

namespace crw {

// Copies the body of such an attribute, whose length has been copied, with the positions that it has in the new code.
// One that is not well formed, or leads out of the code, is copied as it is: VMs load a class without looking into it,
// and nobody can read it later.
void write_type_annotations(MethodRewriteState& mi, uint32_t attr_len);

}  // namespace crw

#endif
