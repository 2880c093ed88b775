#include "method_bytecodes.h"

#include <algorithm>
#include <climits>

#include "code_attribute.h"
#include "cursors.h"
#include "injection.h"
#include "method_rewrite_state.h"
#include "plan.h"
#include "relocation.h"

namespace crw {

namespace {

constexpr const char* kCodeTooLong = "mi->new_code_len <= 0xFFFF";

// max_stack, max_locals and code_length: what stands before the code.
constexpr uint32_t kHeaderSize = 8;

// Writes a span of the old code and the call that comes after it. Most spans are short. So 32 bytes are copied whatever
// the length of the span, and the longest length of a call whatever the length of the call; the surplus is overwritten
// by what comes next.
void write_span(ClassRewriteState& ci, const uint8_t* span, size_t size, const InjectionTemplate& call) {
    constexpr size_t kUsualSpan = 32;
    const auto readable = static_cast<size_t>(ci.input + ci.input_len - span);
    const size_t room = ci.output_len - ci.output_position;
    if (readable < kUsualSpan || room < size + kUsualSpan + sizeof call.code) [[unlikely]] {
        write_bytes(ci, span, size);
        write_bytes(ci, call.code.data(), call.len);
        return;
    }
    uint8_t* out = ci.output + ci.output_position;
    memcpy(out, span, kUsualSpan);
    if (size > kUsualSpan) {
        memcpy(out + kUsualSpan, span + kUsualSpan, size - kUsualSpan);
    }
    memcpy(out + size, call.code.data(), sizeof call.code);
    ci.output_position += size + call.len;
}

void write_code(MethodRewriteState& mi) {
    static constexpr InjectionTemplate kNoCall;
    ClassRewriteState& ci = mi.ci;
    const uint8_t* code = ci.input + mi.start_of_input_bytecodes;
    const auto code_len = static_cast<uint32_t>(mi.code_len);
    if (code_len > 0) {
        write_span(ci, code, 0, mi.injections.entry);
    }
    uint32_t copied = 0;
    for (const Site& site : mi.sites) {
        if (site.pc == code_len) {
            break;  // an injection goes before an instruction, and here is none
        }
        const uint8_t* span = code + copied;
        const size_t size = site.pc - copied;
        copied = site.pc_next;
        ci.input_position = mi.start_of_input_bytecodes + copied;
        if (site.kind == Site::kReturn) {
            write_span(ci, span, size, mi.injections.at_return);
        } else if (site.kind == Site::kNewArray) {
            write_span(ci, span, size, mi.injections.newarray);
        } else {
            write_span(ci, span, size, kNoCall);
            write_instruction(mi, site, code);
        }
    }
    write_span(ci, code + copied, code_len - copied, kNoCall);
    ci.input_position = mi.start_of_input_bytecodes + code_len;
}

// Methods of a system class that the VM may run before it can load the tracker class.
bool is_left_alone(const ClassRewriteState& ci, std::string_view name, uint32_t code_len) {
    const bool is_trivial = code_len == 1 && (name == "<init>" || name == "finalize");
    return is_trivial || name == "<clinit>" || (ci.is_thread_class && name == "currentThread");
}

// As long as this lives, failures name the method.
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

void method_write_bytecodes(ClassRewriteState& ci, const Method& method, uint32_t attr_len) {
    require_attribute(ci, attr_len);
    const size_t body = ci.output_position;
    uint16_t max_stack = 0;
    uint16_t max_locals = 0;
    uint32_t code_len = 0;
    in_one_check(ci, kHeaderSize, [&](auto& at) {
        max_stack = at.copy_u2();
        max_locals = at.copy_u2();
        code_len = at.copy_u4();
    });

    const bool is_object_init =
        ci.is_object_class && c_string(method.name) == "<init>" && c_string(method.descriptor) == "()V";
    if (ci.is_system_class && !is_object_init && is_left_alone(ci, c_string(method.name), code_len)) {
        copy_bytes(ci, attr_len - kHeaderSize);
        return;
    }
    if (code_len >= INT32_MAX) {
        fatal_error(ci, "Cannot allocate <= 0 bytes");
    }

    MethodRewriteState mi{.ci = ci,
                          .number = method.number,
                          .name = method.name,
                          .descriptor = method.descriptor,
                          .access_flags = method.access_flags,
                          .max_locals = max_locals,
                          .start_of_input_bytecodes = ci.input_position,
                          .code_len = static_cast<int32_t>(code_len),
                          .max_stack = max_stack,
                          .new_max_stack = max_stack,
                          .object_init_method = is_object_init,
                          .injections = ci.injections};
    const CurrentMethod current(mi);
    require(ci, std::min<size_t>(code_len, ci.input_len - ci.input_position) <= kLongestCode, kCodeTooLong);
    prepare_injections(mi);
    plan_new_code(mi);
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
