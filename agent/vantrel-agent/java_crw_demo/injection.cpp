#include "injection.h"

#include <algorithm>
#include <climits>
#include <numeric>

#include "code_attribute.h"
#include "opcodes.h"
#include "relocation.h"

namespace crw {

namespace {

constexpr uint32_t kLongestCode = 0xFFFF;
constexpr const char* kCodeTooLong = "mi->new_code_len <= 0xFFFF";

// Code length and what comes before it in the attribute.
constexpr uint32_t kHeaderSize = 8;

// Tells which opcodes need more than to be stepped over: beside those that always do, the ones that something is
// injected at.
struct Steps {
    explicit Steps(const MethodRewriteState& mi) : length(kPlainLength) {
        if (mi.return_injection.len > 0) {
            std::fill(length.begin() + kIreturn, length.begin() + kReturnOpcode + 1, 0);
        }
        if (mi.newarray_injection.len > 0) {
            length[kNewarray] = length[kAnewarray] = length[kMultianewarray] = 0;
        }
    }
    std::array<uint8_t, 256> length;
};

// Building a tracker call.

void emit(InjectionTemplate& injection, uint32_t byte) {
    injection.code[injection.len++] = static_cast<uint8_t>(byte);
}

void emit_u2(InjectionTemplate& injection, uint32_t value) {
    emit(injection, value >> 8U);
    emit(injection, value);
}

// The short forms take numbers of seven bits: an eighth would be a sign.
void emit_push(InjectionTemplate& injection, uint32_t value) {
    constexpr uint32_t kLargestIconst = 5;
    if (value <= kLargestIconst) {
        emit(injection, kIconst0 + value);
    } else if (value <= INT8_MAX) {
        emit(injection, kBipush);
        emit(injection, value);
    } else {
        emit(injection, kSipush);
        emit_u2(injection, value);
    }
}

void emit_push_class_number(InjectionTemplate& injection, const ClassRewriteState& ci) {
    if (ci.class_number_index == 0) {
        emit_push(injection, ci.number);
    } else if (ci.class_number_index <= INT8_MAX) {
        emit(injection, kLdc);
        emit(injection, ci.class_number_index);
    } else {
        emit(injection, kLdcW);
        emit_u2(injection, ci.class_number_index);
    }
}

void emit_invoke(InjectionTemplate& injection, const Tracker& tracker) {
    emit(injection, kInvokestatic);
    emit_u2(injection, tracker.index);
}

// The call of a tracker that takes a reference, which `load` pushes.
InjectionTemplate reference_template(const Tracker& tracker, uint32_t load) {
    InjectionTemplate injection;
    if (tracker.index != 0) {
        emit(injection, load);
        emit_invoke(injection, tracker);
    }
    return injection;
}

// The call of a tracker that takes the class's and the method's number.
InjectionTemplate numbers_template(const MethodRewriteState& mi, const Tracker& tracker) {
    InjectionTemplate injection;
    if (tracker.index != 0) {
        emit_push_class_number(injection, mi.ci);
        emit_push(injection, mi.number);
        emit_invoke(injection, tracker);
    }
    return injection;
}

// What the trackers' arguments need on top of the declared stack: one or two values.
void need_stack(MethodRewriteState& mi, int32_t values) {
    mi.new_max_stack = std::max(mi.new_max_stack, mi.max_stack + values);
}

void prepare_injections(MethodRewriteState& mi) {
    const ClassRewriteState& ci = mi.ci;
    if (mi.object_init_method) {
        mi.entry_injection = reference_template(ci.object_init_tracker, kAload0);
    }
    if (!mi.skip_call_return_sites) {
        mi.entry_injection = numbers_template(mi, ci.call_tracker);
        mi.return_injection = numbers_template(mi, ci.return_tracker);
    }
    mi.newarray_injection = reference_template(ci.newarray_tracker, kDup);
    if (mi.entry_injection.len > 0) {
        need_stack(mi, mi.object_init_method ? 1 : 2);
    }
}

// Reading the code.

[[noreturn]] void fail_at(MethodRewriteState& mi, size_t pc, const char* condition) {
    mi.ci.input_position = mi.start_of_input_bytecodes + pc;
    assertion_failed(mi.ci, condition);
}

// Reads the code once, notes the sites, and fills the map as far as injections move the code.
class Plan {
  public:
    explicit Plan(MethodRewriteState& mi)
        : mi_(mi),
          code_(mi.ci.input + mi.start_of_input_bytecodes),
          code_len_(static_cast<uint32_t>(mi.code_len)),
          available_(std::min<size_t>(mi.ci.input_len - mi.start_of_input_bytecodes, UINT32_MAX)),
          shift_(mi.entry_injection.len) {}

    void make() {
        const Steps steps(mi_);
        const size_t readable = std::min<size_t>(code_len_, available_);
        mi_.map.resize(readable + 1);
        mi_.sites.clear();
        size_t pc = 0;
        while (pc < readable) {
            const uint8_t step = steps.length[code_[pc]];
            pc = step != 0 ? pc + step : note(static_cast<uint32_t>(pc));
        }
        end_of_instruction(std::max<size_t>(pc, code_len_));
        move_up_to(code_len_ + 1);
    }

  private:
    // An instruction must end inside the code, and the code inside the image. Returns where it ends.
    uint32_t end_of_instruction(size_t pc_next) const {
        if (pc_next > available_) {
            fail_at(mi_, available_, kInsideImages);
        }
        if (pc_next > code_len_) {
            fail_at(mi_, pc_next, "pos <= mi->code_len");
        }
        return static_cast<uint32_t>(pc_next);
    }

    // Old pcs below `pc` move by the shift so far.
    void move_up_to(uint32_t pc) {
        std::iota(mi_.map.begin() + moved_, mi_.map.begin() + pc, static_cast<int32_t>(moved_) + shift_);
        moved_ = pc;
    }

    // Notes an instruction that is a site. Returns the pc behind it.
    uint32_t note(uint32_t pc) {
        const uint8_t opcode = code_[pc];
        switch (opcode) {
            case kIreturn:
            case kLreturn:
            case kFreturn:
            case kDreturn:
            case kAreturn:
            case kReturnOpcode:
                // Before the instruction, whose own pc leads to the injection.
                mi_.sites.push_back({pc, pc, Site::kReturn, 0});
                need_stack(mi_, 2);
                move_up_to(pc + 1);
                shift_ += mi_.return_injection.len;
                return pc + 1;
            case kNewarray:
            case kAnewarray:
            case kMultianewarray: {
                // Before the next instruction, whose pc leads past the injection.
                const uint32_t pc_next = end_of_instruction(pc + length_of_array_creation(opcode));
                mi_.sites.push_back({pc_next, pc_next, Site::kNewArray, 0});
                need_stack(mi_, 1);
                move_up_to(pc_next);
                shift_ += mi_.newarray_injection.len;
                return pc_next;
            }
            case kGotoW:
            case kJsrW:
                return note(pc, pc + 5, Site::kWideBranch);
            case kTableswitch:
                return note_table_switch(pc);
            case kLookupswitch:
                return note_lookup_switch(pc);
            case kWide:
                return end_of_instruction(pc + length_of_wide(pc));
            default:
                if (opcode > kLastOpcode) {
                    fatal_error(mi_.ci.fatal_error_handler, "Invalid opcode supplied to opcode_length()");
                }
                return note(pc, pc + 3, Site::kBranch);
        }
    }

    uint32_t note(uint32_t pc, size_t pc_next, Site::Kind kind) {
        const uint32_t end = end_of_instruction(pc_next);
        mi_.sites.push_back({pc, end, kind, 0});
        return end;
    }

    uint32_t note_table_switch(uint32_t pc) {
        const size_t operands = switch_operands(pc);
        end_of_instruction(operands + 12);
        const auto low = static_cast<int32_t>(u4_at(code_ + operands + 4));
        const auto high = static_cast<int32_t>(u4_at(code_ + operands + 8));
        if (high < low) {
            fail_at(mi_, operands + 12, kInsideImages);
        }
        const auto count = static_cast<size_t>(int64_t{high} - low + 1);
        return note(pc, operands + 12 + 4 * count, Site::kTableSwitch);
    }

    uint32_t note_lookup_switch(uint32_t pc) {
        const size_t operands = switch_operands(pc);
        end_of_instruction(operands + 8);
        const auto pair_count = static_cast<int32_t>(u4_at(code_ + operands + 4));
        if (pair_count < 0) {
            fail_at(mi_, operands + 8, kInsideImages);
        }
        return note(pc, operands + 8 + 8 * static_cast<size_t>(pair_count), Site::kLookupSwitch);
    }

    [[nodiscard]] uint32_t length_of_wide(uint32_t pc) const {
        end_of_instruction(size_t{pc} + 2);
        const uint8_t modified = code_[pc + 1];
        if (modified == kIinc) {
            return 6;
        }
        const bool is_load_or_store = (modified >= kIload && modified <= kAload) ||
                                      (modified >= kIstore && modified <= kAstore) || modified == kRet;
        if (!is_load_or_store) {
            fatal_error(mi_.ci.fatal_error_handler, "Invalid opcode supplied to wide opcode");
        }
        return 4;
    }

    MethodRewriteState& mi_;
    const uint8_t* code_;
    uint32_t code_len_;
    size_t available_;
    int32_t shift_;
    uint32_t moved_ = 0;  // map is filled up to here
};

// Writing the new code.

void write_injection(ClassRewriteState& ci, const InjectionTemplate& injection) {
    write_bytes(ci, injection.code.data(), injection.len);
}

void write_code(MethodRewriteState& mi) {
    ClassRewriteState& ci = mi.ci;
    const uint8_t* code = ci.input + mi.start_of_input_bytecodes;
    const auto code_len = static_cast<uint32_t>(mi.code_len);
    if (code_len > 0) {
        write_injection(ci, mi.entry_injection);
    }
    uint32_t copied = 0;
    for (const Site& site : mi.sites) {
        if (site.pc == code_len) {
            break;  // an injection goes before an instruction, and there is none
        }
        write_bytes(ci, code + copied, site.pc - copied);
        copied = site.pc_next;
        ci.input_position = mi.start_of_input_bytecodes + copied;
        if (site.kind == Site::kReturn) {
            write_injection(ci, mi.return_injection);
        } else if (site.kind == Site::kNewArray) {
            write_injection(ci, mi.newarray_injection);
        } else {
            write_instruction(mi, site, code);
        }
    }
    write_bytes(ci, code + copied, code_len - copied);
    ci.input_position = mi.start_of_input_bytecodes + code_len;
}

// What a system class may run before the tracker class can.
bool is_left_alone(const ClassRewriteState& ci, std::string_view name, uint32_t code_len) {
    const bool is_trivial = code_len == 1 && (name == "<init>" || name == "finalize");
    return ci.is_system_class && (is_trivial || name == "<clinit>" || (ci.is_thread_class && name == "currentThread"));
}

// Makes a method the current one as long as it lives.
class CurrentMethod {
  public:
    explicit CurrentMethod(MethodRewriteState& mi) : ci_(mi.ci) { ci_.current_method = &mi; }
    ~CurrentMethod() { ci_.current_method = nullptr; }
    CurrentMethod(const CurrentMethod&) = delete;
    CurrentMethod& operator=(const CurrentMethod&) = delete;

  private:
    ClassRewriteState& ci_;
};

}  // namespace

void method_write_bytecodes(ClassRewriteState& ci, uint32_t number) {
    const uint32_t attr_len = copy_attribute_length(ci);
    const size_t body = ci.output_position;
    const uint16_t max_stack = copy_u2(ci);
    copy_u2(ci);  // max_locals
    const uint32_t code_len = copy_u4(ci);

    const std::string_view name = ci.method_names[number];
    const std::string_view descr = ci.method_descriptors[number];
    const bool is_object_init = ci.is_object_class && name == "<init>" && descr == "()V";
    if (!is_object_init && is_left_alone(ci, name, code_len)) {
        copy_bytes(ci, attr_len - kHeaderSize);
        return;
    }
    if (code_len >= INT32_MAX) {
        fatal_error(ci.fatal_error_handler, "Cannot allocate <= 0 bytes");
    }

    MethodRewriteState mi{.ci = ci,
                          .number = number,
                          .name = name,
                          .start_of_input_bytecodes = ci.input_position,
                          .code_len = static_cast<int32_t>(code_len),
                          .max_stack = max_stack,
                          .new_max_stack = max_stack,
                          .object_init_method = is_object_init,
                          .skip_call_return_sites = is_object_init,
                          .map = ci.map,
                          .sites = ci.sites};
    const CurrentMethod current(mi);
    // A longer one no VM loads (JVM specification, section 4.9.1), and the map's arithmetic is not made for it.
    require(ci, std::min<size_t>(code_len, ci.input_len - ci.input_position) <= kLongestCode, kCodeTooLong);
    prepare_injections(mi);
    Plan(mi).make();
    adjust_instructions(mi);
    const size_t new_code = ci.output_position;
    write_code(mi);

    const size_t new_code_len = ci.output_position - new_code;
    require(ci, new_code_len <= kLongestCode, kCodeTooLong);
    mi.new_code_len = static_cast<int32_t>(new_code_len);
    put_u4(ci.output + new_code - sizeof(uint32_t), static_cast<uint32_t>(new_code_len));
    require(ci, mi.new_max_stack <= UINT16_MAX, "mi->new_max_stack <= 0xFFFF");
    put_u2(ci.output + body, static_cast<uint32_t>(mi.new_max_stack));

    write_exception_table(mi);
    const uint16_t attribute_count = copy_u2(ci);
    for (uint16_t i = 0; i < attribute_count; ++i) {
        method_write_code_attribute(mi);
    }
    put_u4(ci.output + body - sizeof(uint32_t), static_cast<uint32_t>(ci.output_position - body));
}

}  // namespace crw
