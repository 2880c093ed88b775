// The types that a verifier gives to a method's locals and stack, instruction by instruction (JVM specification,
// section 4.10.1), as far as they can be told from the code that runs straight on. That is enough: wherever branches
// meet, the class file has a frame that says what holds there.
//
// Only the types are followed, and nothing is checked. Code that no verifier takes may get types that are nonsense, or
// none.
#ifndef JAVA_CRW_DEMO_VERIFICATION_TYPES_H
#define JAVA_CRW_DEMO_VERIFICATION_TYPES_H

#include <cstdint>
#include <vector>

#include "method_rewrite_state.h"

namespace crw {

// A verification type as stack maps have it (JVM specification, section 4.7.4). The second slot of a long or double
// has a type of its own here, which is never written.
struct VerificationType {
    enum Tag : uint8_t {
        kTop,
        kInteger,
        kFloat,
        kDouble,
        kLong,
        kNull,
        kUninitializedThis,
        kObject,
        kUninitialized,
        kSecondSlot,
    };
    Tag tag = kTop;
    uint16_t value = 0;  // of kObject: a Class entry of the constant pool; of kUninitialized: the old pc of its `new`

    bool operator==(const VerificationType&) const = default;
    [[nodiscard]] bool is_two_slots() const { return tag == kLong || tag == kDouble; }
};

struct Frame {
    std::vector<VerificationType> locals;  // by slot; what is missing at the end is kTop
    std::vector<VerificationType> stack;   // by slot, the top one last
};

// What holds where a method begins: its receiver and its arguments.
Frame first_frame(MethodRewriteState& mi);

// Follows the instructions from old pc `from` to `to`, both of which must begin one. False where that cannot be done:
// the code does not run straight on from here to there, or does something that no stack map describes. May add
// constants to the class.
bool follow_types(MethodRewriteState& mi, Frame& frame, uint32_t from, uint32_t to);

}  // namespace crw

#endif
