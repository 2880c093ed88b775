// The class files of some jars, one after the other in memory, as a benchmark goes through them.
#ifndef VANTREL_BENCH_CLASSES_H
#define VANTREL_BENCH_CLASSES_H

#include <cstdint>
#include <string>
#include <vector>

using Image = std::vector<std::uint8_t>;

// Those of version 52 or older, which both doors take. Ends the program where a jar cannot be read.
std::vector<Image> classes_of(const std::vector<std::string>& jars);

#endif
