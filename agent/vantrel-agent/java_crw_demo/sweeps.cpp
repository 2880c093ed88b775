#include "sweeps.h"

#include <bit>
#include <utility>
#include <vector>

// The sweeps go forward and back in turn, so that one of the two finds the branches of a row in which each makes its
// neighbour too long, whichever neighbour that is.
//
// `shifts` has an entry for each candidate, and one for the end of the code. The difference between two entries is by
// how much the candidates from one to the other have grown. A sweep writes all entries anew as it goes, forward from 0
// and back from 0 downwards. It takes the difference of two new entries, or of two old ones, which lacks no more than
// what has grown in this sweep. So no branch grows too early; and when a sweep finds nothing to change, the old entries
// were right, and no branch is too long.

namespace crw {

namespace {

using Shifts = std::vector<int32_t>;

// Lets a branch grow if that has to be, given by how much what it jumps over has grown. Returns whether it did.
bool look_at(const Candidate& candidate, int32_t growth) {
    Site& site = *candidate.site;
    const bool grows = site.widening == 0 && growth > candidate.to_spare() && !is_switch(site);
    if (grows) {
        site.widening = candidate.full_growth;
    }
    return grows;
}

// Both sweeps return how many branches have grown.

size_t sweep_forward(std::span<const Candidate> candidates, Shifts& shifts) {
    size_t grown = 0;
    int32_t shift = 0;
    for (size_t own = 0; own < candidates.size(); ++own) {
        const Candidate& candidate = candidates[own];
        const int32_t old_shift = std::exchange(shifts[own], shift);
        const int32_t at_target = shifts[candidate.before];
        grown += look_at(candidate, candidate.is_forward(own) ? at_target - old_shift : shift - at_target) ? 1 : 0;
        shift += candidate.site->widening;
    }
    shifts.back() = shift;
    return grown;
}

size_t sweep_back(std::span<const Candidate> candidates, Shifts& shifts) {
    size_t grown = 0;
    int32_t shift = 0;
    shifts.back() = shift;
    for (size_t own = candidates.size(); own-- > 0;) {
        const Candidate& candidate = candidates[own];
        const int32_t at_target = shifts[candidate.before];
        grown += look_at(candidate, candidate.is_forward(own) ? at_target - shift : shifts[own] - at_target) ? 1 : 0;
        shift -= candidate.site->widening;
        shifts[own] = shift;
    }
    return grown;
}

}  // namespace

bool settle_by_sweeps(std::span<const Candidate> candidates) {
    Shifts shifts(candidates.size() + 1, 0);
    for (size_t own = 0; own < candidates.size(); ++own) {
        shifts[own + 1] = shifts[own] + candidates[own].site->widening;
    }
    for (size_t left = static_cast<size_t>(std::bit_width(candidates.size())) / 2 + 1; left > 0; --left) {
        if (sweep_forward(candidates, shifts) == 0 || sweep_back(candidates, shifts) == 0) {
            return true;
        }
    }
    return false;
}

}  // namespace crw
