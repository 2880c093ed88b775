// What macOS's loader does to a library's pointers, out of the little programs that the linker left for it (the opcodes
// of Apple's mach-o/loader.h), and what the library exports (its trie of names).
#ifndef VANTREL_MACHO_FIX_UPS_H
#define VANTREL_MACHO_FIX_UPS_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "file.h"

namespace macho {

// Where a pointer stands to which the library's place in memory has to be added.
std::vector<std::uint64_t> rebases(const File& file);

// A pointer to what another library has.
struct Bind {
    std::uint64_t address;
    std::string library;
    std::string symbol;
};

// Those that are bound when the library is loaded, and those that macOS binds at their first use.
std::vector<Bind> binds(const File& file);

// The addresses of the symbols that other programs find.
std::map<std::string, std::uint64_t> exports(const File& file);

}  // namespace macho

#endif
