// A macOS library in the memory of a Linux process, as macOS's loader would have it there: mapped, its pointers fixed
// and bound to what stands for macOS's libraries (system.h), protected, and initialised. Its code runs as it is: macOS
// and Linux have one calling convention on x86-64.
#ifndef VANTREL_MACHO_IMAGE_H
#define VANTREL_MACHO_IMAGE_H

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace macho {

// Stays where it is, and mapped, until the process ends. Several may have been made of one file: each has variables of
// its own.
struct Image {
    std::string path;
    std::uint8_t* base;
    std::uint64_t size;
    std::map<std::string, std::uint64_t> exported;

    // What it exports, by its name in C. Ends the process where there is no such name.
    template <typename Function>
    Function* function(const std::string& name) const {
        return reinterpret_cast<Function*>(address_of(name));
    }
    [[nodiscard]] void* address_of(const std::string& name) const;
};

// Loads a library, at an address or wherever there is room. A line on stderr, and the end of the process, where that
// cannot be.
const Image& load(const std::filesystem::path& path, std::uintptr_t address = 0);

// The image in which an address lies, or null.
const Image* image_with(const void* address);

}  // namespace macho

#endif
