// The class file from its first byte to its last (JVM specification, section 4.1): what the rewriter does not change
// is copied field by field, the rest handed on.
#ifndef JAVA_CRW_DEMO_CLASS_IMAGE_H
#define JAVA_CRW_DEMO_CLASS_IMAGE_H

#include <string_view>

#include "class_rewrite_state.h"

namespace crw {

// Rewrites the class whose images, trackers and flags the state holds. The output position is the new image's length
// then.
void inject_class(ClassRewriteState& ci);

// The name of the class in the input, which is read up to this_class.
std::string_view read_class_name(ClassRewriteState& ci);

}  // namespace crw

#endif
