// The class file's constant pool (JVM specification, section 4.4): it is indexed where it lies in the input, copied as
// a whole, and extended with what the injected code and java.lang.Object's new members refer to. Entries are appended
// in a fixed order and never shared with those that are there already.
#ifndef JAVA_CRW_DEMO_CONSTANT_POOL_H
#define JAVA_CRW_DEMO_CONSTANT_POOL_H

#include <string_view>

#include "class_rewrite_state.h"

namespace crw {

// Indexes the pool, with the cursor on constant_pool_count, and leaves it behind the last entry. Fails for a tag that
// versions up to 52 do not have.
void cpool_index(ClassRewriteState& ci);

// Indexes the pool, copies and extends it, and writes the new count.
void cpool_setup(ClassRewriteState& ci);

// The text of a Utf8 entry. Fails where the index does not lead to one.
std::string_view cpool_text(const ClassRewriteState& ci, uint32_t index);

// The name of a class by the index of its Class entry.
std::string_view cpool_class_name(const ClassRewriteState& ci, uint32_t index);

// Whether the text at an index, an attribute's name, is a given one.
inline bool attribute_match(const ClassRewriteState& ci, uint32_t name_index, std::string_view name) {
    return cpool_text(ci, name_index) == name;
}

}  // namespace crw

#endif
