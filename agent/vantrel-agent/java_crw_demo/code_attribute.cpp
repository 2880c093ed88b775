#include "code_attribute.h"

#include "constant_pool.h"
#include "images.h"
#include "stack_maps.h"
#include "type_annotations.h"

namespace crw {

namespace {

void write_new_pc(MethodRewriteState& mi) {
    write_u2(mi.ci, static_cast<uint32_t>(mi.new_pc(read_u2(mi.ci))));
}

// Returns the number of entries of a table. All of them must be inside the attribute.
uint16_t copy_table_length(MethodRewriteState& mi, uint32_t attr_len, size_t entry_size) {
    ClassRewriteState& ci = mi.ci;
    const uint16_t length = copy_u2(ci);
    require(ci, sizeof length + length * entry_size <= attr_len, kInsideImages);
    return length;
}

void write_line_number_table(MethodRewriteState& mi, uint32_t attr_len) {
    ClassRewriteState& ci = mi.ci;
    constexpr size_t kEntrySize = 4;
    for (uint16_t left = copy_table_length(mi, attr_len, kEntrySize); left > 0; --left) {
        write_u2(ci, static_cast<uint32_t>(new_start(mi, read_u2(ci))));
        copy_u2(ci);  // line_number
    }
}

// LocalVariableTable and LocalVariableTypeTable have one layout.
void write_var_table(MethodRewriteState& mi, uint32_t attr_len) {
    ClassRewriteState& ci = mi.ci;
    constexpr size_t kEntrySize = 10;
    constexpr size_t kNameDescriptorAndIndexSize = 6;
    for (uint16_t left = copy_table_length(mi, attr_len, kEntrySize); left > 0; --left) {
        const uint16_t start_pc = read_u2(ci);
        const uint16_t length = read_u2(ci);
        const int32_t start = new_start(mi, start_pc);
        write_u2(ci, static_cast<uint32_t>(start));
        write_u2(ci, static_cast<uint32_t>(mi.new_pc(uint32_t{start_pc} + length) - start));
        copy_bytes(ci, kNameDescriptorAndIndexSize);
    }
}

}  // namespace

int32_t new_start(const MethodRewriteState& mi, uint16_t start_pc) {
    return start_pc == 0 ? 0 : mi.new_pc(start_pc);
}

void write_exception_table(MethodRewriteState& mi) {
    for (uint16_t left = copy_u2(mi.ci); left > 0; --left) {
        write_new_pc(mi);  // start_pc
        write_new_pc(mi);  // end_pc
        write_new_pc(mi);  // handler_pc
        copy_u2(mi.ci);    // catch_type
    }
}

void method_write_code_attribute(MethodRewriteState& mi) {
    ClassRewriteState& ci = mi.ci;
    const std::string_view name = cpool_text(ci, copy_u2(ci));
    const size_t length_position = ci.output_position;
    const uint32_t attr_len = copy_attribute_length(ci);
    if (name == "LineNumberTable") {
        write_line_number_table(mi, attr_len);
    } else if (name == "LocalVariableTable" || name == "LocalVariableTypeTable") {
        write_var_table(mi, attr_len);
    } else if (name == "StackMapTable") {
        write_stack_map_table(mi, attr_len, length_position);
    } else if (name == "StackMap") {
        write_stack_map(mi, attr_len, length_position);
    } else if (ci.door == Door::kVantrelRewriter &&
               (name == "RuntimeVisibleTypeAnnotations" || name == "RuntimeInvisibleTypeAnnotations")) {
        write_type_annotations(mi, attr_len);
    } else {
        copy_bytes(ci, attr_len);
    }
}

}  // namespace crw
