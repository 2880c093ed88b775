#include "code_attribute.h"

#include "constant_pool.h"
#include "cursors.h"
#include "stack_maps.h"
#include "type_annotations.h"

namespace crw {

namespace {

template <typename Cursor>
int32_t new_pc(const MethodRewriteState& mi, Cursor& at, uint32_t pc) {
    if (pc > static_cast<uint32_t>(mi.code_len)) [[unlikely]] {
        at.stand();
    }
    return mi.new_pc(pc);
}

template <typename Cursor>
int32_t new_start(const MethodRewriteState& mi, Cursor& at, uint16_t start_pc) {
    const int32_t moved = new_pc(mi, at, start_pc);
    return start_pc == 0 ? 0 : moved;
}

// Writes the entries of a table, each by `write_entry`, which keeps their size.
template <typename WriteEntry>
void write_table(MethodRewriteState& mi, size_t count, size_t entry_size, const WriteEntry& write_entry) {
    in_one_check(mi.ci, count * entry_size, [&](auto& at) {
        for (size_t left = count; left > 0; --left) {
            write_entry(at);
        }
    });
}

// Returns the number of entries of a table. All of them must be inside the attribute.
uint16_t copy_table_length(MethodRewriteState& mi, uint32_t attr_len, size_t entry_size) {
    ClassRewriteState& ci = mi.ci;
    const uint16_t length = copy_u2(ci);
    require(ci, sizeof length + length * entry_size <= attr_len, kInsideImages);
    return length;
}

void write_line_number_table(MethodRewriteState& mi, uint32_t attr_len) {
    constexpr size_t kEntrySize = 4;
    write_table(mi, copy_table_length(mi, attr_len, kEntrySize), kEntrySize, [&mi](auto& at) {
        at.write_u2(static_cast<uint32_t>(new_start(mi, at, at.read_u2())));
        at.write_u2(at.read_u2());  // line_number
    });
}

// LocalVariableTable and LocalVariableTypeTable have one layout.
void write_var_table(MethodRewriteState& mi, uint32_t attr_len) {
    constexpr size_t kEntrySize = 10;
    write_table(mi, copy_table_length(mi, attr_len, kEntrySize), kEntrySize, [&mi](auto& at) {
        const uint16_t start_pc = at.read_u2();
        const uint16_t length = at.read_u2();
        const int32_t start = new_start(mi, at, start_pc);
        at.write_u2(static_cast<uint32_t>(start));
        at.write_u2(static_cast<uint32_t>(new_pc(mi, at, uint32_t{start_pc} + length) - start));
        at.write_u2(at.read_u2());  // name_index
        at.write_u2(at.read_u2());  // descriptor_index or signature_index
        at.write_u2(at.read_u2());  // index
    });
}

}  // namespace

int32_t new_start(const MethodRewriteState& mi, uint16_t start_pc) {
    const int32_t moved = mi.new_pc(start_pc);
    return start_pc == 0 ? 0 : moved;
}

void write_exception_table(MethodRewriteState& mi) {
    constexpr size_t kEntrySize = 8;
    write_table(mi, copy_u2(mi.ci), kEntrySize, [&mi](auto& at) {
        for (int pc = 0; pc < 3; ++pc) {  // start_pc, end_pc, handler_pc
            at.write_u2(static_cast<uint32_t>(new_pc(mi, at, at.read_u2())));
        }
        at.write_u2(at.read_u2());  // catch_type
    });
}

void method_write_code_attribute(MethodRewriteState& mi) {
    ClassRewriteState& ci = mi.ci;
    AttributeName name{};
    uint32_t attr_len = 0;
    in_one_check(ci, kAttributeHeadSize, [&](auto& at) {
        const uint16_t name_index = at.copy_u2();
        at.stand();
        name = cpool_attribute_name(ci, name_index);
        attr_len = at.copy_u4();
    });
    require_attribute(ci, attr_len);
    const size_t length_position = ci.output_position - sizeof attr_len;
    switch (name) {
        case AttributeName::kLineNumberTable:
            return write_line_number_table(mi, attr_len);
        case AttributeName::kLocalVariableTable:
        case AttributeName::kLocalVariableTypeTable:
            return write_var_table(mi, attr_len);
        case AttributeName::kStackMapTable:
            return write_stack_map_table(mi, attr_len, length_position);
        case AttributeName::kStackMap:
            return write_stack_map(mi, attr_len, length_position);
        case AttributeName::kTypeAnnotations:
            if (ci.door == Door::kVantrelRewriter) {
                return write_type_annotations(mi, attr_len);
            }
            break;
        default:
            break;
    }
    copy_bytes(ci, attr_len);
}

}  // namespace crw
