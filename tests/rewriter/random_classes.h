// Random classes to rewrite, each the same for the same seed. They are well formed as the rewriter sees them (every
// length, index and pc is one), but nothing that a VM would verify.
#ifndef VANTREL_RANDOM_CLASSES_H
#define VANTREL_RANDOM_CLASSES_H

#include <cstddef>
#include <cstdint>
#include <random>

#include "class_builder.h"
#include "literal_rewriter.h"

namespace random_classes {

struct Random {
    explicit Random(std::uint64_t seed) : engine(seed) {}

    std::size_t below(std::size_t limit) { return limit == 0 ? 0 : engine() % limit; }
    std::size_t between(std::size_t first, std::size_t last) { return first + below(last - first + 1); }
    bool one_in(std::size_t count) { return below(count) == 0; }

    // What below() makes of it is the same with every library, unlike the standard distributions.
    std::mt19937_64 engine;
};

struct RandomClass {
    class_builder::ClassFile file;
    RewriteOptions options;
};

// Everything that a class can have, in methods of up to some hundred bytes.
RandomClass small_methods(std::uint64_t seed);

// One or two methods of 15,000 to 62,000 bytes whose branches lead just about as far as 16 bits do, before or after
// injection; with or without switches between them.
RandomClass far_branches(std::uint64_t seed, bool switches);

}  // namespace random_classes

#endif
