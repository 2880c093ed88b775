#include "widening.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <numeric>
#include <span>
#include <vector>

#include "branches.h"

// The scan changes, again and again, the first site that is not as it should be. Here the same changes are made in the
// same order, without looking at all sites each time: `pending` holds every site that may not be as it should be, and
// the first one of it is looked at. It is changed if it needs to be, and taken out. A change moves what follows, and so
// it puts those sites in that it may have made wrong:
//
//   - Of the switches the next one. When that has been padded anew, all that follows it has moved by a multiple of
//     four bytes, and their paddings are as right as before; until then nothing that comes later is looked at.
//   - Of the branches those that jump over the changed site, and only those which that can have made too long. A branch
//     that has been looked at has so many bytes to spare. It is looked at again when half of them may have been used up
//     on either side of a fixed place that it jumps over (Alarms), and so not more often than the logarithm of what it
//     had to spare.
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

// Sums over the beginnings of a sequence of numbers, which may change (a Fenwick tree).
class Sums {
  public:
    explicit Sums(size_t size) : partial_(size + 1, 0) {}

    void add(size_t at, int32_t amount) {
        for (++at; at < partial_.size(); at += at & (~at + 1)) {
            partial_[at] += amount;
        }
    }

    // Of the first `count` numbers.
    [[nodiscard]] int32_t of_first(size_t count) const {
        int32_t sum = 0;
        for (; count > 0; count &= count - 1) {
            sum += partial_[count];
        }
        return sum;
    }

  private:
    std::vector<int32_t> partial_;
};

// Budgets, each of which can be set, and ranges of which can be charged, to find those that are used up. A tree whose
// nodes have the least budget below them.
class Budgets {
  public:
    explicit Budgets(size_t size) : size_(std::bit_ceil(std::max<size_t>(size, 1))), nodes_(2 * size_, Node{}) {}

    void set(size_t at, int32_t budget) {
        size_t node = at + size_;
        int32_t charged = 0;
        for (size_t above = node / 2; above > 0; above /= 2) {
            charged += nodes_[above].charged;
        }
        nodes_[node].least = budget == INT32_MAX ? INT32_MAX / 2 : budget + charged;
        update_above(node);
    }

    // Those from the first to before the last.
    void charge(size_t first, size_t last, int32_t amount) {
        size_t from = first + size_;
        size_t to = last + size_;
        for (; from < to; from /= 2, to /= 2) {
            if (from % 2 == 1) {
                charge(from++, amount);
            }
            if (to % 2 == 1) {
                charge(--to, amount);
            }
        }
        if (first > 0 && first < size_) {
            update_above(first + size_);
        }
        if (last > 0 && last < size_) {
            update_above(last - 1 + size_);
        }
    }

    [[nodiscard]] size_t size() const { return size_; }

    // Whether there is a budget that is used up. If so, `at` becomes the first such.
    [[nodiscard]] bool find_used_up(size_t& at) const {
        if (nodes_[1].least > 0) {
            return false;
        }
        size_t node = 1;
        int32_t charged = 0;
        while (node < size_) {
            charged += nodes_[node].charged;
            node = 2 * node + (nodes_[2 * node].least - charged <= 0 ? 0 : 1);
        }
        at = node - size_;
        return true;
    }

  private:
    struct Node {
        int32_t least = INT32_MAX / 2;  // without what is charged above
        int32_t charged = 0;            // to all below
    };

    void charge(size_t node, int32_t amount) {
        nodes_[node].least -= amount;
        nodes_[node].charged += amount;
    }

    void update_above(size_t node) {
        for (node /= 2; node > 0; node /= 2) {
            nodes_[node].least = std::min(nodes_[2 * node].least, nodes_[2 * node + 1].least) - nodes_[node].charged;
        }
    }

    size_t size_;
    std::vector<Node> nodes_;
};

// A site whose widening is open: a switch, or a branch that may become too long.
struct Candidate {
    Site* site;
    int32_t new_pc;      // before any widening
    int32_t offset;      // of a branch, before any widening
    int32_t grown_pc;    // where it is when all before it has grown as much as it can
    int8_t full_growth;  // by how much a branch grows when it does
    size_t before = 0;   // how many candidates end at or before the target of a branch
    size_t pivot = 0;
    uint32_t rank_by_begin = 0;  // of a branch among those with its pivot
    uint32_t rank_by_end = 0;

    [[nodiscard]] size_t first_between(size_t own) const { return std::min(own, before); }
    [[nodiscard]] size_t last_between(size_t own) const { return std::max(own, before); }
};

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
    std::vector<uint32_t> branches;
    Order by_begin;  // of what a branch jumps over
    Order by_end;
};

class Settler {
  public:
    Settler(MethodRewriteState& mi, const uint8_t* code) : mi_(mi), code_(code) {
        find_candidates();
        shifts_ = Sums(candidates_.size());
        make_pivots();
    }

    void settle() {
        pending_.assign((candidates_.size() + kBits - 1) / kBits, ~uint64_t{0});
        if (candidates_.size() % kBits != 0) {
            pending_.back() = (uint64_t{1} << candidates_.size() % kBits) - 1;
        }
        for (size_t word = 0; word < pending_.size();) {
            if (pending_[word] == 0) {
                ++word;
                continue;
            }
            const size_t own = word * kBits + static_cast<size_t>(std::countr_zero(pending_[word]));
            pending_[word] &= pending_[word] - 1;
            word = std::min(word, look_at(own) / kBits);
        }
    }

  private:
    static constexpr size_t kBits = 64;

    void find_candidates() {
        // By site, by how much all before it can grow.
        const std::span<const Site> sites = mi_.sites;
        std::vector<int32_t> growth_before(sites.size() + 1, 0);
        for (size_t i = 0; i < sites.size(); ++i) {
            growth_before[i + 1] = growth_before[i] + largest_growth(sites[i]);
        }
        const auto growth_up_to = [&](uint32_t pc) {
            const auto site = std::partition_point(sites.begin(), sites.end(),
                                                   [pc](const Site& other) { return other.pc_next <= pc; });
            return growth_before[static_cast<size_t>(site - sites.begin())];
        };
        for (size_t i = 0; i < sites.size(); ++i) {
            Site& site = mi_.sites[i];
            const int32_t new_pc = mi_.map[site.pc];
            const int32_t grown_pc = new_pc + growth_before[i];
            if (is_switch(site)) {
                candidates_.push_back({&site, new_pc, 0, grown_pc, 0});
            } else if (site.kind == Site::kBranch) {
                const uint32_t target = target_of(site, offset_of(site, code_));
                const int32_t offset = mi_.map[target] - new_pc;
                const int32_t grown_offset = offset + growth_up_to(target) - growth_before[i];
                // One that lies far away without growing may come nearer: a switch's padding may shrink.
                if (!fits(grown_offset) || !fits(offset)) {
                    candidates_.push_back({&site, new_pc, offset, grown_pc, growth_of(code_[site.pc])});
                }
            }
        }
        for (Candidate& candidate : candidates_) {
            if (candidate.site->kind == Site::kBranch) {
                const uint32_t target = target_of(*candidate.site, offset_of(*candidate.site, code_));
                candidate.before = static_cast<size_t>(
                    std::partition_point(candidates_.begin(), candidates_.end(),
                                         [target](const Candidate& other) { return other.site->pc_next <= target; }) -
                    candidates_.begin());
            }
        }
    }

    [[nodiscard]] int8_t largest_growth(const Site& site) const {
        if (is_switch(site)) {
            return kLargestPaddingChange;
        }
        return site.kind == Site::kBranch ? growth_of(code_[site.pc]) : int8_t{0};
    }

    void make_pivots() {
        for (size_t own = 0; own < candidates_.size(); ++own) {
            Candidate& candidate = candidates_[own];
            if (is_switch(*candidate.site)) {
                switches_.push_back(own);
                continue;
            }
            // The first multiple of the distance that the branch jumps over.
            const size_t first = candidate.first_between(own);
            const int32_t begin = first < candidates_.size() ? candidates_[first].grown_pc : candidate.grown_pc;
            candidate.pivot = static_cast<size_t>(begin / kPivotDistance) + 1;
            if (candidate.pivot >= pivots_.size()) {
                pivots_.resize(candidate.pivot + 1);
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

    // Looks at one candidate, and changes it if it needs to be. Returns the first one that may now need it, or itself.
    size_t look_at(size_t own) {
        Candidate& candidate = candidates_[own];
        Site& site = *candidate.site;
        if (is_switch(site)) {
            const int32_t new_pc = candidate.new_pc + shifts_.of_first(own);
            return change(own, static_cast<int8_t>(padding_at(new_pc) - padding_at(static_cast<int32_t>(site.pc))));
        }
        if (site.widening != 0) {
            return own;  // a branch that has grown stays so
        }
        const int32_t offset = candidate.offset + shifts_.of_first(candidate.before) - shifts_.of_first(own);
        if (!fits(offset)) {
            set_budgets(candidate, INT32_MAX, INT32_MAX);
            return change(own, candidate.full_growth);
        }
        const int32_t to_spare = offset < 0 ? offset - kFarthestBack : kFarthestForward - offset;
        set_budgets(candidate, to_spare / 2 + 1, to_spare - to_spare / 2 + 1);
        return own;
    }

    void set_budgets(const Candidate& candidate, int32_t left, int32_t right) {
        pivots_[candidate.pivot].by_begin.budgets.set(candidate.rank_by_begin, left);
        pivots_[candidate.pivot].by_end.budgets.set(candidate.rank_by_end, right);
    }

    size_t change(size_t own, int8_t widening) {
        Site& site = *candidates_[own].site;
        const int32_t growth = widening - site.widening;
        if (growth == 0) {
            return own;
        }
        site.widening = widening;
        shifts_.add(own, growth);
        size_t first = own;
        const auto next_switch = std::upper_bound(switches_.begin(), switches_.end(), own);
        if (next_switch != switches_.end()) {
            first = std::min(first, put_in(*next_switch));
        }
        for (Pivot& pivot : pivots_) {
            if (!pivot.branches.empty()) {
                first = std::min(first, charge(pivot, own, growth));
            }
        }
        return first;
    }

    // Charges the branches of a pivot that jump over a candidate, and puts those in that have used up a budget.
    size_t charge(Pivot& pivot, size_t own, int32_t growth) {
        const bool is_left = own < pivot.place;
        Order& order = is_left ? pivot.by_begin : pivot.by_end;
        Budgets& budgets = order.budgets;
        const size_t rank = order.up_to[own];
        budgets.charge(is_left ? 0 : rank, is_left ? rank : budgets.size(), growth);
        size_t first = own;
        for (size_t at = 0; budgets.find_used_up(at);) {
            budgets.set(at, INT32_MAX);
            first = std::min(first, put_in(order.branches[at]));
        }
        return first;
    }

    size_t put_in(size_t own) {
        pending_[own / kBits] |= uint64_t{1} << own % kBits;
        return own;
    }

    MethodRewriteState& mi_;
    const uint8_t* code_;
    std::vector<Candidate> candidates_;
    std::vector<size_t> switches_;  // by index of candidate
    std::vector<Pivot> pivots_;
    Sums shifts_{0};  // by how much the candidates have grown
    std::vector<uint64_t> pending_;
};

}  // namespace

void settle_widenings(MethodRewriteState& mi, const uint8_t* code) {
    Settler(mi, code).settle();
}

}  // namespace crw
