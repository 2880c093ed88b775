#include "injection.h"

#include <algorithm>

#include "images.h"
#include "opcodes.h"

namespace crw {

namespace {

// The instructions that push a tracker call's arguments, six bytes at most, as one number whose lowest byte is the last
// one. If they were written to memory byte by byte, a processor that then reads several at once would have to wait for
// each of them.
struct Pushes {
    uint64_t bytes = 0;
    uint8_t len = 0;

    void add(uint32_t instruction, uint8_t size) {
        bytes = bytes << 8U * size | instruction;
        len = static_cast<uint8_t>(len + size);
    }
};

// An instruction with an operand of one byte, and of two.
uint32_t with_u1(Opcode opcode, uint32_t operand) {
    return uint32_t{opcode} << 8U | (operand & UINT8_MAX);
}
uint32_t with_u2(Opcode opcode, uint32_t operand) {
    return uint32_t{opcode} << 16U | (operand & UINT16_MAX);
}

// bipush is used up to 127, because it takes the eighth bit for a sign. ldc has no sign, but is used up to the same
// index.
void push(Pushes& pushes, uint32_t value) {
    constexpr uint32_t kLargestIconst = 5;
    if (value <= kLargestIconst) {
        pushes.add(kIconst0 + value, 1);
    } else if (value <= INT8_MAX) {
        pushes.add(with_u1(kBipush, value), 2);
    } else {
        pushes.add(with_u2(kSipush, value), 3);
    }
}

void push_class_number(Pushes& pushes, const ClassRewriteState& ci) {
    if (ci.class_number_index == 0) {
        push(pushes, ci.number);
    } else if (ci.class_number_index <= INT8_MAX) {
        pushes.add(with_u1(kLdc, ci.class_number_index), 2);
    } else {
        pushes.add(with_u2(kLdcW, ci.class_number_index), 3);
    }
}

// Puts together the instructions that push the arguments and the call of the tracker. Empty for a tracker that is not
// wanted. Both writes are longer than what they bring, and `code` has room for that.
void make_call(InjectionTemplate& call, const Pushes& pushes, const Tracker& tracker) {
    constexpr uint32_t kInvokeLength = 3;
    call.len = 0;
    if (tracker.index != 0) {
        put_u8(call.code.data(), pushes.bytes << 8U * (sizeof pushes.bytes - pushes.len));
        put_u4(call.code.data() + pushes.len, with_u2(kInvokestatic, tracker.index) << 8U);
        call.len = static_cast<uint8_t>(pushes.len + kInvokeLength);
    }
}

}  // namespace

void prepare_injections(MethodRewriteState& mi) {
    ClassRewriteState& ci = mi.ci;
    Injections& calls = ci.injections;
    constexpr Pushes kTheArray = {kDup, 1};
    Pushes numbers;
    push_class_number(numbers, ci);
    push(numbers, mi.number);
    if (mi.object_init_method) {
        make_call(calls.entry, {kAload0, 1}, ci.object_init_tracker);
        calls.at_return.len = 0;
    } else {
        make_call(calls.entry, numbers, ci.call_tracker);
        make_call(calls.at_return, numbers, ci.return_tracker);
    }
    make_call(calls.newarray, ci.newarray_takes_numbers ? numbers : kTheArray, ci.newarray_tracker);
    if (calls.entry.len > 0) {
        need_stack(mi, mi.object_init_method ? 1 : 2);
    }
}

void need_stack(MethodRewriteState& mi, int32_t values) {
    mi.new_max_stack = std::max(mi.new_max_stack, mi.max_stack + values);
}

}  // namespace crw
