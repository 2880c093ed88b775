// Class files for tests, put together by hand (JVM specification, chapter 4).
//
//     ClassFile file;
//     Code code;
//     code.bytes = cat({u1(op::iload_0), branch(op::ifeq, 4), u1(op::return_), u1(op::return_)});
//     code.handlers = {{.start = 0, .end = 5, .handler = 5}};
//     code.attributes = {line_number_table({{0, 7}, {4, 8}}), stack_map_table({same_frame(5)})};
//     file.methods.push_back({.name = "run", .descriptor = "(I)V", .code = code});
//     Bytes image = assemble(file);
//
// Nothing is checked or completed: what a test writes down is what the image holds, however wrong.
#ifndef VANTREL_CLASS_BUILDER_H
#define VANTREL_CLASS_BUILDER_H

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace class_builder {

using Bytes = std::vector<std::uint8_t>;

// Big-endian values; negative ones in two's complement, higher bits are cut off.
Bytes u1(std::int64_t value);
Bytes u2(std::int64_t value);
Bytes u4(std::int64_t value);
Bytes cat(std::initializer_list<Bytes> parts);
void append(Bytes& to, const Bytes& more);
Bytes times(std::size_t count, const Bytes& part);

// Instructions. Offsets are relative to the instruction, as in the class file.
namespace op {
enum : std::uint8_t {
    nop = 0,
    aconst_null = 1,
    iconst_0 = 3,
    iconst_5 = 8,
    lconst_0 = 9,
    fconst_0 = 11,
    dconst_0 = 14,
    bipush = 16,
    sipush = 17,
    ldc = 18,
    ldc_w = 19,
    ldc2_w = 20,
    iload = 21,
    aload = 25,
    iload_0 = 26,
    aload_0 = 42,
    iaload = 46,
    istore = 54,
    astore = 58,
    istore_0 = 59,
    astore_0 = 75,
    astore_1 = 76,
    iastore = 79,
    pop = 87,
    pop2 = 88,
    dup = 89,
    dup_x1 = 90,
    dup_x2 = 91,
    dup2 = 92,
    dup2_x1 = 93,
    dup2_x2 = 94,
    swap = 95,
    iadd = 96,
    ineg = 116,
    ishl = 120,
    iand = 126,
    iinc = 132,
    i2l = 133,
    i2b = 145,
    lcmp = 148,
    fcmpl = 149,
    dcmpl = 151,
    dcmpg = 152,
    ifeq = 153,
    ifne = 154,
    iflt = 155,
    ifge = 156,
    ifgt = 157,
    ifle = 158,
    if_icmpeq = 159,
    if_icmpne = 160,
    if_icmplt = 161,
    if_icmpge = 162,
    if_icmpgt = 163,
    if_icmple = 164,
    if_acmpeq = 165,
    if_acmpne = 166,
    goto_ = 167,
    jsr = 168,
    ret = 169,
    tableswitch = 170,
    lookupswitch = 171,
    ireturn = 172,
    lreturn = 173,
    freturn = 174,
    dreturn = 175,
    areturn = 176,
    return_ = 177,
    getstatic = 178,
    putstatic = 179,
    getfield = 180,
    putfield = 181,
    invokevirtual = 182,
    invokespecial = 183,
    invokestatic = 184,
    invokeinterface = 185,
    invokedynamic = 186,
    new_ = 187,
    newarray = 188,
    anewarray = 189,
    athrow = 191,
    checkcast = 192,
    instanceof_ = 193,
    monitorenter = 194,
    wide = 196,
    multianewarray = 197,
    ifnull = 198,
    ifnonnull = 199,
    goto_w = 200,
    jsr_w = 201,
};
}  // namespace op

Bytes branch(unsigned opcode, std::int64_t offset);    // two bytes of offset
Bytes branch_w(unsigned opcode, std::int64_t offset);  // goto_w, jsr_w
Bytes wide(unsigned opcode, unsigned index);           // all but iinc
Bytes wide_iinc(unsigned index, int amount);
struct Pair {
    std::int64_t match;
    std::int64_t offset;
};
// A switch is padded for the pc at which it stands.
Bytes tableswitch(std::size_t pc, std::int64_t fallback, std::int64_t low, const std::vector<std::int64_t>& offsets);
Bytes lookupswitch(std::size_t pc, std::int64_t fallback, const std::vector<Pair>& pairs);

// A constant that the pool has already is found again, whichever of these added it; `add` and `fill` always append.
struct ConstantPool {
    std::uint16_t utf8(std::string_view text);
    std::uint16_t integer(std::uint32_t value);
    std::uint16_t float_bits(std::uint32_t bits);
    std::uint16_t long_(std::uint64_t value);
    std::uint16_t double_bits(std::uint64_t bits);
    std::uint16_t class_(std::string_view name);
    std::uint16_t string(std::string_view text);
    std::uint16_t name_and_type(std::string_view name, std::string_view descriptor);
    std::uint16_t field_ref(std::string_view owner, std::string_view name, std::string_view descriptor);
    std::uint16_t method_ref(std::string_view owner, std::string_view name, std::string_view descriptor);
    std::uint16_t interface_method_ref(std::string_view owner, std::string_view name, std::string_view descriptor);
    std::uint16_t method_handle(unsigned kind, unsigned reference);
    std::uint16_t method_type(std::string_view descriptor);
    std::uint16_t invoke_dynamic(unsigned bootstrap, std::string_view name, std::string_view descriptor);

    std::uint16_t add(const Bytes& entry, unsigned indexes = 1);  // tag and all, whatever it is
    void fill(unsigned wanted_count);                             // with Integers, until `count` is that

    unsigned count = 1;  // constant_pool_count
    Bytes bytes = {};
    std::map<Bytes, std::uint16_t> known = {};
};

struct Attribute {
    std::string name = {};
    Bytes body = {};
    std::optional<std::uint32_t> length = std::nullopt;  // the length given in the image, where it is not the body's
};

struct Handler {
    unsigned start = 0;
    unsigned end = 0;
    unsigned handler = 0;
    unsigned catch_type = 0;
};

struct Code {
    unsigned max_stack = 4;
    unsigned max_locals = 4;
    Bytes bytes = {};
    std::vector<Handler> handlers = {};
    std::vector<Attribute> attributes = {};
};

struct Member {  // a field or a method
    unsigned access = 0x0009;
    std::string name = "m";
    std::string descriptor = "()V";
    std::optional<Code> code = {};
    std::vector<Attribute> attributes = {};  // those besides Code
};

struct ClassFile {
    unsigned minor = 0;
    unsigned major = 49;
    ConstantPool pool = {};  // assemble adds after these what else it needs
    unsigned access = 0x0021;
    std::string name = "com/example/Sample";
    std::string super = "java/lang/Object";  // empty: none
    std::vector<std::string> interfaces = {};
    std::vector<Member> fields = {};
    std::vector<Member> methods = {};
    std::vector<Attribute> attributes = {};
};

Bytes assemble(ClassFile file);

// The same class with everything in its pool that assemble would add.
ClassFile completed(ClassFile file);

// Bodies of nested attributes of Code.
struct Line {
    unsigned start;
    unsigned line;
};
struct Variable {
    unsigned start;
    unsigned length;
    unsigned name_index = 1;
    unsigned descriptor_index = 1;
    unsigned slot = 0;
};
Attribute line_number_table(const std::vector<Line>& lines);
Attribute local_variable_table(const std::vector<Variable>& variables);
Attribute local_variable_type_table(const std::vector<Variable>& variables);

// Verification types of a stack map: Top (0) to UninitializedThis (6), and the two that say more.
Bytes type(unsigned tag);
Bytes object_type(unsigned class_index);
Bytes uninitialized_type(unsigned new_pc);

Bytes same_frame(unsigned delta);  // delta below 64
Bytes same_frame_extended(unsigned delta);
Bytes one_item_frame(unsigned delta, const Bytes& item);  // delta below 64
Bytes one_item_frame_extended(unsigned delta, const Bytes& item);
Bytes chop_frame(unsigned chopped, unsigned delta);  // 1 to 3 locals
Bytes append_frame(unsigned delta, const std::vector<Bytes>& locals);
Bytes full_frame(unsigned delta, const std::vector<Bytes>& locals, const std::vector<Bytes>& stack);
Attribute stack_map_table(const std::vector<Bytes>& frames);

// The older format: the frames' own offsets, and full frames only.
Bytes stack_map_frame(unsigned pc, const std::vector<Bytes>& locals, const std::vector<Bytes>& stack);
Attribute stack_map(const std::vector<Bytes>& frames);

}  // namespace class_builder

#endif
