// What follows the code in a Code attribute: the exception table, and attributes such as LineNumberTable,
// LocalVariableTable and the stack maps. They stand in old pcs and are written in new ones; method_rewrite_state.h says
// by which rule. An attribute that is not known here is copied as it is.
#ifndef JAVA_CRW_DEMO_CODE_ATTRIBUTE_H
#define JAVA_CRW_DEMO_CODE_ATTRIBUTE_H

#include "method_rewrite_state.h"

namespace crw {

// Where a line or a variable starts. One that starts with the method still does, so that the call at the entry is part
// of it.
int32_t new_start(const MethodRewriteState& mi, uint16_t start_pc);

// Rewrites the exception table, from its length on.
void write_exception_table(MethodRewriteState& mi);

// Rewrites one attribute, from its name on.
void method_write_code_attribute(MethodRewriteState& mi);

}  // namespace crw

#endif
