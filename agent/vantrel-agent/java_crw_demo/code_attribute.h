// What follows the code in a Code attribute: the exception table and the nested attributes, whose pcs are old ones.
#ifndef JAVA_CRW_DEMO_CODE_ATTRIBUTE_H
#define JAVA_CRW_DEMO_CODE_ATTRIBUTE_H

#include "injection.h"

namespace crw {

// Rewrites the exception table, with the cursors on its length.
void write_exception_table(MethodRewriteState& mi);

// Rewrites one nested attribute, with the cursors on its name.
void method_write_code_attribute(MethodRewriteState& mi);

}  // namespace crw

#endif
