// How frames are encoded in a StackMapTable (JVM specification, section 4.7.4).
#ifndef JAVA_CRW_DEMO_STACK_MAP_FORMAT_H
#define JAVA_CRW_DEMO_STACK_MAP_FORMAT_H

#include <cstdint>

#include "images.h"

namespace crw {

// The first frame type of each kind.
enum FrameType : uint8_t {
    kSame = 0,
    kSameLocalsOneStackItem = 64,
    kReserved = 128,
    kSameLocalsOneStackItemExtended = 247,
    kChop = 248,
    kSameExtended = 251,
    kAppend = 252,
    kFull = 255,
};

// The short forms have their delta in the frame type, which leaves room for so many deltas.
constexpr int32_t kDeltasInType = 64;

struct FrameHead {
    uint8_t type;
    int32_t delta;
};

inline FrameHead read_frame_head(ClassRewriteState& ci) {
    const uint8_t type = read_u1(ci);
    if (type >= kReserved && type < kSameLocalsOneStackItemExtended) {
        fatal_error(ci, "Unknown frame type in StackMapTable attribute");
    }
    return {type, type < kReserved ? type % kDeltasInType : read_u2(ci)};
}

// The frame before the one that is being read or written.
struct LastFrame {
    int32_t pc = 0;
    int32_t new_pc = 0;
    int32_t increment = 0;  // 1 from the second frame on: a delta there is one less than the distance
};

}  // namespace crw

#endif
