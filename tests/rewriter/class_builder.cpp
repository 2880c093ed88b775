#include "class_builder.h"

#include <utility>

namespace class_builder {

namespace {

enum Tag : std::uint8_t {
    utf8_tag = 1,
    integer_tag = 3,
    float_tag = 4,
    long_tag = 5,
    double_tag = 6,
    class_tag = 7,
    string_tag = 8,
    field_ref_tag = 9,
    method_ref_tag = 10,
    interface_method_ref_tag = 11,
    name_and_type_tag = 12,
    method_handle_tag = 15,
    method_type_tag = 16,
    invoke_dynamic_tag = 18,
};

Bytes big_endian(std::int64_t value, int length) {
    Bytes bytes;
    for (int i = length - 1; i >= 0; i--) {
        bytes.push_back(static_cast<std::uint8_t>(static_cast<std::uint64_t>(value) >> (8 * i)));
    }
    return bytes;
}

Bytes text_bytes(std::string_view text) {
    return {text.begin(), text.end()};
}

Bytes counted(const std::vector<Bytes>& items) {
    Bytes bytes = u2(static_cast<std::int64_t>(items.size()));
    for (const Bytes& item : items) {
        append(bytes, item);
    }
    return bytes;
}

std::uint16_t shared(ConstantPool& pool, const Bytes& entry, unsigned indexes = 1) {
    const auto found = pool.known.find(entry);
    return found == pool.known.end() ? pool.add(entry, indexes) : found->second;
}

std::uint16_t member_ref(ConstantPool& pool, Tag tag, std::string_view owner, std::string_view name,
                         std::string_view descriptor) {
    const std::uint16_t class_index = pool.class_(owner);
    return shared(pool, cat({u1(tag), u2(class_index), u2(pool.name_and_type(name, descriptor))}));
}

Bytes attributes_of(ConstantPool& pool, const std::vector<Attribute>& attributes) {
    Bytes bytes;
    for (const Attribute& attribute : attributes) {
        const auto length = static_cast<std::uint32_t>(attribute.body.size());
        append(bytes, cat({u2(pool.utf8(attribute.name)), u4(attribute.length.value_or(length)), attribute.body}));
    }
    return bytes;
}

Bytes body_of(ConstantPool& pool, const Code& code) {
    Bytes bytes =
        cat({u2(code.max_stack), u2(code.max_locals), u4(static_cast<std::int64_t>(code.bytes.size())), code.bytes});
    append(bytes, u2(static_cast<std::int64_t>(code.handlers.size())));
    for (const Handler& handler : code.handlers) {
        append(bytes, cat({u2(handler.start), u2(handler.end), u2(handler.handler), u2(handler.catch_type)}));
    }
    append(bytes, u2(static_cast<std::int64_t>(code.attributes.size())));
    append(bytes, attributes_of(pool, code.attributes));
    return bytes;
}

Bytes members_of(ConstantPool& pool, const std::vector<Member>& members) {
    Bytes bytes = u2(static_cast<std::int64_t>(members.size()));
    for (const Member& member : members) {
        std::vector<Attribute> attributes = member.attributes;
        if (member.code) {
            attributes.insert(attributes.begin(), {"Code", body_of(pool, *member.code)});
        }
        append(bytes, cat({u2(member.access), u2(pool.utf8(member.name)), u2(pool.utf8(member.descriptor)),
                           u2(static_cast<std::int64_t>(attributes.size())), attributes_of(pool, attributes)}));
    }
    return bytes;
}

Attribute variable_table(const char* name, const std::vector<Variable>& variables) {
    std::vector<Bytes> entries;
    entries.reserve(variables.size());
    for (const Variable& v : variables) {
        entries.push_back(cat({u2(v.start), u2(v.length), u2(v.name_index), u2(v.descriptor_index), u2(v.slot)}));
    }
    return {name, counted(entries)};
}

}  // namespace

Bytes u1(std::int64_t value) {
    return big_endian(value, 1);
}

Bytes u2(std::int64_t value) {
    return big_endian(value, 2);
}

Bytes u4(std::int64_t value) {
    return big_endian(value, 4);
}

void append(Bytes& to, const Bytes& more) {
    to.insert(to.end(), more.begin(), more.end());
}

Bytes cat(std::initializer_list<Bytes> parts) {
    Bytes whole;
    for (const Bytes& part : parts) {
        append(whole, part);
    }
    return whole;
}

Bytes times(std::size_t count, const Bytes& part) {
    Bytes whole;
    for (std::size_t i = 0; i < count; i++) {
        append(whole, part);
    }
    return whole;
}

Bytes branch(unsigned opcode, std::int64_t offset) {
    return cat({u1(opcode), u2(offset)});
}

Bytes branch_w(unsigned opcode, std::int64_t offset) {
    return cat({u1(opcode), u4(offset)});
}

Bytes wide(unsigned opcode, unsigned index) {
    return cat({u1(op::wide), u1(opcode), u2(index)});
}

Bytes wide_iinc(unsigned index, int amount) {
    return cat({u1(op::wide), u1(op::iinc), u2(index), u2(amount)});
}

Bytes tableswitch(std::size_t pc, std::int64_t fallback, std::int64_t low, const std::vector<std::int64_t>& offsets) {
    const auto high = low + static_cast<std::int64_t>(offsets.size()) - 1;
    Bytes bytes = cat({u1(op::tableswitch), times(3 - pc % 4, u1(0)), u4(fallback), u4(low), u4(high)});
    for (const std::int64_t offset : offsets) {
        append(bytes, u4(offset));
    }
    return bytes;
}

Bytes lookupswitch(std::size_t pc, std::int64_t fallback, const std::vector<Pair>& pairs) {
    Bytes bytes = cat(
        {u1(op::lookupswitch), times(3 - pc % 4, u1(0)), u4(fallback), u4(static_cast<std::int64_t>(pairs.size()))});
    for (const Pair& pair : pairs) {
        append(bytes, cat({u4(pair.match), u4(pair.offset)}));
    }
    return bytes;
}

std::uint16_t ConstantPool::add(const Bytes& entry, unsigned indexes) {
    const auto index = static_cast<std::uint16_t>(count);
    append(bytes, entry);
    known.emplace(entry, index);
    count += indexes;
    return index;
}

void ConstantPool::fill(unsigned wanted_count) {
    while (count < wanted_count) {
        add(cat({u1(integer_tag), u4(count)}));
    }
}

std::uint16_t ConstantPool::utf8(std::string_view text) {
    return shared(*this, cat({u1(utf8_tag), u2(static_cast<std::int64_t>(text.size())), text_bytes(text)}));
}

std::uint16_t ConstantPool::integer(std::uint32_t value) {
    return shared(*this, cat({u1(integer_tag), u4(value)}));
}

std::uint16_t ConstantPool::float_bits(std::uint32_t bits) {
    return shared(*this, cat({u1(float_tag), u4(bits)}));
}

std::uint16_t ConstantPool::long_(std::uint64_t value) {
    return shared(*this, cat({u1(long_tag), big_endian(static_cast<std::int64_t>(value), 8)}), 2);
}

std::uint16_t ConstantPool::double_bits(std::uint64_t bits) {
    return shared(*this, cat({u1(double_tag), big_endian(static_cast<std::int64_t>(bits), 8)}), 2);
}

std::uint16_t ConstantPool::class_(std::string_view name) {
    return shared(*this, cat({u1(class_tag), u2(utf8(name))}));
}

std::uint16_t ConstantPool::string(std::string_view text) {
    return shared(*this, cat({u1(string_tag), u2(utf8(text))}));
}

std::uint16_t ConstantPool::name_and_type(std::string_view name, std::string_view descriptor) {
    const std::uint16_t name_index = utf8(name);
    return shared(*this, cat({u1(name_and_type_tag), u2(name_index), u2(utf8(descriptor))}));
}

std::uint16_t ConstantPool::field_ref(std::string_view owner, std::string_view name, std::string_view descriptor) {
    return member_ref(*this, field_ref_tag, owner, name, descriptor);
}

std::uint16_t ConstantPool::method_ref(std::string_view owner, std::string_view name, std::string_view descriptor) {
    return member_ref(*this, method_ref_tag, owner, name, descriptor);
}

std::uint16_t ConstantPool::interface_method_ref(std::string_view owner, std::string_view name,
                                                 std::string_view descriptor) {
    return member_ref(*this, interface_method_ref_tag, owner, name, descriptor);
}

std::uint16_t ConstantPool::method_handle(unsigned kind, unsigned reference) {
    return shared(*this, cat({u1(method_handle_tag), u1(kind), u2(reference)}));
}

std::uint16_t ConstantPool::method_type(std::string_view descriptor) {
    return shared(*this, cat({u1(method_type_tag), u2(utf8(descriptor))}));
}

std::uint16_t ConstantPool::invoke_dynamic(unsigned bootstrap, std::string_view name, std::string_view descriptor) {
    return shared(*this, cat({u1(invoke_dynamic_tag), u2(bootstrap), u2(name_and_type(name, descriptor))}));
}

namespace {

// What follows the pool. All that it refers to is in the pool afterwards.
Bytes rest_of(ClassFile& file) {
    ConstantPool& pool = file.pool;
    Bytes rest = cat({u2(file.access), u2(pool.class_(file.name)), u2(file.super.empty() ? 0 : pool.class_(file.super)),
                      u2(static_cast<std::int64_t>(file.interfaces.size()))});
    for (const std::string& interface : file.interfaces) {
        append(rest, u2(pool.class_(interface)));
    }
    append(rest, members_of(pool, file.fields));
    append(rest, members_of(pool, file.methods));
    append(rest, u2(static_cast<std::int64_t>(file.attributes.size())));
    append(rest, attributes_of(pool, file.attributes));
    return rest;
}

}  // namespace

Bytes assemble(ClassFile file) {
    const Bytes rest = rest_of(file);
    return cat({u4(0xCAFEBABE), u2(file.minor), u2(file.major), u2(file.pool.count), file.pool.bytes, rest});
}

ClassFile completed(ClassFile file) {
    rest_of(file);
    return file;
}

Attribute line_number_table(const std::vector<Line>& lines) {
    std::vector<Bytes> entries;
    entries.reserve(lines.size());
    for (const Line& line : lines) {
        entries.push_back(cat({u2(line.start), u2(line.line)}));
    }
    return {"LineNumberTable", counted(entries)};
}

Attribute local_variable_table(const std::vector<Variable>& variables) {
    return variable_table("LocalVariableTable", variables);
}

Attribute local_variable_type_table(const std::vector<Variable>& variables) {
    return variable_table("LocalVariableTypeTable", variables);
}

Bytes type(unsigned tag) {
    return u1(tag);
}

Bytes object_type(unsigned class_index) {
    return cat({u1(7), u2(class_index)});
}

Bytes uninitialized_type(unsigned new_pc) {
    return cat({u1(8), u2(new_pc)});
}

Bytes same_frame(unsigned delta) {
    return u1(delta);
}

Bytes same_frame_extended(unsigned delta) {
    return cat({u1(251), u2(delta)});
}

Bytes one_item_frame(unsigned delta, const Bytes& item) {
    return cat({u1(64 + delta), item});
}

Bytes one_item_frame_extended(unsigned delta, const Bytes& item) {
    return cat({u1(247), u2(delta), item});
}

Bytes chop_frame(unsigned chopped, unsigned delta) {
    return cat({u1(251 - chopped), u2(delta)});
}

Bytes append_frame(unsigned delta, const std::vector<Bytes>& locals) {
    Bytes bytes = cat({u1(251 + static_cast<std::int64_t>(locals.size())), u2(delta)});
    for (const Bytes& local : locals) {
        append(bytes, local);
    }
    return bytes;
}

Bytes full_frame(unsigned delta, const std::vector<Bytes>& locals, const std::vector<Bytes>& stack) {
    return cat({u1(255), u2(delta), counted(locals), counted(stack)});
}

Attribute stack_map_table(const std::vector<Bytes>& frames) {
    return {"StackMapTable", counted(frames)};
}

Bytes stack_map_frame(unsigned pc, const std::vector<Bytes>& locals, const std::vector<Bytes>& stack) {
    return cat({u2(pc), counted(locals), counted(stack)});
}

Attribute stack_map(const std::vector<Bytes>& frames) {
    return {"StackMap", counted(frames)};
}

}  // namespace class_builder
