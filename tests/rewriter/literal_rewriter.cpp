#include "literal_rewriter.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

#include "class_builder.h"

namespace literal_rewriter {

namespace op = class_builder::op;

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int opcode_count = 202;

// Lengths with the opcode; 99 for the switches and 0 for wide, which are never asked for.
constexpr std::array<std::uint8_t, opcode_count> opcode_lengths = {
    1, 1,  1,  1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,  // nop .. dconst_1
    2, 3,  2,  3, 3,                                   // bipush sipush ldc ldc_w ldc2_w
    2, 2,  2,  2, 2,                                   // iload .. aload
    1, 1,  1,  1, 1, 1, 1, 1, 1, 1,                    // iload_0 .. fload_1
    1, 1,  1,  1, 1, 1, 1, 1, 1, 1,                    // fload_2 .. aload_3
    1, 1,  1,  1, 1, 1, 1, 1,                          // iaload .. saload
    2, 2,  2,  2, 2,                                   // istore .. astore
    1, 1,  1,  1, 1, 1, 1, 1, 1, 1,                    // istore_0 .. fstore_1
    1, 1,  1,  1, 1, 1, 1, 1, 1, 1,                    // fstore_2 .. astore_3
    1, 1,  1,  1, 1, 1, 1, 1,                          // iastore .. sastore
    1, 1,  1,  1, 1, 1, 1, 1, 1,                       // pop .. swap
    1, 1,  1,  1, 1, 1, 1, 1, 1, 1, 1, 1,              // iadd .. dmul
    1, 1,  1,  1, 1, 1, 1, 1, 1, 1, 1, 1,              // idiv .. dneg
    1, 1,  1,  1, 1, 1, 1, 1, 1, 1, 1, 1,              // ishl .. lxor
    3,                                                 // iinc
    1, 1,  1,  1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,     // i2l .. i2s
    1, 1,  1,  1, 1,                                   // lcmp .. dcmpg
    3, 3,  3,  3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3,  // ifeq .. jsr
    2, 99, 99,                                         // ret tableswitch lookupswitch
    1, 1,  1,  1, 1, 1,                                // ireturn .. return
    3, 3,  3,  3, 3, 3, 3, 5, 5,                       // getstatic .. invokedynamic
    3, 2,  3,  1, 1, 3, 3, 1, 1,                       // new newarray anewarray arraylength athrow .. monitorexit
    0, 4,  3,  3, 5, 5                                 // wide multianewarray ifnull ifnonnull goto_w jsr_w
};

struct Failure {
    std::string message;
};

struct Constant {
    std::uint8_t tag = 0;
    std::uint32_t first = 0;
    std::uint32_t second = 0;
    std::string text;
};

struct MethodState;

struct ClassState {
    const RewriteOptions& options;
    std::span<const std::uint8_t> input;
    Bytes output = {};  // as long as it may get
    std::int64_t input_len = 0;
    std::int64_t output_len = 0;
    std::int64_t input_position = 0;
    std::int64_t output_position = 0;
    std::int64_t attribute_end = 0;  // where a table that must not outrun its attribute ends; else the input's end

    std::optional<std::string> name = {};
    std::vector<Constant> cpool = {};
    std::uint16_t cpool_max_elements = 0;
    std::uint16_t cpool_count_plus_one = 0;
    bool is_object_class = false;
    bool is_thread_class = false;

    std::uint16_t tracker_class_index = 0;
    std::uint16_t object_init_tracker_index = 0;
    std::uint16_t newarray_tracker_index = 0;
    std::uint16_t call_tracker_index = 0;
    std::uint16_t return_tracker_index = 0;
    std::uint16_t class_number_index = 0;
    std::uint32_t get_track_id_name_index = 0;
    std::uint32_t get_track_id_desc_index = 0;
    std::uint32_t track_name_index = 0;
    std::uint32_t track_desc_index = 0;

    std::vector<std::string> method_name = {};
    std::vector<std::string> method_descr = {};
    MethodState* current_mi = nullptr;
    std::size_t widened = 0;
    std::size_t repadded = 0;
};

struct MethodState {
    ClassState& ci;
    std::uint32_t number = 0;
    std::string name;
    std::string descr;
    std::vector<std::int32_t> map;
    std::vector<Bytes> injections;
    std::vector<std::int8_t> widening;
    std::int32_t code_len = 0;
    std::int32_t new_code_len = 0;
    std::int64_t start_of_input_bytecodes = 0;
    std::int32_t max_stack = 0;
    std::int32_t new_max_stack = 0;
    bool object_init_method = false;
    bool skip_call_return_sites = false;
};

// Failures.

[[noreturn]] void fatal_error(const std::string& message) {
    throw Failure{message};
}

[[noreturn]] void assert_error(const ClassState& ci, const char* condition) {
    std::int64_t pos = -1;
    std::string method = "?";
    if (ci.current_mi != nullptr) {
        method = ci.current_mi->name;
        pos = ci.input_position - ci.current_mi->start_of_input_bytecodes;
    }
    std::string message = std::string("CRW ASSERTION FAILURE: ") + condition + " (" + ci.name.value_or("?") + ":" +
                          method + ":" + std::to_string(pos) + ")";
    message.resize(std::min<std::size_t>(message.size(), 511));
    fatal_error(message);
}

void crw_assert(const ClassState& ci, bool holds, const char* condition) {
    if (!holds) {
        assert_error(ci, condition);
    }
}

[[noreturn]] void out_of_bounds(const ClassState& ci) {
    assert_error(ci,
                 "( (ci) != NULL && (ci)->input_position <= (ci)->input_len && "
                 "(ci)->output_position <= (ci)->output_len)");
}

void check_allocation(std::int64_t nbytes) {
    if (nbytes <= 0) {
        fatal_error("Cannot allocate <= 0 bytes");
    }
}

// Reading and writing.

std::uint32_t read_u1(ClassState& ci) {
    if (ci.input_position >= ci.attribute_end) {
        out_of_bounds(ci);
    }
    return ci.input[static_cast<std::size_t>(ci.input_position++)];
}

std::uint32_t read_u2(ClassState& ci) {
    const std::uint32_t high = read_u1(ci);
    return high << 8 | read_u1(ci);
}

std::uint32_t read_u4(ClassState& ci) {
    const std::uint32_t high = read_u2(ci);
    return high << 16 | read_u2(ci);
}

std::int32_t read_s2(ClassState& ci) {
    return static_cast<std::int16_t>(read_u2(ci));
}

std::int32_t read_s4(ClassState& ci) {
    return static_cast<std::int32_t>(read_u4(ci));
}

void skip(ClassState& ci, std::int64_t count) {
    while (count-- > 0) {
        read_u1(ci);
    }
}

void write_u1(ClassState& ci, std::uint32_t value) {
    if (ci.output_position >= ci.output_len) {
        out_of_bounds(ci);
    }
    ci.output[static_cast<std::size_t>(ci.output_position++)] = static_cast<std::uint8_t>(value);
}

void write_u2(ClassState& ci, std::uint32_t value) {
    write_u1(ci, value >> 8);
    write_u1(ci, value);
}

void write_u4(ClassState& ci, std::uint32_t value) {
    write_u2(ci, value >> 16);
    write_u2(ci, value);
}

void write_s4(ClassState& ci, std::int64_t value) {
    write_u4(ci, static_cast<std::uint32_t>(value));
}

void write_bytes(ClassState& ci, const Bytes& bytes) {
    for (const std::uint8_t byte : bytes) {
        write_u1(ci, byte);
    }
}

void random_write_u2(ClassState& ci, std::int64_t position, std::uint32_t value) {
    const std::int64_t saved = ci.output_position;
    ci.output_position = position;
    write_u2(ci, value);
    ci.output_position = saved;
}

void random_write_u4(ClassState& ci, std::int64_t position, std::uint32_t value) {
    const std::int64_t saved = ci.output_position;
    ci.output_position = position;
    write_u4(ci, value);
    ci.output_position = saved;
}

std::uint32_t copy_u1(ClassState& ci) {
    const std::uint32_t value = read_u1(ci);
    write_u1(ci, value);
    return value;
}

std::uint32_t copy_u2(ClassState& ci) {
    const std::uint32_t value = read_u2(ci);
    write_u2(ci, value);
    return value;
}

std::uint32_t copy_u4(ClassState& ci) {
    const std::uint32_t value = read_u4(ci);
    write_u4(ci, value);
    return value;
}

void copy(ClassState& ci, std::uint32_t count) {
    for (std::uint32_t i = 0; i < count; i++) {
        copy_u1(ci);
    }
}

void copy_attributes(ClassState& ci) {
    const std::uint32_t count = copy_u2(ci);
    for (std::uint32_t i = 0; i < count; i++) {
        copy_u2(ci);
        copy(ci, copy_u4(ci));
    }
}

void copy_all_fields(ClassState& ci, std::uint32_t count) {
    for (std::uint32_t i = 0; i < count; i++) {
        copy(ci, 6);
        copy_attributes(ci);
    }
}

// The constant pool.

enum Tag : std::uint8_t {
    tag_utf8 = 1,
    tag_integer = 3,
    tag_float = 4,
    tag_long = 5,
    tag_double = 6,
    tag_class = 7,
    tag_string = 8,
    tag_fieldref = 9,
    tag_methodref = 10,
    tag_interface_methodref = 11,
    tag_name_and_type = 12,
    tag_method_handle = 15,
    tag_method_type = 16,
    tag_invoke_dynamic = 18,
};

const std::string& utf8_text(const ClassState& ci, std::uint32_t c_index) {
    crw_assert(ci, c_index > 0 && c_index < ci.cpool_count_plus_one && ci.cpool[c_index].tag == tag_utf8,
               "c_index > 0 && c_index < ci->cpool_count_plus_one");
    return ci.cpool[c_index].text;
}

const std::string& class_text(const ClassState& ci, std::uint32_t c_index) {
    crw_assert(ci, c_index > 0 && c_index < ci.cpool_count_plus_one && ci.cpool[c_index].tag == tag_class,
               "c_index > 0 && c_index < ci->cpool_count_plus_one");
    return utf8_text(ci, ci.cpool[c_index].first);
}

// Texts end at their first zero byte where they are handled as C strings.
std::string c_string(const std::string& text) {
    return text.substr(0, text.find('\0'));
}

bool attribute_match(const ClassState& ci, std::uint32_t name_index, std::string_view name) {
    return utf8_text(ci, name_index) == name;
}

std::uint16_t add_new_cpool_entry(ClassState& ci, Tag tag, std::uint32_t first, std::uint32_t second,
                                  const std::string& text) {
    crw_assert(ci, ci.cpool_count_plus_one < ci.cpool_max_elements,
               "ci->cpool_count_plus_one < ci->cpool_max_elements");
    write_u1(ci, tag);
    switch (tag) {
        case tag_utf8:
            crw_assert(ci, text.size() == (text.size() & 0xFFFF), "len==(len & 0xFFFF)");
            write_u2(ci, static_cast<std::uint32_t>(text.size()));
            write_bytes(ci, Bytes(text.begin(), text.end()));
            break;
        case tag_class:
            write_u2(ci, first);
            break;
        default:
            write_u2(ci, first);
            write_u2(ci, second);
            break;
    }
    const std::uint16_t index = ci.cpool_count_plus_one++;
    ci.cpool.resize(std::max<std::size_t>(ci.cpool.size(), index + 1U));
    ci.cpool[index] = {tag, first, second, text};
    return index;
}

std::uint16_t add_new_method_cpool_entry(ClassState& ci, std::uint16_t class_index, const std::string& name,
                                         const std::string& descr) {
    const std::uint16_t name_index = add_new_cpool_entry(ci, tag_utf8, 0, 0, name);
    const std::uint16_t descr_index = add_new_cpool_entry(ci, tag_utf8, 0, 0, descr);
    const std::uint16_t name_type_index = add_new_cpool_entry(ci, tag_name_and_type, name_index, descr_index, "");
    return add_new_cpool_entry(ci, tag_methodref, class_index, name_type_index, "");
}

void read_cpool_entry(ClassState& ci, Constant& entry) {
    entry.tag = static_cast<std::uint8_t>(copy_u1(ci));
    switch (entry.tag) {
        case tag_utf8: {
            const std::uint32_t len = copy_u2(ci);
            for (std::uint32_t i = 0; i < len; i++) {
                entry.text.push_back(static_cast<char>(copy_u1(ci)));
            }
            break;
        }
        case tag_class:
        case tag_string:
        case tag_method_type:
            entry.first = copy_u2(ci);
            break;
        case tag_integer:
        case tag_float:
        case tag_fieldref:
        case tag_methodref:
        case tag_interface_methodref:
        case tag_name_and_type:
        case tag_invoke_dynamic:
            entry.first = copy_u2(ci);
            entry.second = copy_u2(ci);
            break;
        case tag_long:
        case tag_double:
            entry.first = copy_u4(ci);
            entry.second = copy_u4(ci);
            break;
        case tag_method_handle:
            entry.first = copy_u1(ci);
            entry.second = copy_u2(ci);
            break;
        default:
            fatal_error("Unknown tag: " + std::to_string(entry.tag) + ", at ipos " +
                        std::to_string(static_cast<std::uint16_t>(ci.input_position)));
    }
}

void cpool_setup(ClassState& ci) {
    const RewriteOptions& options = ci.options;
    const std::int64_t count_position = ci.output_position;
    const std::uint32_t count_plus_one = copy_u2(ci);
    crw_assert(ci, count_plus_one > 1, "count_plus_one>1");

    ci.cpool_max_elements = static_cast<std::uint16_t>(count_plus_one + 0x7FFF);
    check_allocation(ci.cpool_max_elements);
    ci.cpool_count_plus_one = static_cast<std::uint16_t>(count_plus_one);
    ci.cpool.resize(count_plus_one);
    for (std::uint32_t i = 1; i < count_plus_one;) {
        read_cpool_entry(ci, ci.cpool[i]);
        i += ci.cpool[i].tag == tag_long || ci.cpool[i].tag == tag_double ? 2 : 1;
    }

    if ((options.call_name || options.return_name) && options.class_number != (options.class_number & 0x7FFF)) {
        ci.class_number_index = add_new_cpool_entry(ci, tag_integer, options.class_number >> 16 & 0xFFFF,
                                                    options.class_number & 0xFFFF, "");
    }
    const std::uint16_t tracker_name_index = add_new_cpool_entry(ci, tag_utf8, 0, 0, options.tracker_class);
    ci.tracker_class_index = add_new_cpool_entry(ci, tag_class, tracker_name_index, 0, "");
    if (options.obj_init_name) {
        ci.object_init_tracker_index =
            add_new_method_cpool_entry(ci, ci.tracker_class_index, *options.obj_init_name, "(Ljava/lang/Object;)V");
    }
    if (options.newarray_name) {
        ci.newarray_tracker_index =
            add_new_method_cpool_entry(ci, ci.tracker_class_index, *options.newarray_name, "(Ljava/lang/Object;)V");
    }
    if (options.call_name) {
        ci.call_tracker_index = add_new_method_cpool_entry(ci, ci.tracker_class_index, *options.call_name, "(II)V");
    }
    if (options.return_name) {
        ci.return_tracker_index = add_new_method_cpool_entry(ci, ci.tracker_class_index, *options.return_name, "(II)V");
    }

    ci.get_track_id_name_index = add_new_cpool_entry(ci, tag_utf8, 0, 0, "getTrackId");
    ci.get_track_id_desc_index = add_new_cpool_entry(ci, tag_utf8, 0, 0, "()I");
    const std::uint16_t get_track_id_index =
        add_new_cpool_entry(ci, tag_name_and_type, ci.get_track_id_name_index, ci.get_track_id_desc_index, "");
    add_new_cpool_entry(ci, tag_methodref, ci.tracker_class_index, get_track_id_index, "");

    ci.track_name_index = add_new_cpool_entry(ci, tag_utf8, 0, 0, "objectTrackId");
    ci.track_desc_index = add_new_cpool_entry(ci, tag_utf8, 0, 0, "I");
    const std::uint16_t track_index =
        add_new_cpool_entry(ci, tag_name_and_type, ci.track_name_index, ci.track_desc_index, "");
    add_new_cpool_entry(ci, tag_fieldref, ci.tracker_class_index, track_index, "");

    random_write_u2(ci, count_position, ci.cpool_count_plus_one);
}

// Injections.

void add_bytecode(Bytes& bytecodes, std::uint32_t byte) {
    bytecodes.push_back(static_cast<std::uint8_t>(byte));
}

void push_short_constant(Bytes& bytecodes, std::uint32_t number) {
    if (number <= 5) {
        add_bytecode(bytecodes, op::iconst_0 + number);
    } else if (number == (number & 0x7F)) {
        add_bytecode(bytecodes, op::bipush);
        add_bytecode(bytecodes, number);
    } else {
        add_bytecode(bytecodes, op::sipush);
        add_bytecode(bytecodes, number >> 8);
        add_bytecode(bytecodes, number);
    }
}

void push_pool_constant(Bytes& bytecodes, std::uint32_t index) {
    if (index == (index & 0x7F)) {
        add_bytecode(bytecodes, op::ldc);
        add_bytecode(bytecodes, index);
    } else {
        add_bytecode(bytecodes, op::ldc_w);
        add_bytecode(bytecodes, index >> 8);
        add_bytecode(bytecodes, index);
    }
}

Bytes injection_template(MethodState& mi, std::uint16_t method_index) {
    const ClassState& ci = mi.ci;
    Bytes bytecodes;
    if (method_index == 0) {
        return bytecodes;
    }
    std::int32_t max_stack = 0;
    if (method_index == ci.newarray_tracker_index) {
        max_stack = mi.max_stack + 1;
        add_bytecode(bytecodes, op::dup);
    } else if (method_index == ci.object_init_tracker_index) {
        max_stack = mi.max_stack + 1;
        add_bytecode(bytecodes, op::aload_0);
    } else {
        max_stack = mi.max_stack + 2;
        const std::uint32_t class_number = ci.options.class_number;
        if (class_number == (class_number & 0x7FFF)) {
            push_short_constant(bytecodes, class_number);
        } else {
            push_pool_constant(bytecodes, ci.class_number_index);
        }
        push_short_constant(bytecodes, mi.number);
    }
    add_bytecode(bytecodes, op::invokestatic);
    add_bytecode(bytecodes, method_index >> 8U);
    add_bytecode(bytecodes, method_index);
    mi.new_max_stack = std::max(mi.new_max_stack, max_stack);
    return bytecodes;
}

void inject_bytecodes(MethodState& mi, std::int32_t at, const Bytes& bytecodes) {
    Bytes& code = mi.injections[static_cast<std::size_t>(at)];
    code.insert(code.end(), bytecodes.begin(), bytecodes.end());
}

// Adds to map[at] and every later entry.
void adjust_map(MethodState& mi, std::int32_t at, std::int32_t amount) {
    for (auto i = static_cast<std::size_t>(at); i < mi.map.size(); i++) {
        mi.map[i] += amount;
    }
}

void widen(MethodState& mi, std::int32_t pc, std::int32_t pc_next, std::int32_t new_widening) {
    std::int8_t& widening = mi.widening[static_cast<std::size_t>(pc)];
    adjust_map(mi, pc_next, new_widening - widening);
    widening = static_cast<std::int8_t>(new_widening);
}

std::int32_t method_code_map(const MethodState& mi, std::int64_t pos) {
    crw_assert(mi.ci, pos >= 0 && pos <= mi.code_len, "pos <= mi->code_len");
    return mi.map[static_cast<std::size_t>(pos)];
}

std::int32_t input_code_offset(const MethodState& mi) {
    return static_cast<std::int32_t>(mi.ci.input_position - mi.start_of_input_bytecodes);
}

void rewind_to_code(MethodState& mi) {
    mi.ci.input_position = mi.start_of_input_bytecodes;
}

// Instructions.

std::int32_t opcode_length(std::uint32_t opcode) {
    if (opcode >= opcode_count) {
        fatal_error("Invalid opcode supplied to opcode_length()");
    }
    return opcode_lengths[opcode];
}

bool is_two_byte_branch(std::uint32_t opcode) {
    return (opcode >= op::ifeq && opcode <= op::jsr) || opcode == op::ifnull || opcode == op::ifnonnull;
}

// Where the operands of a switch at `pc` start, after the padding.
std::int32_t switch_operands(std::int32_t pc) {
    return (pc + 4) & ~3;
}

// How many bytes of operands follow the modified opcode of a wide.
std::int32_t wide_operand_length(std::uint32_t opcode) {
    if ((opcode >= op::iload && opcode <= op::aload) || (opcode >= op::istore && opcode <= op::astore) ||
        opcode == op::ret) {
        return 2;
    }
    if (opcode == op::iinc) {
        return 4;
    }
    fatal_error("Invalid opcode supplied to wide opcode");
}

void skip_padding(MethodState& mi, std::int32_t pc) {
    skip(mi.ci, switch_operands(pc) - (pc + 1));
}

void require_inside_code(const MethodState& mi) {
    crw_assert(mi.ci, input_code_offset(mi) <= mi.code_len, "pos <= mi->code_len");
}

void skip_switch(MethodState& mi, std::int32_t pc, std::uint32_t opcode) {
    ClassState& ci = mi.ci;
    skip_padding(mi, pc);
    read_s4(ci);
    if (opcode == op::tableswitch) {
        const std::int64_t low = read_s4(ci);
        const std::int64_t high = read_s4(ci);
        require_inside_code(mi);
        if (high < low) {
            out_of_bounds(ci);
        }
        skip(ci, (high - low + 1) * 4);
    } else {
        const std::int64_t npairs = read_s4(ci);
        require_inside_code(mi);
        if (npairs < 0) {
            out_of_bounds(ci);
        }
        skip(ci, npairs * 8);
    }
}

void skip_wide(MethodState& mi) {
    const std::uint32_t modified = read_u1(mi.ci);
    require_inside_code(mi);
    skip(mi.ci, wide_operand_length(modified));
}

void plan_instruction(MethodState& mi) {
    ClassState& ci = mi.ci;
    const std::int32_t pc = input_code_offset(mi);
    const std::uint32_t opcode = read_u1(ci);
    if (opcode == op::wide) {
        skip_wide(mi);
        require_inside_code(mi);
        return;
    }

    Bytes return_injection;
    if (opcode >= op::ireturn && opcode <= op::return_ && !mi.skip_call_return_sites) {
        return_injection = injection_template(mi, ci.return_tracker_index);
        if (!return_injection.empty()) {
            inject_bytecodes(mi, pc, return_injection);
        }
    }
    if (opcode == op::tableswitch || opcode == op::lookupswitch) {
        skip_switch(mi, pc, opcode);
    } else {
        skip(ci, opcode_length(opcode) - 1);
    }
    const std::int32_t pc_next = input_code_offset(mi);
    require_inside_code(mi);
    if (!return_injection.empty()) {
        adjust_map(mi, pc_next, static_cast<std::int32_t>(return_injection.size()));
    }
    if (opcode == op::newarray || opcode == op::anewarray || opcode == op::multianewarray) {
        const Bytes injection = injection_template(mi, ci.newarray_tracker_index);
        if (!injection.empty()) {
            inject_bytecodes(mi, pc_next, injection);
            adjust_map(mi, pc_next, static_cast<std::int32_t>(injection.size()));
        }
    }
}

// False when the instruction needed another size, and everything after it has moved.
bool adjust_instruction(MethodState& mi) {
    ClassState& ci = mi.ci;
    const std::int32_t pc = input_code_offset(mi);
    crw_assert(ci, pc <= mi.code_len, "pos <= mi->code_len");
    const std::int8_t widening = mi.widening[static_cast<std::size_t>(pc)];
    const std::int32_t new_pc = mi.map[static_cast<std::size_t>(pc)];
    const std::uint32_t opcode = read_u1(ci);

    if (is_two_byte_branch(opcode)) {
        if (widening != 0) {
            skip(ci, 2);
            return true;
        }
        const std::int32_t offset = read_s2(ci);
        const std::int32_t new_offset = method_code_map(mi, pc + offset) - new_pc;
        if (new_offset >= -32768 && new_offset <= 32767) {
            return true;
        }
        widen(mi, pc, input_code_offset(mi), opcode == op::goto_ || opcode == op::jsr ? 2 : 5);
        ci.widened++;
        return false;
    }
    if (opcode == op::tableswitch || opcode == op::lookupswitch) {
        const std::int32_t new_widening = (switch_operands(new_pc) - new_pc) - (switch_operands(pc) - pc);
        skip_switch(mi, pc, opcode);
        if (new_widening == widening) {
            return true;
        }
        widen(mi, pc, input_code_offset(mi), new_widening);
        ci.repadded++;
        return false;
    }
    if (opcode == op::wide) {
        skip_wide(mi);
        return true;
    }
    skip(ci, opcode_length(opcode) - 1);
    return true;
}

std::uint32_t invert_opcode(std::uint32_t opcode) {
    if (opcode == op::ifnull || opcode == op::ifnonnull) {
        return opcode ^ 1U;
    }
    if (opcode >= op::ifeq && opcode <= op::if_acmpne) {
        return ((opcode + 1) ^ 1U) - 1;  // pairs begin at odd opcodes
    }
    fatal_error("Unexpected opcode");
}

void write_two_byte_branch(MethodState& mi, std::int32_t pc, std::uint32_t opcode) {
    ClassState& ci = mi.ci;
    const std::int32_t offset = read_s2(ci);
    const std::int32_t new_offset = method_code_map(mi, pc + offset) - method_code_map(mi, pc);
    switch (mi.widening[static_cast<std::size_t>(pc)]) {
        case 0:
            write_u1(ci, opcode);
            write_u2(ci, static_cast<std::uint32_t>(new_offset));
            break;
        case 2:
            if (opcode != op::goto_ && opcode != op::jsr) {
                fatal_error("unexpected opcode");
            }
            write_u1(ci, opcode == op::goto_ ? op::goto_w : op::jsr_w);
            write_s4(ci, new_offset);
            break;
        case 5:
            write_u1(ci, invert_opcode(opcode));
            write_u2(ci, 8);
            write_u1(ci, op::goto_w);
            write_s4(ci, new_offset - 3);
            break;
        default:
            fatal_error("Unexpected widening");
    }
}

void write_relocated_offset(MethodState& mi, std::int32_t pc) {
    const std::int64_t offset = read_s4(mi.ci);
    write_s4(mi.ci, method_code_map(mi, pc + offset) - method_code_map(mi, pc));
}

void write_switch(MethodState& mi, std::int32_t pc, std::uint32_t opcode, std::int64_t start_of_output_bytecodes) {
    ClassState& ci = mi.ci;
    write_u1(ci, opcode);
    while ((ci.output_position - start_of_output_bytecodes) % 4 != 0) {
        write_u1(ci, 0);
    }
    skip_padding(mi, pc);
    write_relocated_offset(mi, pc);
    if (opcode == op::tableswitch) {
        const std::int64_t low = static_cast<std::int32_t>(copy_u4(ci));
        const std::int64_t high = static_cast<std::int32_t>(copy_u4(ci));
        for (std::int64_t i = low; i <= high; i++) {
            write_relocated_offset(mi, pc);
        }
    } else {
        const std::uint32_t npairs = copy_u4(ci);
        for (std::uint32_t i = 0; i < npairs; i++) {
            copy_u4(ci);
            write_relocated_offset(mi, pc);
        }
    }
}

void write_instruction(MethodState& mi, std::int64_t start_of_output_bytecodes) {
    ClassState& ci = mi.ci;
    const std::int32_t pc = input_code_offset(mi);
    crw_assert(ci, pc <= mi.code_len, "pos <= mi->code_len");
    write_bytes(ci, mi.injections[static_cast<std::size_t>(pc)]);

    const std::uint32_t opcode = read_u1(ci);
    if (is_two_byte_branch(opcode)) {
        write_two_byte_branch(mi, pc, opcode);
    } else if (opcode == op::tableswitch || opcode == op::lookupswitch) {
        write_switch(mi, pc, opcode, start_of_output_bytecodes);
    } else if (opcode == op::goto_w || opcode == op::jsr_w) {
        write_u1(ci, opcode);
        write_relocated_offset(mi, pc);
    } else if (opcode == op::wide) {
        write_u1(ci, opcode);
        const std::uint32_t modified = copy_u1(ci);
        copy(ci, static_cast<std::uint32_t>(wide_operand_length(modified)));
    } else {
        write_u1(ci, opcode);
        copy(ci, static_cast<std::uint32_t>(opcode_length(opcode) - 1));
    }
}

// The tables of the Code attribute.

// An attribute must not be longer than what is left of the image.
std::uint32_t copy_attribute_length(ClassState& ci) {
    const std::uint32_t attr_len = copy_u4(ci);
    if (attr_len > ci.input_len - ci.input_position) {
        out_of_bounds(ci);
    }
    return attr_len;
}

void begin_attribute(ClassState& ci, std::uint32_t attr_len) {
    ci.attribute_end = ci.input_position + attr_len;
}

void end_attribute(ClassState& ci) {
    ci.attribute_end = ci.input_len;
}

// The number of entries of a table, which must fit into its attribute.
std::uint32_t copy_table_length(ClassState& ci, std::uint32_t entry_size) {
    const std::uint32_t attr_len = copy_attribute_length(ci);
    const std::uint32_t count = copy_u2(ci);
    if (2 + count * entry_size > attr_len) {
        out_of_bounds(ci);
    }
    return count;
}

void write_line_table(MethodState& mi) {
    ClassState& ci = mi.ci;
    const std::uint32_t count = copy_table_length(ci, 4);
    for (std::uint32_t i = 0; i < count; i++) {
        const std::uint32_t start_pc = read_u2(ci);
        write_u2(ci, start_pc == 0 ? 0 : static_cast<std::uint32_t>(method_code_map(mi, start_pc)));
        copy_u2(ci);
    }
}

void write_var_table(MethodState& mi) {
    ClassState& ci = mi.ci;
    const std::uint32_t count = copy_table_length(ci, 10);
    for (std::uint32_t i = 0; i < count; i++) {
        const std::uint32_t start_pc = read_u2(ci);
        const std::uint32_t length = read_u2(ci);
        const std::int32_t new_start_pc = start_pc == 0 ? 0 : method_code_map(mi, start_pc);
        const std::int32_t new_length = method_code_map(mi, start_pc + length) - new_start_pc;
        write_u2(ci, static_cast<std::uint32_t>(new_start_pc));
        write_u2(ci, static_cast<std::uint32_t>(new_length));
        copy_u2(ci);
        copy_u2(ci);
        copy_u2(ci);
    }
}

void copy_verification_types(MethodState& mi, std::uint32_t count) {
    ClassState& ci = mi.ci;
    for (std::uint32_t i = 0; i < count; i++) {
        switch (copy_u1(ci)) {
            case 7:
                copy_u2(ci);
                break;
            case 8:
                write_u2(ci, static_cast<std::uint32_t>(method_code_map(mi, read_u2(ci))));
                break;
            default:
                break;
        }
    }
}

// Writes the length of what was written since, over the length field at `position`.
void patch_stack_map_length(ClassState& ci, std::int64_t position, std::uint32_t attr_len) {
    const auto new_attr_len = static_cast<std::uint32_t>(ci.output_position - (position + 4));
    crw_assert(ci, new_attr_len >= attr_len, "new_attr_len >= attr_len");
    random_write_u4(ci, position, new_attr_len);
}

void write_stackmap_table(MethodState& mi) {
    ClassState& ci = mi.ci;
    const std::int64_t length_position = ci.output_position;
    const std::uint32_t attr_len = copy_attribute_length(ci);
    begin_attribute(ci, attr_len);
    const std::uint32_t count = copy_u2(ci);
    if (count == 0) {
        crw_assert(ci, attr_len == 2, "attr_len==2");
        end_attribute(ci);
        return;
    }
    std::int32_t last_pc = 0;
    std::int32_t last_new_pc = 0;
    std::int32_t increment = 0;
    for (std::uint32_t i = 0; i < count; i++) {
        const std::uint32_t frame_type = read_u1(ci);
        if (frame_type >= 128 && frame_type <= 246) {
            fatal_error("Unknown frame type in StackMapTable attribute");
        }
        std::int32_t delta = 0;
        if (frame_type <= 63) {
            delta = static_cast<std::int32_t>(frame_type);
        } else if (frame_type <= 127) {
            delta = static_cast<std::int32_t>(frame_type) - 64;
        } else {
            delta = static_cast<std::int32_t>(read_u2(ci));
        }
        const std::int32_t pc = last_pc + delta + increment;
        const std::int32_t new_pc = method_code_map(mi, pc);
        const std::int32_t new_delta = new_pc - last_new_pc - increment;
        const auto new_delta_u2 = static_cast<std::uint32_t>(new_delta);

        if (frame_type <= 63) {
            if (new_delta < 64) {
                write_u1(ci, new_delta_u2);
            } else {
                write_u1(ci, 251);
                write_u2(ci, new_delta_u2);
            }
        } else if (frame_type <= 127) {
            if (new_delta < 64) {
                write_u1(ci, 64 + new_delta_u2);
            } else {
                write_u1(ci, 247);
                write_u2(ci, new_delta_u2);
            }
            copy_verification_types(mi, 1);
        } else {
            write_u1(ci, frame_type);
            write_u2(ci, new_delta_u2);
            if (frame_type == 247) {
                copy_verification_types(mi, 1);
            } else if (frame_type >= 252 && frame_type <= 254) {
                copy_verification_types(mi, frame_type - 251);
            } else if (frame_type == 255) {
                copy_verification_types(mi, copy_u2(ci));
                copy_verification_types(mi, copy_u2(ci));
            }
        }

        crw_assert(ci, delta + increment >= 0, "delta >= 0");
        crw_assert(ci, new_delta >= 0, "new_delta >= 0");
        last_pc = pc;
        crw_assert(ci, last_pc <= mi.code_len, "last_pc <= mi->code_len");
        last_new_pc = new_pc;
        crw_assert(ci, last_new_pc <= mi.new_code_len, "last_new_pc <= mi->new_code_len");
        increment = 1;
    }
    patch_stack_map_length(ci, length_position, attr_len);
    end_attribute(ci);
}

void write_cldc_stackmap(MethodState& mi) {
    ClassState& ci = mi.ci;
    const std::int64_t length_position = ci.output_position;
    const std::uint32_t attr_len = copy_attribute_length(ci);
    begin_attribute(ci, attr_len);
    const std::uint32_t count = copy_u2(ci);
    if (count == 0) {
        crw_assert(ci, attr_len == 2, "attr_len==2");
        end_attribute(ci);
        return;
    }
    for (std::uint32_t i = 0; i < count; i++) {
        write_u2(ci, static_cast<std::uint32_t>(method_code_map(mi, read_u2(ci))));
        copy_verification_types(mi, copy_u2(ci));
        copy_verification_types(mi, copy_u2(ci));
    }
    patch_stack_map_length(ci, length_position, attr_len);
    end_attribute(ci);
}

void method_write_code_attribute(MethodState& mi) {
    ClassState& ci = mi.ci;
    const std::uint32_t name_index = copy_u2(ci);
    if (attribute_match(ci, name_index, "LineNumberTable")) {
        write_line_table(mi);
    } else if (attribute_match(ci, name_index, "LocalVariableTable") ||
               attribute_match(ci, name_index, "LocalVariableTypeTable")) {
        write_var_table(mi);
    } else if (attribute_match(ci, name_index, "StackMapTable")) {
        write_stackmap_table(mi);
    } else if (attribute_match(ci, name_index, "StackMap")) {
        write_cldc_stackmap(mi);
    } else {
        copy(ci, copy_u4(ci));
    }
}

void write_exception_table(MethodState& mi) {
    ClassState& ci = mi.ci;
    const std::uint32_t count = copy_u2(ci);
    for (std::uint32_t i = 0; i < count; i++) {
        for (int pc = 0; pc < 3; pc++) {  // start, end, handler
            write_u2(ci, static_cast<std::uint32_t>(method_code_map(mi, read_u2(ci))));
        }
        copy_u2(ci);
    }
}

// The code.

void inject_at_entry(MethodState& mi) {
    const ClassState& ci = mi.ci;
    Bytes bytecodes;
    if (mi.object_init_method) {
        bytecodes = injection_template(mi, ci.object_init_tracker_index);
    }
    if (!mi.skip_call_return_sites) {
        const Bytes call = injection_template(mi, ci.call_tracker_index);
        bytecodes.insert(bytecodes.end(), call.begin(), call.end());
    }
    if (!bytecodes.empty()) {
        inject_bytecodes(mi, 0, bytecodes);
        adjust_map(mi, 0, static_cast<std::int32_t>(bytecodes.size()));
    }
}

bool is_left_alone(const ClassState& ci, const std::string& name, std::int32_t code_len) {
    if (!ci.options.system_class) {
        return false;
    }
    if (code_len == 1 && (name == "<init>" || name == "finalize" || name == "<clinit>")) {
        return true;
    }
    if (code_len != 1 && name == "<clinit>") {
        return true;
    }
    return ci.is_thread_class && name == "currentThread";
}

void method_write_bytecodes(ClassState& ci, std::uint32_t number) {
    const std::int64_t length_position = ci.output_position;
    const std::uint32_t attr_len = copy_attribute_length(ci);
    const std::int64_t max_stack_position = ci.output_position;
    const std::uint32_t max_stack = copy_u2(ci);
    copy_u2(ci);  // max_locals
    const std::int64_t code_len_position = ci.output_position;
    const auto code_len = static_cast<std::int32_t>(copy_u4(ci));

    const std::string name = c_string(ci.method_name[number]);
    const std::string descr = c_string(ci.method_descr[number]);
    const bool object_init_method = ci.is_object_class && name == "<init>" && descr == "()V";
    if (!object_init_method && is_left_alone(ci, name, code_len)) {
        copy(ci, attr_len - 8);
        return;
    }

    if (code_len == std::numeric_limits<std::int32_t>::max()) {
        check_allocation(0);
    }
    check_allocation(std::int64_t{code_len} + 1);
    // Code that is longer than what is left of the image fails in the first pass, before anything that lies after the
    // image's end is looked up: the arrays need be no longer.
    const auto entries =
        static_cast<std::size_t>(std::min<std::int64_t>(code_len, ci.input_len - ci.input_position)) + 1;
    MethodState mi{.ci = ci,
                   .number = number,
                   .name = name,
                   .descr = descr,
                   .map = std::vector<std::int32_t>(entries),
                   .injections = std::vector<Bytes>(entries),
                   .widening = std::vector<std::int8_t>(entries),
                   .code_len = code_len,
                   .start_of_input_bytecodes = ci.input_position,
                   .max_stack = static_cast<std::int32_t>(max_stack),
                   .new_max_stack = static_cast<std::int32_t>(max_stack),
                   .object_init_method = object_init_method,
                   .skip_call_return_sites = object_init_method};
    for (std::size_t i = 0; i < entries; i++) {
        mi.map[i] = static_cast<std::int32_t>(i);
    }
    ci.current_mi = &mi;

    inject_at_entry(mi);
    rewind_to_code(mi);
    while (input_code_offset(mi) < code_len) {
        plan_instruction(mi);
    }

    rewind_to_code(mi);
    while (input_code_offset(mi) < code_len) {
        if (!adjust_instruction(mi)) {
            rewind_to_code(mi);
        }
    }

    const std::int64_t start_of_output_bytecodes = ci.output_position;
    rewind_to_code(mi);
    while (input_code_offset(mi) < code_len) {
        write_instruction(mi, start_of_output_bytecodes);
    }

    mi.new_code_len = static_cast<std::int32_t>(ci.output_position - start_of_output_bytecodes);
    crw_assert(ci, mi.code_len <= 0xFFFF && mi.new_code_len <= 0xFFFF, "mi->new_code_len <= 0xFFFF");
    random_write_u4(ci, code_len_position, static_cast<std::uint32_t>(mi.new_code_len));
    crw_assert(ci, mi.new_max_stack <= 0xFFFF, "mi->new_max_stack <= 0xFFFF");
    random_write_u2(ci, max_stack_position, static_cast<std::uint32_t>(mi.new_max_stack));

    write_exception_table(mi);
    const std::uint32_t attribute_count = copy_u2(ci);
    for (std::uint32_t i = 0; i < attribute_count; i++) {
        method_write_code_attribute(mi);
    }
    random_write_u4(ci, length_position, static_cast<std::uint32_t>(ci.output_position - (length_position + 4)));
    ci.current_mi = nullptr;
}

// The class.

void method_write(ClassState& ci, std::uint32_t number) {
    copy_u2(ci);  // access_flags
    ci.method_name[number] = utf8_text(ci, copy_u2(ci));
    ci.method_descr[number] = utf8_text(ci, copy_u2(ci));
    const std::uint32_t attribute_count = copy_u2(ci);
    for (std::uint32_t i = 0; i < attribute_count; i++) {
        if (attribute_match(ci, copy_u2(ci), "Code")) {
            method_write_bytecodes(ci, number);
        } else {
            copy(ci, copy_u4(ci));
        }
    }
}

void check_name(ClassState& ci, std::uint32_t this_class) {
    const std::string& text = class_text(ci, this_class);
    if (!ci.name) {
        ci.name = c_string(text);
        crw_assert(ci, ci.name->find('.') == std::string::npos, "strchr(ci->name,'.')==NULL");
    } else {
        crw_assert(ci, *ci.name == text, "(int)strlen(ci->name)==cs.len && strncmp(ci->name, cs.ptr, cs.len)==0");
    }
}

void inject_class(ClassState& ci) {
    crw_assert(ci, copy_u4(ci) == 0xCAFEBABE, "magic==0xCAFEBABE");
    copy_u2(ci);  // minor_version
    crw_assert(ci, copy_u2(ci) <= 52,
               "(classfileMajorVersion <= JVM_CLASSFILE_MAJOR_VERSION) || ((classfileMajorVersion == "
               "JVM_CLASSFILE_MAJOR_VERSION) && (classfileMinorVersion <= JVM_CLASSFILE_MINOR_VERSION))");
    cpool_setup(ci);
    copy_u2(ci);  // access_flags
    check_name(ci, copy_u2(ci));
    if (copy_u2(ci) == 0) {  // super_class
        ci.is_object_class = true;
        crw_assert(ci, *ci.name == "java/lang/Object", "strcmp(ci->name,\"java/lang/Object\")==0");
    }
    const std::uint32_t interfaces_count = copy_u2(ci);
    copy(ci, interfaces_count * 2);

    const std::uint32_t fields_count = read_u2(ci);
    write_u2(ci, ci.is_object_class ? fields_count + 1 : fields_count);
    copy_all_fields(ci, fields_count);
    if (ci.is_object_class) {
        write_u2(ci, 0x000A);  // private static
        write_u2(ci, ci.track_name_index);
        write_u2(ci, ci.track_desc_index);
        write_u2(ci, 0);
    }

    const std::uint32_t methods_count = read_u2(ci);
    write_u2(ci, ci.is_object_class ? methods_count + 1 : methods_count);
    ci.method_name.resize(methods_count);
    ci.method_descr.resize(methods_count);
    for (std::uint32_t i = 0; i < methods_count; i++) {
        method_write(ci, i);
    }
    if (ci.is_object_class) {
        write_u2(ci, 0x0101);  // public native
        write_u2(ci, ci.get_track_id_name_index);
        write_u2(ci, ci.get_track_id_desc_index);
        write_u2(ci, 0);
    }
    copy_attributes(ci);
}

}  // namespace

Result rewrite(std::span<const std::uint8_t> image, const RewriteOptions& options) {
    Result result;
    if (image.empty()) {
        return result;
    }
    ClassState ci{.options = options, .input = image};
    ci.output.resize(image.size() * 2 + 512);
    ci.input_len = static_cast<std::int64_t>(image.size());
    ci.output_len = static_cast<std::int64_t>(ci.output.size());
    ci.attribute_end = ci.input_len;
    try {
        if (options.name) {
            crw_assert(ci, options.name->find('.') == std::string::npos, "strchr(name,'.')==NULL");
            ci.name = options.name;
            ci.is_thread_class = *options.name == "java/lang/Thread";
        }
        inject_class(ci);
        ci.output.resize(static_cast<std::size_t>(ci.output_position));
        result.image = ci.output;
    } catch (const Failure& failure) {
        result.failure = failure.message;
    }
    result.widened = ci.widened;
    result.repadded = ci.repadded;
    return result;
}

}  // namespace literal_rewriter
