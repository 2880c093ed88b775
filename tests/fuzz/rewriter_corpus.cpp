// Writes classes for the rewriter's fuzz target to begin with, into a folder.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "random_classes.h"

namespace {

void write(const std::filesystem::path& folder, const std::string& name, unsigned seed,
           const random_classes::RandomClass& random) {
    // What is asked for (rewriter_fuzz.cpp): in turn each choice, and everything for every second class.
    const class_builder::Bytes choices = {static_cast<std::uint8_t>(seed % 2 == 0 ? 15 : seed % 64),
                                          static_cast<std::uint8_t>(seed % 8)};
    const class_builder::Bytes input = class_builder::cat({choices, class_builder::assemble(random.file)});
    std::ofstream(folder / (name + std::to_string(seed)), std::ios::binary)
        .write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size()));
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count != 2) {
        fprintf(stderr, "rewriter-corpus: say the folder to write to\n");
        return 1;
    }
    const std::filesystem::path folder = arguments[1];
    std::filesystem::create_directories(folder);
    for (unsigned seed = 0; seed < 100; ++seed) {
        write(folder, "small-", seed, random_classes::small_methods(seed));
    }
    return 0;
}
