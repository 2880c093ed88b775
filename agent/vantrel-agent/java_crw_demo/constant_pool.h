// The constant pool (JVM specification, section 4.4). Its entries stay where they are in the class file, and the record
// of the class keeps their positions. The new image gets a copy of the whole pool, and after it the rewriter's own
// entries: those that the injected calls and java.lang.Object's new members refer to. They come in a fixed order, and
// are added even where the pool has an equal one already.
#ifndef JAVA_CRW_DEMO_CONSTANT_POOL_H
#define JAVA_CRW_DEMO_CONSTANT_POOL_H

#include <string_view>

#include "images.h"

namespace crw {

// What a failure says of an index that does not lead to an entry of the right kind.
constexpr const char* kIndexRule = "c_index > 0 && c_index < ci->cpool_count_plus_one";

// Reads the pool, from constant_pool_count to the last entry, and keeps the entries' positions. Fails for a tag that
// class files of the versions that are taken do not have.
void cpool_index(ClassRewriteState& ci);

// Reads the pool as above, copies it, appends the rewriter's entries and writes the new count.
void cpool_setup(ClassRewriteState& ci);

// The index of a Class entry for a name or an array's descriptor: an entry of the class file, or a new one that is put
// into the pool when the whole class has been rewritten. The first call for a class reads its whole pool.
uint16_t cpool_class_index(ClassRewriteState& ci, std::string_view name);

// Puts the entries that were added after the pool had been written to its end, and corrects the count.
void cpool_insert_late_constants(ClassRewriteState& ci);

// The descriptor of a field or method by the index of its Fieldref, Methodref, InterfaceMethodref, InvokeDynamic or
// Dynamic entry, and the name of a method likewise.
std::string_view cpool_member_descriptor(const ClassRewriteState& ci, uint32_t index);
std::string_view cpool_member_name(const ClassRewriteState& ci, uint32_t index);

// The tag of an entry (JVM specification, table 4.4-A).
uint8_t cpool_tag(const ClassRewriteState& ci, uint32_t index);

// The text of a Utf8 entry. Fails where the index does not lead to one. cpool_odd_text is the rare part of it.
std::string_view cpool_odd_text(const ClassRewriteState& ci, uint32_t index);
inline std::string_view cpool_text(const ClassRewriteState& ci, uint32_t index) {
    constexpr uint8_t kUtf8 = 1;
    // An index without an entry has position 0. The first byte of a class file is not this tag.
    if (index < ci.constant_positions.size()) [[likely]] {
        const uint8_t* entry = ci.input + ci.constant_positions[index];
        if (entry[0] == kUtf8) [[likely]] {
            return {reinterpret_cast<const char*>(entry) + 3, u2_at(entry + 1)};
        }
    }
    return cpool_odd_text(ci, index);
}

// The name of a class by the index of its Class entry.
std::string_view cpool_class_name(const ClassRewriteState& ci, uint32_t index);

// Which attribute the text at an index names. Fails where the index does not lead to a text. cpool_new_attribute_name
// is the part of it for an index that is not in the cache.
AttributeName cpool_new_attribute_name(ClassRewriteState& ci, uint32_t index);
inline AttributeName cpool_attribute_name(ClassRewriteState& ci, uint32_t index) {
    const KnownAttributeName& known = ci.known_attribute_names[index % ci.known_attribute_names.size()];
    return known.index == index ? known.name : cpool_new_attribute_name(ci, index);
}

}  // namespace crw

#endif
