// Methods that are as hard to relocate as methods of their size can be: thousands of branches that just reach, or just
// do not, so that one that grows may make others too long.
#ifndef VANTREL_BENCH_ADVERSARIES_H
#define VANTREL_BENCH_ADVERSARIES_H

#include <string>
#include <vector>

#include "classes.h"

struct Adversary {
    std::string name;
    std::size_t code_size;
    Image image;
};

std::vector<Adversary> adversaries();

#endif
