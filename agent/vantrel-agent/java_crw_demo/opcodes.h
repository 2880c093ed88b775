// The instructions that the rewriter knows by name, and the lengths of all (JVM specification, chapter 6).
#ifndef JAVA_CRW_DEMO_OPCODES_H
#define JAVA_CRW_DEMO_OPCODES_H

#include <array>
#include <cstdint>

namespace crw {

enum Opcode : uint8_t {
    kIconst0 = 3,
    kBipush = 16,
    kSipush = 17,
    kLdc = 18,
    kLdcW = 19,
    kLdc2W = 20,
    kIload = 21,
    kAload = 25,
    kAload0 = 42,
    kIstore = 54,
    kAstore = 58,
    kDup = 89,
    kIinc = 132,
    kIfeq = 153,
    kIfAcmpne = 166,
    kGoto = 167,
    kJsr = 168,
    kRet = 169,
    kTableswitch = 170,
    kLookupswitch = 171,
    kIreturn = 172,
    kLreturn = 173,
    kFreturn = 174,
    kDreturn = 175,
    kAreturn = 176,
    kReturnOpcode = 177,
    kGetstatic = 178,
    kInvokestatic = 184,
    kInvokeinterface = 185,
    kInvokedynamic = 186,
    kNew = 187,
    kNewarray = 188,
    kAnewarray = 189,
    kCheckcast = 192,
    kInstanceof = 193,
    kWide = 196,
    kMultianewarray = 197,
    kIfnull = 198,
    kIfnonnull = 199,
    kGotoW = 200,
    kJsrW = 201,
    kLastOpcode = kJsrW,
};

// By opcode, the length of an instruction that is only copied, with the opcode. 0 for all others: branches, whose
// offsets change; switches and `wide`, whose lengths the opcode does not tell; and opcodes that do not exist.
constexpr std::array<uint8_t, 256> kPlainLength = [] {
    std::array<uint8_t, 256> length{};
    const auto set = [&length](int first, int last, uint8_t value) {
        for (int opcode = first; opcode <= last; ++opcode) {
            length[static_cast<size_t>(opcode)] = value;
        }
    };
    set(0, kMultianewarray, 1);
    set(kBipush, kBipush, 2);
    set(kSipush, kSipush, 3);
    set(kLdc, kLdc, 2);
    set(kLdcW, kLdc2W, 3);
    set(kIload, kAload, 2);
    set(kIstore, kAstore, 2);
    set(kIinc, kIinc, 3);
    set(kRet, kRet, 2);
    set(kGetstatic, kInvokestatic, 3);
    set(kInvokeinterface, kInvokedynamic, 5);
    set(kNew, kNew, 3);
    set(kNewarray, kNewarray, 2);
    set(kAnewarray, kAnewarray, 3);
    set(kCheckcast, kInstanceof, 3);
    set(kMultianewarray, kMultianewarray, 4);
    set(kIfeq, kJsr, 0);
    set(kTableswitch, kLookupswitch, 0);
    set(kWide, kWide, 0);
    return length;
}();

inline uint32_t length_of_array_creation(uint8_t opcode) {
    return kPlainLength[opcode];
}

// Where the operands of a switch at a pc begin, after its padding.
inline uint32_t switch_operands(uint32_t pc) {
    return (pc + 4) & ~3U;
}

}  // namespace crw

#endif
