// What widening.cpp keeps its accounts in: sums over the beginnings of a sequence, and budgets that are charged by the
// range. There are never more than some twenty thousand of either, for a branch takes three bytes at least.
#ifndef JAVA_CRW_DEMO_BUDGETS_H
#define JAVA_CRW_DEMO_BUDGETS_H

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace crw {

// Sums over the beginnings of a sequence of numbers, which may change. Asking is what has to be fast: a change goes
// through one block, and then through all blocks that follow, which a processor does several at a time.
class Sums {
  public:
    explicit Sums(size_t size) : in_block_(size / kBlock * kBlock + kBlock, 0), before_block_(size / kBlock + 1, 0) {}

    void add(size_t at, int32_t amount) {
        const size_t block = at / kBlock;
        for (size_t i = at + 1; i < (block + 1) * kBlock; ++i) {
            in_block_[i] += amount;
        }
        for (size_t i = block + 1; i < before_block_.size(); ++i) {
            before_block_[i] += amount;
        }
    }

    // Of the first `count` numbers.
    [[nodiscard]] int32_t of_first(size_t count) const { return before_block_[count / kBlock] + in_block_[count]; }

  private:
    static constexpr size_t kBlock = 128;

    std::vector<int32_t> in_block_;  // by number, the sum of those before it in its block
    std::vector<int32_t> before_block_;
};

// Budgets, each of which can be set, and those before or after a place be charged, to renew all that are used up.
//
// A tree, in blocks. An entry of the lowest level is a budget. Each one above it stands for a block of the level below,
// and is no more than the least there. What a whole block is charged is only noted in the entry above it, and so no
// entry knows what has been charged above.
class Budgets {
  public:
    static constexpr int32_t kPlenty = INT32_MAX / 2;

    explicit Budgets(size_t count) {
        do {
            count = count / kBlock + 1;  // a range may begin or end after the last one
            levels_.emplace_back(count);
        } while (count > 1);
    }

    void set(size_t at, int32_t budget) {
        int32_t charged = 0;
        size_t above = at / kBlock;
        for (size_t level = 1; level < levels_.size(); ++level, above /= kBlock) {
            charged += levels_[level][above / kBlock].charged[above % kBlock];
        }
        int32_t least = budget + charged;
        levels_[0][at / kBlock].least[at % kBlock] = least;
        for (size_t level = 1; level < levels_.size(); ++level) {
            at /= kBlock;
            Block& block = levels_[level][at / kBlock];
            least -= block.charged[at % kBlock];
            if (block.least[at % kBlock] <= least) {
                return;
            }
            block.least[at % kBlock] = least;
        }
    }

    // Both return false if no budget is used up.
    bool charge_before(size_t end, int32_t amount) { return charge(end, amount, kBefore, kBefore); }
    bool charge_from(size_t begin, int32_t amount) { return charge(begin, amount, kFrom, kFrom - 1); }

    // Gives each budget that is used up the value that `renew` returns for its place, which must be more than 0.
    template <typename Renew>
    void renew_used_up(const Renew& renew) {
        renew_in(levels_.size() - 1, 0, 0, renew);
    }

  private:
    static constexpr size_t kBlock = 32;

    // Four numbers, which a processor handles at once.
    using Four = int32_t __attribute__((vector_size(16)));

    struct Block {
        Block() { std::fill_n(least, kBlock, kPlenty); }

        alignas(Four) int32_t least[kBlock];
        alignas(Four) int32_t charged[kBlock] = {};  // to all below
    };

    // Which entries of a block are charged, if that begins or ends at its first one: all bits of a number or none. If
    // it does at a later one, the numbers begin as many places earlier.
    static constexpr std::array<int32_t, 4 * kBlock> kMasks = [] {
        std::array<int32_t, 4 * kBlock> masks{};
        std::fill_n(masks.begin(), kBlock, -1);
        std::fill_n(masks.begin() + 3 * kBlock, kBlock, -1);
        return masks;
    }();
    static constexpr const int32_t* kBefore = kMasks.data() + kBlock;
    static constexpr const int32_t* kFrom = kMasks.data() + 3 * kBlock;

    static Four load(const int32_t* from) {
        Four four;
        memcpy(&four, from, sizeof four);
        return four;
    }
    static void store(int32_t* to, Four four) { memcpy(to, &four, sizeof four); }
    static Four choose(Four mask, Four first, Four second) { return (first & mask) | (second & ~mask); }
    static Four least_of(Four first, Four second) { return choose(first < second, first, second); }
    static int32_t least_of(Four four) { return std::min(std::min(four[0], four[1]), std::min(four[2], four[3])); }

    // Charges in one block of each level: the one where the range begins or ends, by a mask for the lowest level and
    // one for those above.
    bool charge(size_t at, int32_t amount, const int32_t* mask, const int32_t* mask_above) {
        int32_t least = charge(levels_[0][at / kBlock], mask - at % kBlock, amount);
        for (size_t level = 1; level < levels_.size(); ++level) {
            at /= kBlock;
            Block& block = levels_[level][at / kBlock];
            const int32_t others = charge(block, mask_above - at % kBlock, amount);
            const int32_t entry = least - block.charged[at % kBlock];
            block.least[at % kBlock] = entry;
            least = std::min(entry, others);
        }
        return least <= 0;
    }

    // Returns the least of the block.
    static int32_t charge(Block& block, const int32_t* mask, int32_t amount) {
        const Four amounts = {amount, amount, amount, amount};
        Four least_of_all = {kPlenty, kPlenty, kPlenty, kPlenty};
        for (size_t i = 0; i < kBlock; i += 4) {
            const Four part = load(mask + i) & amounts;
            const Four least = load(block.least + i) - part;
            store(block.least + i, least);
            store(block.charged + i, load(block.charged + i) + part);
            least_of_all = least_of(least_of_all, least);
        }
        return least_of(least_of_all);
    }

    // Renews what is used up in one block, and below it. `charged` is what has been charged above it. Returns the least
    // of the block.
    template <typename Renew>
    // NOLINTNEXTLINE(misc-no-recursion): as deep as the tree, which is three levels for all branches of a method
    int32_t renew_in(size_t level, size_t number, int32_t charged, const Renew& renew) {
        Block& block = levels_[level][number];
        const Four limit = {charged, charged, charged, charged};
        const Four plenty = {kPlenty, kPlenty, kPlenty, kPlenty};
        Four least_of_others = plenty;
        Four bit = {1, 2, 4, 8};
        Four bits = {};
        for (size_t i = 0; i < kBlock; i += 4) {
            const Four least = load(block.least + i);
            const Four is_used_up = least <= limit;
            least_of_others = least_of(least_of_others, choose(is_used_up, plenty, least));
            bits |= is_used_up & bit;
            bit <<= 4;
        }
        int32_t least_of_all = least_of(least_of_others);
        for (auto used_up = static_cast<uint32_t>(bits[0] | bits[1] | bits[2] | bits[3]); used_up != 0;
             used_up &= used_up - 1) {
            const auto i = static_cast<size_t>(std::countr_zero(used_up));
            const size_t at = number * kBlock + i;
            if (level == 0) {
                block.least[i] = renew(at) + charged;
            } else {
                block.least[i] = renew_in(level - 1, at, charged + block.charged[i], renew) - block.charged[i];
            }
            least_of_all = std::min(least_of_all, block.least[i]);
        }
        return least_of_all;
    }

    std::vector<std::vector<Block>> levels_;
};

}  // namespace crw

#endif
