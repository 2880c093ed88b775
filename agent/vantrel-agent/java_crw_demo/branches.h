// What branches and switches look like, and by how much they can grow.
#ifndef JAVA_CRW_DEMO_BRANCHES_H
#define JAVA_CRW_DEMO_BRANCHES_H

#include <cstdint>

#include "images.h"
#include "method_rewrite_state.h"
#include "opcodes.h"

namespace crw {

constexpr int32_t kFarthestForward = INT16_MAX;
constexpr int32_t kFarthestBack = INT16_MIN;

constexpr int8_t kGrowthOfGoto = 2;         // goto_w, jsr_w
constexpr int8_t kGrowthOfConditional = 5;  // a goto_w after the opposite condition
constexpr int8_t kLargestPaddingChange = 3;

inline bool fits(int32_t offset) {
    return offset >= kFarthestBack && offset <= kFarthestForward;
}

inline bool is_switch(const Site& site) {
    return site.kind == Site::kTableSwitch || site.kind == Site::kLookupSwitch;
}

// Whether a site is a conditional branch that has become a longer one.
inline bool is_widened_conditional(const Site& site) {
    return site.kind == Site::kBranch && site.widening == kGrowthOfConditional;
}

inline int32_t padding_at(int32_t pc) {
    return 3 - (pc & 3);
}

inline int8_t growth_of(uint8_t opcode) {
    return opcode == kGoto || opcode == kJsr ? kGrowthOfGoto : kGrowthOfConditional;
}

inline int16_t offset_of(const Site& site, const uint8_t* code) {
    return static_cast<int16_t>(u2_at(code + site.pc + 1));
}

// The old pc that a branch at an old pc leads to. One outside the code is a large number.
inline uint32_t target_of(const Site& site, int32_t offset) {
    return site.pc + static_cast<uint32_t>(offset);
}

}  // namespace crw

#endif
