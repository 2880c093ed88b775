// Writes what the rewriter's fuzz targets begin with, into a folder each:
//
//     rewriter-corpus SMALL-CLASSES LONG-METHODS
//
// The second one is for verifier-fuzz, and for rewriter-fuzz where there is time.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "random_classes.h"
#include "verifiable_classes.h"

namespace {

void write(const std::filesystem::path& file, const class_builder::Bytes& input) {
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size()));
}

// What is asked for (rewriter_fuzz.cpp): in turn each choice, and everything for every second class.
class_builder::Bytes asked(unsigned seed) {
    return {static_cast<std::uint8_t>(seed % 2 == 0 ? 15 : seed % 64), static_cast<std::uint8_t>(seed % 8)};
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count != 3) {
        fprintf(stderr, "rewriter-corpus: say two folders to write to\n");
        return 1;
    }
    const std::filesystem::path small = arguments[1];
    const std::filesystem::path large = arguments[2];
    std::filesystem::create_directories(small);
    std::filesystem::create_directories(large);
    for (unsigned seed = 0; seed < 100; ++seed) {
        const class_builder::Bytes image = class_builder::assemble(random_classes::small_methods(seed).file);
        write(small / ("small-" + std::to_string(seed)), class_builder::cat({asked(seed), image}));
    }
    for (unsigned seed = 0; seed < 40; ++seed) {
        class_builder::Bytes input = asked(seed);
        input[0] |= 128U;  // choices follow, rather than a class
        class_builder::append(input, verifiable_classes::random_choices(seed));
        write(large / ("long-" + std::to_string(seed)), input);
    }
    return 0;
}
