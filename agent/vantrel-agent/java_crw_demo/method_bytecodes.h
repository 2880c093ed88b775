// A method's Code attribute from its first byte to its last (JVM specification, section 4.7.3), and the order in which
// the other files work on it: whether the method is instrumented at all, the calls to inject (injection.h), the plan
// (plan.h), the branches (relocation.h), the new code, and the tables that follow the code (code_attribute.h).
#ifndef JAVA_CRW_DEMO_METHOD_BYTECODES_H
#define JAVA_CRW_DEMO_METHOD_BYTECODES_H

#include <cstdint>
#include <string_view>

#include "class_rewrite_state.h"

namespace crw {

// A method as the class file has it.
struct Method {
    uint32_t number;  // in the order of the class file, from 0
    uint16_t access_flags;
    std::string_view name;
    std::string_view descriptor;
};

// Rewrites a method's Code attribute, whose head has been copied: both images are after attribute_length.
void method_write_bytecodes(ClassRewriteState& ci, const Method& method, uint32_t attr_len);

}  // namespace crw

#endif
