#include "widening.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

#include "branches.h"
#include "budgets.h"
#include "candidates.h"
#include "pending.h"
#include "sweeps.h"

// Without a switch nothing ever shrinks: a branch that is too long at any time is so in the end, and which branches
// grow does not depend on the order of the changes. So a few sweeps over all of them come first (sweeps.h), and mostly
// there is nothing left to do.
//
// With switches the order may matter: a branch may be too long only as long as a padding is large. But mostly it does
// not, and sweeps can tell. Those with all paddings as small as they can get find branches that have to grow whatever
// the paddings are meanwhile: in the end no branch is too long, and no padding is smaller. Those with all paddings as
// large as they can get find all that ever grow: when the first other one grew, it would be too long by less than what
// those sweeps have seen. Where both find the same branches, these are the ones, and the paddings follow one from the
// other (relocation.cpp).
//
// What follows is for the rest: where the paddings matter, and where the sweeps are not enough.
//
// The scan changes, again and again, the first site that is not as it should be. Here the same changes are made in the
// same order, without looking at all sites each time: `pending` holds every site that may not be as it should be, and
// the first one of it is looked at. It is changed if it needs to be, and taken out. A change moves what follows, and so
// it puts those sites in that it may have made wrong:
//
//   - Of the switches the next one. When that has been padded anew, all that follows it has moved by a multiple of
//     four bytes, and their paddings are as right as before; until then nothing that comes later is looked at.
//   - Of the branches those that jump over the changed site and have become too long. A branch that has been looked at
//     has so many bytes to spare. They are divided into two budgets, for the growth on either side of a fixed place
//     that it jumps over (Pivot), and it is looked at again when one of them is used up. At first both get half; the
//     side that uses up its own again and again gets more each time. Of two looks in a row one at least comes after
//     half of the bytes are gone, and so there are not many more than twice the logarithm of what there was to spare.
//
// What is pending includes all that needs a change, and the first of these is what the scan would find: the changes are
// the same ones, and so is where they end.
//
// The fixed places: only branches count that would be too long if all that they jump over grew. Measured in code that
// has grown as much as it could, each of them spans more than 32,768 bytes, and so a multiple of that, of which there
// are five at most in code that a VM loads.

namespace crw {

namespace {

constexpr int32_t kPivotDistance = INT16_MAX + 1;

// Branches ordered by a place that each has, the number of candidates before it.
struct Order {
    std::vector<uint32_t> branches;  // by index of candidate
    std::vector<uint32_t> up_to;     // by place: how many of the branches have theirs there or before
    Budgets budgets{0};
};

// The alarms of the branches that jump over one place: what grows before it, and what grows after it. A branch has a
// budget for each, and does not become too long while there is something left of both.
struct Pivot {
    size_t place = 0;
    int32_t shift = 0;  // by how much the candidates before it have grown
    std::vector<uint32_t> branches;
    Order by_begin;  // of what a branch jumps over
    Order by_end;
};

class Settler {
  public:
    Settler(std::vector<Candidate> candidates, const uint8_t* code)
        : candidates_(std::move(candidates)), shifts_(candidates_.size()), pending_(candidates_.size()) {
        largest_shifts_.reserve(candidates_.size() + 1);
        for (const Candidate& candidate : candidates_) {
            largest_shifts_.push_back(largest_shifts_.back() + largest_growth(*candidate.site, code));
            if (candidate.site->widening != 0) {
                shifts_.add(largest_shifts_.size() - 2, candidate.site->widening);
            }
        }
        make_pivots();
        next_switch_.resize(candidates_.size());
        size_t next = candidates_.size();
        for (size_t own = candidates_.size(); own-- > 0;) {
            next_switch_[own] = next;
            if (is_switch(*candidates_[own].site)) {
                next = own;
            }
        }
    }

    void settle() {
        for (size_t own = 0; pending_.take_first(own);) {
            look_at(own);
        }
    }

  private:
    void make_pivots() {
        for (size_t own = 0; own < candidates_.size(); ++own) {
            Candidate& candidate = candidates_[own];
            if (is_switch(*candidate.site)) {
                continue;
            }
            if (candidate.site->widening != 0) {
                continue;
            }
            // The first multiple of the distance that the branch jumps over.
            const size_t first = candidate.first_between(own);
            const int32_t begin = first < candidates_.size() ? candidates_[first].grown_pc : candidate.grown_pc;
            candidate.pivot = static_cast<uint8_t>(begin / kPivotDistance + 1);
            if (candidate.pivot >= pivots_.size()) {
                pivots_.resize(candidate.pivot + 1U);
            }
            pivots_[candidate.pivot].branches.push_back(static_cast<uint32_t>(own));
        }
        for (size_t i = 0; i < pivots_.size(); ++i) {
            prepare(pivots_[i], static_cast<int32_t>(i) * kPivotDistance);
        }
    }

    void prepare(Pivot& pivot, int32_t grown_pc) {
        pivot.place = static_cast<size_t>(
            std::partition_point(candidates_.begin(), candidates_.end(),
                                 [grown_pc](const Candidate& other) { return other.grown_pc < grown_pc; }) -
            candidates_.begin());
        pivot.shift = shifts_.of_first(pivot.place);
        order(pivot.by_begin, pivot.branches, &Settler::begin_of, &Candidate::rank_by_begin);
        order(pivot.by_end, pivot.branches, &Settler::end_of, &Candidate::rank_by_end);
    }

    void order(Order& order, const std::vector<uint32_t>& branches, size_t (Settler::*place)(size_t) const,
               uint32_t Candidate::*rank) {
        order.up_to.assign(candidates_.size() + 1, 0);
        for (const uint32_t own : branches) {
            ++order.up_to[(this->*place)(own)];
        }
        std::partial_sum(order.up_to.begin(), order.up_to.end(), order.up_to.begin());
        order.branches.resize(branches.size());
        std::vector<uint32_t> end = order.up_to;
        for (const uint32_t own : branches) {
            candidates_[own].*rank = --end[(this->*place)(own)];
            order.branches[candidates_[own].*rank] = own;
        }
        order.budgets = Budgets(branches.size());
    }

    [[nodiscard]] size_t begin_of(size_t own) const { return candidates_[own].first_between(own); }
    [[nodiscard]] size_t end_of(size_t own) const { return candidates_[own].last_between(own); }

    // Looks at one candidate, and changes it if it needs to be.
    void look_at(size_t own) {
        Candidate& candidate = candidates_[own];
        Site& site = *candidate.site;
        if (is_switch(site)) {
            const int32_t new_pc = candidate.new_pc + shifts_.of_first(own);
            change(own, static_cast<int8_t>(padding_at(new_pc) - padding_at(static_cast<int32_t>(site.pc))));
            return;
        }
        if (site.widening != 0) {
            return;  // it stays so
        }
        const Parts parts = parts_of(own);
        if (!parts.fits) {
            change(own, candidate.full_growth);
            return;
        }
        Pivot& pivot = pivots_[candidate.pivot];
        pivot.by_begin.budgets.set(candidate.rank_by_begin, parts.left);
        pivot.by_end.budgets.set(candidate.rank_by_end, parts.right);
    }

    // A branch's budgets for the growth on the left and on the right of its pivot.
    struct Parts {
        bool fits;
        int32_t left;
        int32_t right;
    };

    // Whether a branch fits as it is. If so, it gets budgets, so that it need not be looked at until it may not fit any
    // more; and else it needs none.
    [[nodiscard]] Parts parts_of(size_t own) const {
        const Candidate& candidate = candidates_[own];
        const int32_t own_shift = shifts_.of_first(own);
        const int32_t target_shift = shifts_.of_first(candidate.before);
        const int32_t offset = candidate.offset + target_shift - own_shift;
        if (!fits(offset)) {
            return {false, Budgets::kPlenty, Budgets::kPlenty};
        }
        const Pivot& pivot = pivots_[candidate.pivot];
        const bool is_forward = own < candidate.before;
        const int32_t left = still_to_come(candidate.first_between(own), is_forward ? own_shift : target_shift,
                                           pivot.place, pivot.shift);
        // A branch may end before its pivot, if there are no candidates where it does.
        const int32_t right = std::max(
            still_to_come(pivot.place, pivot.shift, candidate.last_between(own), is_forward ? target_shift : own_shift),
            0);
        const int32_t to_spare = offset < 0 ? offset - kFarthestBack : kFarthestForward - offset;
        const int32_t for_left = part_for_left(candidate, to_spare, left, right);
        return {true, for_left + 1, to_spare - for_left + 1};
    }

    // By how much the candidates from one to another can still grow, given by how much all before each have.
    [[nodiscard]] int32_t still_to_come(size_t first, int32_t first_shift, size_t last, int32_t last_shift) const {
        return largest_shifts_[last] - largest_shifts_[first] - (last_shift - first_shift);
    }

    // How much of what a branch has to spare is for the growth on the left of its pivot, if so much can still come on
    // either side. What cannot be used up on one side is for the other.
    static int32_t part_for_left(const Candidate& candidate, int32_t to_spare, int32_t left, int32_t right) {
        const int32_t smaller_part = to_spare >> candidate.halvings;
        const int32_t part = candidate.used_up_left ? to_spare - smaller_part : smaller_part;
        return std::max(std::min(part, left), to_spare - right);
    }

    // Remembers on which side a branch has used up its budget.
    static void note_used_up(Candidate& candidate, bool is_left) {
        constexpr int kMostHalvings = 15;  // nothing is left of any number of bytes then
        const bool once_more = candidate.used_up_left == is_left;
        candidate.halvings = static_cast<uint8_t>(once_more ? std::min(2 * candidate.halvings + 1, kMostHalvings) : 1);
        candidate.used_up_left = is_left;
    }

    void change(size_t own, int8_t widening) {
        Site& site = *candidates_[own].site;
        const int32_t growth = widening - site.widening;
        if (growth == 0) {
            return;
        }
        site.widening = widening;
        shifts_.add(own, growth);
        if (next_switch_[own] < candidates_.size()) {
            pending_.put(next_switch_[own]);
        }
        for (Pivot& pivot : pivots_) {
            if (!pivot.branches.empty()) {
                charge(pivot, own, growth);
            }
        }
    }

    // Charges the branches of a pivot that jump over a candidate. Looks at those that have used up a budget, and puts
    // those in that do not fit.
    void charge(Pivot& pivot, size_t own, int32_t growth) {
        const bool is_left = own < pivot.place;
        Order& order = is_left ? pivot.by_begin : pivot.by_end;
        Order& other = is_left ? pivot.by_end : pivot.by_begin;
        if (is_left) {
            pivot.shift += growth;
        }
        const uint32_t place = order.up_to[own];
        const bool some_used_up = is_left ? place > 0 && order.budgets.charge_before(place, growth)
                                          : place < order.branches.size() && order.budgets.charge_from(place, growth);
        if (!some_used_up) {
            return;
        }
        order.budgets.renew_used_up([&](size_t at) {
            const size_t used_up = order.branches[at];
            Candidate& candidate = candidates_[used_up];
            note_used_up(candidate, is_left);
            const Parts parts = parts_of(used_up);
            if (!parts.fits) {
                pending_.put(used_up);
            }
            other.budgets.set(is_left ? candidate.rank_by_end : candidate.rank_by_begin,
                              is_left ? parts.right : parts.left);
            return is_left ? parts.left : parts.right;
        });
    }

    std::vector<Candidate> candidates_;
    std::vector<int32_t> largest_shifts_{0};  // by how much the candidates before each can grow, and all of them
    std::vector<size_t> next_switch_;         // by candidate, the first one after it; their number if there is none
    std::vector<Pivot> pivots_;
    Sums shifts_;  // by how much the candidates have grown
    Pending pending_;
};

// The paddings of all switches that are as small as they can get, or as large.
enum class Paddings : uint8_t { kLeast, kMost };

void set_paddings(std::span<const Candidate> candidates, Paddings paddings) {
    for (const Candidate& candidate : candidates) {
        if (is_switch(*candidate.site)) {
            const int32_t old_padding = padding_at(static_cast<int32_t>(candidate.site->pc));
            candidate.site->widening =
                static_cast<int8_t>((paddings == Paddings::kLeast ? 0 : kLargestPaddingChange) - old_padding);
        }
    }
}

size_t count_grown(std::span<const Candidate> candidates) {
    return static_cast<size_t>(std::count_if(candidates.begin(), candidates.end(), [](const Candidate& candidate) {
        return candidate.site->widening != 0 && !is_switch(*candidate.site);
    }));
}

// Lets those branches grow that have to, if they are the same ones whatever the paddings are meanwhile. If not, or if
// that is not found out soon, nothing has grown.
bool settle_whatever_the_paddings(std::span<const Candidate> candidates) {
    set_paddings(candidates, Paddings::kLeast);
    if (settle_by_sweeps(candidates)) {
        const size_t grown_for_certain = count_grown(candidates);
        set_paddings(candidates, Paddings::kMost);
        if (settle_by_sweeps(candidates) && count_grown(candidates) == grown_for_certain) {
            return true;
        }
    }
    for (const Candidate& candidate : candidates) {
        candidate.site->widening = 0;
    }
    return false;
}

}  // namespace

void settle_widenings(MethodRewriteState& mi, const uint8_t* code) {
    std::vector<Candidate> candidates = find_candidates(mi, code);
    const bool has_switch = std::any_of(candidates.begin(), candidates.end(),
                                        [](const Candidate& candidate) { return is_switch(*candidate.site); });
    if (!(has_switch ? settle_whatever_the_paddings(candidates) : settle_by_sweeps(candidates))) {
        Settler(std::move(candidates), code).settle();
    }
}

}  // namespace crw
