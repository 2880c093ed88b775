// How often this program has asked for memory: malloc, realloc and operator new of the rewriter and of the benchmark.
#ifndef VANTREL_BENCH_ALLOCATIONS_H
#define VANTREL_BENCH_ALLOCATIONS_H

#include <cstddef>

// By the calling thread, so far.
std::size_t allocations();

#endif
