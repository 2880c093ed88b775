// A place in a method's old code where the new code is something else than a copy: an injection, or an instruction that
// is written anew.
#ifndef JAVA_CRW_DEMO_SITE_H
#define JAVA_CRW_DEMO_SITE_H

#include <cstdint>

namespace crw {

struct Site {
    enum Kind : uint8_t { kReturn, kNewArray, kBranch, kWideBranch, kTableSwitch, kLookupSwitch };
    uint32_t pc;       // of the instruction, or of the one that an injection goes before
    uint32_t pc_next;  // where the old instruction ends; for an injection the same as pc
    Kind kind;
    int8_t widening;  // by how much the instruction grows: 0, 2 or 5 for a branch, -3 to 3 for a switch's padding
};

}  // namespace crw

#endif
