// The sites of a method whose widening is open.
#ifndef JAVA_CRW_DEMO_CANDIDATES_H
#define JAVA_CRW_DEMO_CANDIDATES_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "branches.h"

namespace crw {

// A site whose widening is open: a switch, or a branch that may become too long.
struct Candidate {
    Site* site;
    int32_t new_pc;       // before any widening
    int32_t offset;       // of a branch, before any widening
    int32_t grown_pc;     // where it is when all before it has grown as much as it can
    uint32_t before = 0;  // how many candidates end at or before the target of a branch
    int8_t full_growth;   // by how much a branch grows when it does

    // For the budgets of widening.cpp, which says what these are.
    uint8_t pivot = 0;
    bool used_up_left = false;   // which budget was the last one to be used up
    uint8_t halvings = 1;        // how often what there is to spare is halved to get the other one
    uint32_t rank_by_begin = 0;  // of a branch among those with its pivot
    uint32_t rank_by_end = 0;

    // How much of what a branch jumps over may grow before it is too long. Less than 0 if it is so from the beginning.
    [[nodiscard]] int32_t to_spare() const { return offset < 0 ? offset - kFarthestBack : kFarthestForward - offset; }
    [[nodiscard]] bool is_forward(size_t own) const { return own < before; }
    [[nodiscard]] size_t first_between(size_t own) const { return std::min<size_t>(own, before); }
    [[nodiscard]] size_t last_between(size_t own) const { return std::max<size_t>(own, before); }
};

// By how much a site can grow.
int8_t largest_growth(const Site& site, const uint8_t* code);

// In the order of the code. The map must be as the plan has it, and all branches must lead into the code.
std::vector<Candidate> find_candidates(MethodRewriteState& mi, const uint8_t* code);

}  // namespace crw

#endif
