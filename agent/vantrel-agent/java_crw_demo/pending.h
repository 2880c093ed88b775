// Which candidates are still to be looked at, in the order of the code.
#ifndef JAVA_CRW_DEMO_PENDING_H
#define JAVA_CRW_DEMO_PENDING_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace crw {

// A set of the numbers below a limit, of which the least can be taken. There is a bit for each number, and one for each
// word of those that is not 0.
class Pending {
  public:
    // All of them.
    explicit Pending(size_t limit) : words_(limit / kBits + 1, 0), not_empty_(words_.size() / kBits + 1, 0) {
        for (size_t number = 0; number < limit; ++number) {
            put(number);
        }
    }

    void put(size_t number) {
        set_bit(words_, number);
        set_bit(not_empty_, number / kBits);
    }

    // Takes the least one out. Returns whether there was one.
    bool take_first(size_t& number) {
        for (size_t i = 0; i < not_empty_.size(); ++i) {
            if (not_empty_[i] != 0) {
                const size_t word = i * kBits + first_bit(not_empty_[i]);
                number = word * kBits + first_bit(words_[word]);
                words_[word] &= words_[word] - 1;
                if (words_[word] == 0) {
                    not_empty_[i] &= not_empty_[i] - 1;
                }
                return true;
            }
        }
        return false;
    }

  private:
    static constexpr size_t kBits = 64;

    static void set_bit(std::vector<uint64_t>& words, size_t number) {
        words[number / kBits] |= uint64_t{1} << number % kBits;
    }
    static size_t first_bit(uint64_t word) { return static_cast<size_t>(std::countr_zero(word)); }

    std::vector<uint64_t> words_;
    std::vector<uint64_t> not_empty_;
};

}  // namespace crw

#endif
