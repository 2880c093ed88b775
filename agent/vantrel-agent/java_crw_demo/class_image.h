// The class file from its first byte to its last (JVM specification, section 4.1). What the rewriter does not change is
// copied; the constant pool is left to constant_pool.h, and each method's code to method_bytecodes.h.
#ifndef JAVA_CRW_DEMO_CLASS_IMAGE_H
#define JAVA_CRW_DEMO_CLASS_IMAGE_H

#include <cstdint>
#include <string_view>

#include "class_rewrite_state.h"

namespace crw {

constexpr uint16_t kNewestModernMajorVersion = 69;

// What a failure says of a class file whose version is too new.
constexpr const char* kVersionRule =
    "(classfileMajorVersion <= JVM_CLASSFILE_MAJOR_VERSION) || "
    "((classfileMajorVersion == JVM_CLASSFILE_MAJOR_VERSION) && "
    "(classfileMinorVersion <= JVM_CLASSFILE_MINOR_VERSION))";
constexpr const char* kMagicRule = "magic==0xCAFEBABE";

// Rewrites the class. The record must have the images, the trackers and the flags; afterwards its output position is
// the length of the new image. A module-info is only recognised, and gets no new image: it has no code.
void inject_class(ClassRewriteState& ci);

// The name of the class, for which the class file is read up to this_class. The text lies in the class file.
std::string_view read_class_name(ClassRewriteState& ci);

}  // namespace crw

#endif
