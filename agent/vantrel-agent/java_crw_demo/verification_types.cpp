#include "verification_types.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "constant_pool.h"
#include "images.h"
#include "opcodes.h"

namespace crw {

namespace {

using Type = VerificationType;

// The effect of an instruction, as far as the opcode alone tells it: how many slots it takes off the stack, and the
// letter of the type that it pushes (as in a descriptor, with N for null), or a blank for nothing.
struct Effect {
    uint8_t pops = 0;
    char push = ' ';
    bool is_known = false;
};

constexpr std::array<Effect, 256> kEffects = [] {
    std::array<Effect, 256> effects{};
    const auto set = [&effects](size_t first, size_t last, uint8_t pops, char push) {
        for (size_t opcode = first; opcode <= last; ++opcode) {
            effects[opcode] = {pops, push, true};
        }
    };
    // One instruction after the other for int, long, float and double.
    const auto set_four = [&effects](size_t first, uint8_t narrow_pops, uint8_t wide_pops) {
        effects[first] = {narrow_pops, 'I', true};
        effects[first + 1] = {wide_pops, 'J', true};
        effects[first + 2] = {narrow_pops, 'F', true};
        effects[first + 3] = {wide_pops, 'D', true};
    };
    set(0, 0, 0, ' ');    // nop
    set(1, 1, 0, 'N');    // aconst_null
    set(2, 8, 0, 'I');    // iconst
    set(9, 10, 0, 'J');   // lconst
    set(11, 13, 0, 'F');  // fconst
    set(14, 15, 0, 'D');  // dconst
    set(16, 17, 0, 'I');  // bipush, sipush
    set_four(21, 0, 0);   // iload to dload
    set(26, 29, 0, 'I');  // iload_0 to iload_3
    set(30, 33, 0, 'J');  // lload_0 to lload_3
    set(34, 37, 0, 'F');  // fload_0 to fload_3
    set(38, 41, 0, 'D');  // dload_0 to dload_3
    set_four(46, 2, 2);   // iaload to daload
    set(51, 53, 2, 'I');  // baload, caload, saload
    set(79, 86, 3, ' ');  // iastore to sastore, but for
    set(80, 80, 4, ' ');  // lastore and
    set(82, 82, 4, ' ');  // dastore
    set(87, 87, 1, ' ');  // pop
    set(88, 88, 2, ' ');  // pop2
    for (size_t opcode = 96; opcode <= 112; opcode += 4) {
        set_four(opcode, 2, 4);  // iadd to drem
    }
    set_four(116, 1, 2);  // ineg to dneg
    for (size_t opcode = 120; opcode <= 124; opcode += 2) {
        set(opcode, opcode, 2, 'I');          // ishl, ishr, iushr
        set(opcode + 1, opcode + 1, 3, 'J');  // lshl, lshr, lushr
    }
    for (size_t opcode = 126; opcode <= 130; opcode += 2) {
        set(opcode, opcode, 2, 'I');          // iand, ior, ixor
        set(opcode + 1, opcode + 1, 4, 'J');  // land, lor, lxor
    }
    set(132, 132, 0, ' ');  // iinc
    for (size_t from = 0; from < 4; ++from) {
        // i2l i2f i2d, l2i l2f l2d, f2i f2l f2d, d2i d2l d2f
        const uint8_t pops = from % 2 == 0 ? 1 : 2;
        constexpr char kLetters[] = "IJFD";
        size_t opcode = 133 + 3 * from;
        for (size_t to = 0; to < 4; ++to) {
            if (to != from) {
                set(opcode, opcode, pops, kLetters[to]);
                ++opcode;
            }
        }
    }
    set(145, 147, 1, 'I');  // i2b, i2c, i2s
    set(148, 148, 4, 'I');  // lcmp
    set(149, 150, 2, 'I');  // fcmpl, fcmpg
    set(151, 152, 4, 'I');  // dcmpl, dcmpg
    set(153, 158, 1, ' ');  // ifeq to ifle
    set(159, 166, 2, ' ');  // if_icmpeq to if_acmpne
    set(190, 190, 1, 'I');  // arraylength
    set(193, 193, 1, 'I');  // instanceof
    set(194, 195, 1, ' ');  // monitorenter, monitorexit
    set(198, 199, 1, ' ');  // ifnull, ifnonnull
    return effects;
}();

// Opcodes that the table leaves out, and that no other file of the rewriter needs by name.
enum : uint8_t {
    kLload = 22,
    kDload = 24,
    kAload3 = 45,
    kAaload = 50,
    kLstore = 55,
    kDstore = 57,
    kIstore0 = 59,
    kAstore3 = 78,
    kDupX1 = 90,
    kDupX2 = 91,
    kDup2 = 92,
    kDup2X1 = 93,
    kDup2X2 = 94,
    kSwap = 95,
    kPutstatic = 179,
    kGetfield = 180,
    kPutfield = 181,
    kInvokevirtual = 182,
    kInvokespecial = 183,
};

// Thrown, and caught in this file, where types cannot be followed.
struct NotFollowed {};

class Follower {
  public:
    Follower(MethodRewriteState& mi, Frame& frame)
        : mi_(mi), ci_(mi.ci), code_(ci_.input + mi.start_of_input_bytecodes), frame_(frame) {}

    void push(char letter) {
        switch (letter) {
            case 'I':
            case 'Z':
            case 'B':
            case 'C':
            case 'S':
                return push(Type{Type::kInteger});
            case 'F':
                return push(Type{Type::kFloat});
            case 'J':
                return push(Type{Type::kLong});
            case 'D':
                return push(Type{Type::kDouble});
            case 'N':
                return push(Type{Type::kNull});
            case ' ':
            case 'V':
                return;
            default:
                throw NotFollowed{};
        }
    }

    // A value of the type that a descriptor begins with; what a method returns may be nothing.
    void push_described(std::string_view descriptor) {
        if (descriptor.starts_with('[')) {
            push_object(descriptor);
        } else if (descriptor.starts_with('L')) {
            push_object(descriptor.substr(1, descriptor.size() - 2));
        } else {
            push(descriptor.empty() ? '?' : descriptor[0]);
        }
    }

    void follow(uint32_t from, uint32_t to) {
        for (uint32_t pc = from; pc < to;) {
            pc += step(pc);
            if (pc > to) {
                throw NotFollowed{};
            }
        }
    }

    // How many slots the arguments of a descriptor take. Calls `take` with the descriptor of each.
    template <typename Take>
    static size_t for_arguments(std::string_view descriptor, const Take& take) {
        size_t slots = 0;
        size_t at = 1;
        while (at < descriptor.size() && descriptor[at] != ')') {
            size_t end = at;
            while (end < descriptor.size() && descriptor[end] == '[') {
                ++end;
            }
            const bool is_two_slots = end == at && (descriptor[at] == 'J' || descriptor[at] == 'D');
            end = end < descriptor.size() && descriptor[end] == 'L' ? descriptor.find(';', end) : end;
            if (end >= descriptor.size()) {
                throw NotFollowed{};
            }
            take(descriptor.substr(at, end + 1 - at));
            slots += is_two_slots ? 2 : 1;
            at = end + 1;
        }
        return slots;
    }

  private:
    void push(Type type) {
        frame_.stack.push_back(type);
        if (type.is_two_slots()) {
            frame_.stack.push_back({Type::kSecondSlot});
        }
    }

    void push_object(std::string_view name) { push(Type{Type::kObject, cpool_class_index(ci_, name)}); }

    Type pop() {
        if (frame_.stack.empty()) {
            throw NotFollowed{};
        }
        const Type type = frame_.stack.back();
        frame_.stack.pop_back();
        return type;
    }

    void pop(size_t slots) {
        if (frame_.stack.size() < slots) {
            throw NotFollowed{};
        }
        frame_.stack.resize(frame_.stack.size() - slots);
    }

    // Puts a copy of the top `count` slots under the `under` ones below them.
    void dup(size_t count, size_t under) {
        std::vector<Type>& stack = frame_.stack;
        if (stack.size() < count + under) {
            throw NotFollowed{};
        }
        const std::vector<Type> top(stack.end() - static_cast<std::ptrdiff_t>(count), stack.end());
        stack.insert(stack.end() - static_cast<std::ptrdiff_t>(count + under), top.begin(), top.end());
    }

    void load_reference(uint32_t index) {
        if (index >= frame_.locals.size()) {
            throw NotFollowed{};
        }
        push(frame_.locals[index]);
    }

    void store(uint32_t index, bool is_two_slots) {
        std::vector<Type>& locals = frame_.locals;
        const size_t slots = is_two_slots ? 2 : 1;
        if (index + slots > mi_.max_locals) {
            throw NotFollowed{};
        }
        locals.resize(std::max(locals.size(), index + slots));
        // Half of a long or double that is overwritten takes the other half with it.
        if (locals[index].tag == Type::kSecondSlot && index > 0) {
            locals[index - 1] = {};
        }
        if (locals[index + slots - 1].is_two_slots() && index + slots < locals.size()) {
            locals[index + slots] = {};
        }
        if (is_two_slots) {
            locals[index + 1] = pop();
        }
        locals[index] = pop();
    }

    void replace(Type old_type, Type new_type) {
        std::replace(frame_.locals.begin(), frame_.locals.end(), old_type, new_type);
        std::replace(frame_.stack.begin(), frame_.stack.end(), old_type, new_type);
    }

    void invoke(uint8_t opcode, uint32_t index) {
        const std::string_view descriptor = cpool_member_descriptor(ci_, index);
        pop(for_arguments(descriptor, [](std::string_view) {}));
        if (opcode != kInvokestatic && opcode != kInvokedynamic) {
            const Type receiver = pop();
            if (opcode == kInvokespecial && cpool_member_name(ci_, index) == "<init>") {
                initialise(receiver);
            }
        }
        push_described(descriptor.substr(std::min(descriptor.find(')') + 1, descriptor.size())));
    }

    void initialise(Type receiver) {
        if (receiver.tag == Type::kUninitializedThis) {
            replace(receiver, {Type::kObject, ci_.this_class_index});
        } else if (receiver.tag == Type::kUninitialized) {
            if (receiver.value + 3 > mi_.code_len) {
                throw NotFollowed{};
            }
            replace(receiver, {Type::kObject, u2_at(code_ + receiver.value + 1)});
        }
    }

    void access_field(uint8_t opcode, uint32_t index) {
        const std::string_view descriptor = cpool_member_descriptor(ci_, index);
        if (opcode == kPutstatic || opcode == kPutfield) {
            pop(descriptor == "J" || descriptor == "D" ? 2 : 1);
        }
        if (opcode == kGetfield || opcode == kPutfield) {
            pop();
        }
        if (opcode == kGetstatic || opcode == kGetfield) {
            push_described(descriptor);
        }
    }

    void load_constant(uint32_t index) {
        // By the tag of the constant (JVM specification, table 4.4-A).
        switch (cpool_tag(ci_, index)) {
            case 3:  // Integer
                return push('I');
            case 4:  // Float
                return push('F');
            case 5:  // Long
                return push('J');
            case 6:  // Double
                return push('D');
            case 7:  // Class
                return push_object("java/lang/Class");
            case 8:  // String
                return push_object("java/lang/String");
            case 15:  // MethodHandle
                return push_object("java/lang/invoke/MethodHandle");
            case 16:  // MethodType
                return push_object("java/lang/invoke/MethodType");
            case 17:  // Dynamic
                return push_described(cpool_member_descriptor(ci_, index));
            default:
                throw NotFollowed{};
        }
    }

    void load_from_array() {
        pop();
        const Type array = pop();
        if (array.tag == Type::kNull) {
            return push(array);
        }
        if (array.tag != Type::kObject) {
            throw NotFollowed{};
        }
        const std::string name(cpool_class_name(ci_, array.value));
        if (!name.starts_with("[L") && !name.starts_with("[[")) {
            throw NotFollowed{};
        }
        push_described(std::string_view(name).substr(1));
    }

    void make_array(uint8_t opcode, uint32_t pc) {
        if (opcode == kMultianewarray) {
            pop(code_[pc + 3]);
            return push(Type{Type::kObject, u2_at(code_ + pc + 1)});
        }
        pop();
        if (opcode == kAnewarray) {
            const std::string element(cpool_class_name(ci_, u2_at(code_ + pc + 1)));
            return push_object(element.starts_with('[') ? "[" + element : "[L" + element + ";");
        }
        constexpr uint8_t kBoolean = 4;  // JVM specification, table 6.5.newarray-A
        constexpr std::string_view kElements = "ZCFDBSIJ";
        const size_t kind = code_[pc + 1] - size_t{kBoolean};
        if (kind >= kElements.size()) {
            throw NotFollowed{};
        }
        push_object(std::string("[") + kElements[kind]);
    }

    // The loads and stores that have their local in an operand, which is one byte or, after `wide`, two.
    void access_local(uint8_t opcode, uint32_t index) {
        if (opcode == kAload) {
            load_reference(index);
        } else if (opcode >= kIstore && opcode <= kAstore) {
            store(index, opcode == kLstore || opcode == kDstore);
        } else if (opcode == kIinc || (opcode >= kIload && opcode < kAload)) {
            push(kEffects[opcode].push);
        } else {
            throw NotFollowed{};  // ret
        }
    }

    // Follows one instruction. Returns its length.
    uint32_t step(uint32_t pc) {
        const uint8_t opcode = code_[pc];
        constexpr uint32_t kBranchLength = 3;
        constexpr uint32_t kWideLength = 4;
        const uint32_t plain_length = kPlainLength[opcode] != 0 ? kPlainLength[opcode] : kBranchLength;
        const uint32_t length = opcode == kWide ? kWideLength : plain_length;
        if (pc + length > static_cast<uint32_t>(mi_.code_len)) {
            throw NotFollowed{};
        }
        if (opcode == kWide) {
            access_local(code_[pc + 1], u2_at(code_ + pc + 2));
            return code_[pc + 1] == kIinc ? length + 2 : length;
        }
        const Effect effect = kEffects[opcode];
        if (effect.is_known) {
            pop(effect.pops);
            push(effect.push);
        } else {
            step_otherwise(opcode, pc);
        }
        return length;
    }

    void step_otherwise(uint8_t opcode, uint32_t pc) {
        if (opcode >= kAload0 && opcode <= kAload3) {
            return load_reference(opcode - uint32_t{kAload0});
        }
        if (opcode >= kIstore0 && opcode <= kAstore3) {
            // Four for each of int, long, float, double and reference.
            const uint32_t n = opcode - uint32_t{kIstore0};
            return store(n % 4, n / 4 == 1 || n / 4 == 3);
        }
        switch (opcode) {
            case kLdc:
                return load_constant(code_[pc + 1]);
            case kLdcW:
            case kLdc2W:
                return load_constant(u2_at(code_ + pc + 1));
            case kAload:
            case kIstore:
            case kLstore:
            case kIstore + 2:  // fstore
            case kDstore:
            case kAstore:
                return access_local(opcode, code_[pc + 1]);
            case kAaload:
                return load_from_array();
            case kDup:
                return dup(1, 0);
            case kDupX1:
                return dup(1, 1);
            case kDupX2:
                return dup(1, 2);
            case kDup2:
                return dup(2, 0);
            case kDup2X1:
                return dup(2, 1);
            case kDup2X2:
                return dup(2, 2);
            case kSwap:
                dup(1, 1);
                pop();
                return;
            case kGetstatic:
            case kPutstatic:
            case kGetfield:
            case kPutfield:
                return access_field(opcode, u2_at(code_ + pc + 1));
            case kInvokevirtual:
            case kInvokespecial:
            case kInvokestatic:
            case kInvokeinterface:
            case kInvokedynamic:
                return invoke(opcode, u2_at(code_ + pc + 1));
            case kNew: {
                const Type type{Type::kUninitialized, static_cast<uint16_t>(pc)};
                // The object that the same instruction made before, in a loop, can no longer be initialised.
                std::replace(frame_.locals.begin(), frame_.locals.end(), type, Type{});
                return push(type);
            }
            case kNewarray:
            case kAnewarray:
            case kMultianewarray:
                return make_array(opcode, pc);
            case kCheckcast:
                pop();
                return push(Type{Type::kObject, u2_at(code_ + pc + 1)});
            default:
                // The code does not run on (goto, switches, returns, athrow), or jumps to a subroutine.
                throw NotFollowed{};
        }
    }

    MethodRewriteState& mi_;
    ClassRewriteState& ci_;
    const uint8_t* code_;
    Frame& frame_;
};

}  // namespace

Frame first_frame(MethodRewriteState& mi) {
    constexpr uint16_t kStatic = 0x0008;
    Frame arguments;
    Follower follower(mi, arguments);
    if ((mi.access_flags & kStatic) == 0) {
        const bool is_new = mi.name == "<init>" && !mi.ci.is_object_class;
        arguments.stack.push_back(is_new ? Type{Type::kUninitializedThis}
                                         : Type{Type::kObject, mi.ci.this_class_index});
    }
    try {
        Follower::for_arguments(mi.descriptor,
                                [&](std::string_view descriptor) { follower.push_described(descriptor); });
    } catch (const NotFollowed&) {
        // No VM loads a method with such a descriptor.
    }
    return {.locals = arguments.stack, .stack = {}};
}

bool follow_types(MethodRewriteState& mi, Frame& frame, uint32_t from, uint32_t to) {
    try {
        Follower(mi, frame).follow(from, to);
        return true;
    } catch (const NotFollowed&) {
        return false;
    } catch (const Failure& failure) {
        // An instruction refers to a constant that is not there, which no VM lets pass either.
        if (failure.condition != std::string_view(kIndexRule)) {
            throw;
        }
        return false;
    }
}

}  // namespace crw
