#include "injection.h"

#include <algorithm>

#include "opcodes.h"

namespace crw {

namespace {

void emit(InjectionTemplate& injection, uint32_t byte) {
    injection.code[injection.len++] = static_cast<uint8_t>(byte);
}

void emit_u2(InjectionTemplate& injection, uint32_t value) {
    emit(injection, value >> 8U);
    emit(injection, value);
}

// The short forms take numbers of seven bits, because bipush takes the eighth for a sign. ldc does not, but its limit
// is the same one.
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

// The call of a tracker that takes a reference, which the instruction `load` pushes.
InjectionTemplate reference_template(const Tracker& tracker, uint32_t load) {
    InjectionTemplate injection;
    if (tracker.index != 0) {
        emit(injection, load);
        emit_invoke(injection, tracker);
    }
    return injection;
}

// The call of a tracker that takes the class's and the method's number, which `pushes` pushes.
InjectionTemplate numbers_template(const InjectionTemplate& pushes, const Tracker& tracker) {
    if (tracker.index == 0) {
        return {};
    }
    InjectionTemplate injection = pushes;
    emit_invoke(injection, tracker);
    return injection;
}

}  // namespace

void prepare_injections(MethodRewriteState& mi) {
    const ClassRewriteState& ci = mi.ci;
    if (mi.object_init_method) {
        mi.entry_injection = reference_template(ci.object_init_tracker, kAload0);
    }
    InjectionTemplate pushes;
    emit_push_class_number(pushes, ci);
    emit_push(pushes, mi.number);
    if (!mi.skip_call_return_sites) {
        mi.entry_injection = numbers_template(pushes, ci.call_tracker);
        mi.return_injection = numbers_template(pushes, ci.return_tracker);
    }
    mi.newarray_injection = ci.newarray_takes_numbers ? numbers_template(pushes, ci.newarray_tracker)
                                                      : reference_template(ci.newarray_tracker, kDup);
    if (mi.entry_injection.len > 0) {
        need_stack(mi, mi.object_init_method ? 1 : 2);
    }
}

void need_stack(MethodRewriteState& mi, int32_t values) {
    mi.new_max_stack = std::max(mi.new_max_stack, mi.max_stack + values);
}

}  // namespace crw
