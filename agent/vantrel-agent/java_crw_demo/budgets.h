// What widening.cpp keeps its accounts in: sums over the beginnings of a sequence, and budgets that are charged by the
// range. Both take a logarithmic number of steps for a change.
#ifndef JAVA_CRW_DEMO_BUDGETS_H
#define JAVA_CRW_DEMO_BUDGETS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace crw {

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

// Budgets, each of which can be set, and those before or after a place be charged, to find one that is used up. A tree
// whose entries have the least budget below them. They come in blocks, which a processor goes through several entries
// at a time.
class Budgets {
  public:
    explicit Budgets(size_t count) {
        do {
            count = (count + kBlock - 1) / kBlock;
            levels_.push_back({std::vector<int32_t>(count * kBlock, kPlenty), std::vector<int32_t>(count * kBlock, 0)});
        } while (count > 1);
    }

    void set(size_t at, int32_t budget) {
        int32_t charged = 0;
        size_t above = at;
        for (size_t level = 1; level < levels_.size(); ++level) {
            above /= kBlock;
            charged += levels_[level].charged[above];
        }
        levels_[0].least[at] = std::min(budget, kPlenty) + charged;
        bool changes = true;
        for (size_t level = 1; level < levels_.size() && changes; ++level) {
            at /= kBlock;
            changes = update(level, at);
        }
    }

    void charge_before(size_t end, int32_t amount) {
        for (size_t level = 0; level < levels_.size(); ++level) {
            const size_t block = end / kBlock;
            charge(level, block * kBlock, end, amount);
            update(level + 1, block);
            end = block;
        }
    }

    void charge_from(size_t begin, int32_t amount) {
        size_t at = begin;
        for (size_t level = 0; level < levels_.size(); ++level) {
            const size_t block = at / kBlock;
            charge(level, begin, std::min((block + 1) * kBlock, levels_[level].least.size()), amount);
            update(level + 1, block);
            // What is to be charged next may be in another block than the entry that has just been updated.
            at = block;
            begin = block + 1;
        }
    }

    // Whether there is a budget that is used up. If so, `at` becomes one.
    [[nodiscard]] bool find_used_up(size_t& at) const {
        size_t entry = 0;
        int32_t charged = 0;
        for (size_t level = levels_.size(); level-- > 0;) {
            const int32_t* least = &levels_[level].least[entry * kBlock];
            const int32_t* end = least + kBlock;
            const int32_t* found = std::find_if(least, end, [charged](int32_t budget) { return budget <= charged; });
            if (found == end) {
                return false;
            }
            entry = entry * kBlock + static_cast<size_t>(found - least);
            charged += levels_[level].charged[entry];
        }
        at = entry;
        return true;
    }

  private:
    static constexpr size_t kBlock = 16;
    static constexpr int32_t kPlenty = INT32_MAX / 2;

    // The budgets themselves, or what stands above the blocks of the level below.
    struct Level {
        std::vector<int32_t> least;    // without what is charged above
        std::vector<int32_t> charged;  // to all below
    };

    void charge(size_t level, size_t begin, size_t end, int32_t amount) {
        for (size_t i = begin; i < end; ++i) {
            levels_[level].least[i] -= amount;
            levels_[level].charged[i] += amount;
        }
    }

    // Makes an entry what the block below it says, if there is one. Returns whether it was something else.
    bool update(size_t level, size_t at) {
        if (level == levels_.size() || at * kBlock >= levels_[level - 1].least.size()) {
            return false;
        }
        const int32_t least = least_of(&levels_[level - 1].least[at * kBlock]) - levels_[level].charged[at];
        return std::exchange(levels_[level].least[at], least) != least;
    }

    // Of a block. Four at a time, which do not wait for each other.
    static int32_t least_of(const int32_t* block) {
        int32_t least[4] = {block[0], block[1], block[2], block[3]};
        for (size_t i = 4; i < kBlock; ++i) {
            least[i % 4] = std::min(least[i % 4], block[i]);
        }
        return std::min(std::min(least[0], least[1]), std::min(least[2], least[3]));
    }

    std::vector<Level> levels_;
};

}  // namespace crw

#endif
