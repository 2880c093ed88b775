// Writes classes that a verifier takes (../rewriter/verifiable_classes.h) into a folder, for linking.SideBySide:
//
//     write-verifiable-classes FOLDER FIRST-SEED COUNT
//
// Says how many bytes of code they have, and how many branches no longer fit when arrays are tracked.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "literal_rewriter.h"
#include "verifiable_classes.h"

int main(int argument_count, char** arguments) {
    if (argument_count != 4) {
        fputs("write-verifiable-classes: say FOLDER FIRST-SEED COUNT\n", stderr);
        return 1;
    }
    const std::filesystem::path folder = arguments[1];
    std::filesystem::create_directories(folder);
    const unsigned long first = std::strtoul(arguments[2], nullptr, 10);
    const unsigned long count = std::strtoul(arguments[3], nullptr, 10);
    size_t bytes = 0;
    size_t widened = 0;
    size_t classes_with_widened = 0;
    for (unsigned long seed = first; seed < first + count; ++seed) {
        const std::string name = "Generated" + std::to_string(seed);
        const class_builder::ClassFile file =
            verifiable_classes::from_choices(verifiable_classes::random_choices(seed), name);
        bytes += file.methods[0].code->bytes.size();
        class_builder::Bytes image = class_builder::assemble(file);
        std::ofstream(folder / (name + ".class"), std::ios::binary)
            .write(reinterpret_cast<const char*>(image.data()), static_cast<std::streamsize>(image.size()));
        image[7] = 52;  // the newest that the literal rewriter takes
        const size_t here = literal_rewriter::rewrite(image, {.newarray_name = "array"}).widened;
        widened += here;
        classes_with_widened += here > 0 ? 1 : 0;
    }
    printf("%lu methods of %zu bytes on average, %zu of them with branches that grow, %zu in all\n", count,
           bytes / (count > 0 ? count : 1), classes_with_widened, widened);
    return 0;
}
